# What the build makes for the device: a tree of files as the device has them, which the program lays into its device
# root. It stands beside the program's folder, so that the program finds it from its own place.
set(PROGRAM_FOLDER ${CMAKE_BINARY_DIR}/bin)
set(DEVICE_TREE ${CMAKE_BINARY_DIR}/share/corvex/device)

# The desktop's libraries: all that a bundle finds in the program that loads it.
set(HOST_LIBRARIES platform desktop_foundation desktop_autolayout desktop_drawing desktop_quartzcore
    desktop_uikit desktop_preferences desktop_gcuniversal desktop_onboarding desktop_system desktop_settings)

# corvex_device_files(RESULT FOLDER FILES...): copies of files of the source folder in a folder of the tree. RESULT is
# set to what a target must depend on.
function(corvex_device_files result folder)
    set(copies)
    foreach(file IN LISTS ARGN)
        get_filename_component(name ${file} NAME)
        add_custom_command(OUTPUT ${folder}/${name}
            COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/${file} ${folder}/${name}
            DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${file} VERBATIM)
        list(APPEND copies ${folder}/${name})
    endforeach()
    set(${result} ${copies} PARENT_SCOPE)
endfunction()

# corvex_device_picture(RESULT SVG FILE WIDTH): a drawing as a PNG file of that many pixels across.
function(corvex_device_picture result svg file width)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    get_filename_component(folder ${file} DIRECTORY)
    add_custom_command(OUTPUT ${file}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${RSVG_CONVERT} --width ${width} --keep-aspect-ratio --output ${file} ${CMAKE_CURRENT_SOURCE_DIR}/${svg}
        DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${svg} VERBATIM)
    set(${result} ${file} PARENT_SCOPE)
endfunction()

# corvex_device_icon(RESULT SVG FOLDER NAME POINTS): a square drawing in the device's three scales.
function(corvex_device_icon result svg folder name points)
    math(EXPR twice "2 * ${points}")
    math(EXPR thrice "3 * ${points}")
    corvex_device_picture(once ${svg} ${folder}/${name}.png ${points})
    corvex_device_picture(at2x ${svg} ${folder}/${name}@2x.png ${twice})
    corvex_device_picture(at3x ${svg} ${folder}/${name}@3x.png ${thrice})
    set(${result} ${once} ${at2x} ${at3x} PARENT_SCOPE)
endfunction()

# corvex_bundle(NAME SOURCES... [PARTS targets...] [EXPORTS symbols...]): code that a program loads, of sources and of
# libraries' objects: all of them, since classes found by name are referenced from nowhere. It exports the symbols that
# are named alone, for what else leads into it is the class table, and what it takes from the contract is left to the
# program that loads it.
function(corvex_bundle name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "PARTS;EXPORTS")
    list(TRANSFORM arg_PARTS REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>" OUTPUT_VARIABLE objects)
    set(exported "")
    foreach(symbol IN LISTS arg_EXPORTS)
        string(APPEND exported " ${symbol};")
    endforeach()
    if(exported)
        set(exported "global:${exported} ")
    endif()
    set(exports ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
    file(CONFIGURE OUTPUT ${exports} CONTENT "{ @exported@local: *; };\n" @ONLY)
    add_library(${name} MODULE ${arg_UNPARSED_ARGUMENTS} ${objects})
    set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX "" LINKER_LANGUAGE CXX LINK_DEPENDS ${exports})
    target_link_options(${name} PRIVATE LINKER:--version-script=${exports})
    target_link_libraries(${name} PRIVATE contract corvex_portable)
endfunction()

# corvex_host(NAME): makes a program one that bundles can be loaded into: it holds every object of the desktop's
# libraries, whether or not it needs it itself, and exports their symbols.
function(corvex_host name)
    list(TRANSFORM HOST_LIBRARIES REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>" OUTPUT_VARIABLE objects)
    set_target_properties(${name} PROPERTIES ENABLE_EXPORTS TRUE)
    target_sources(${name} PRIVATE ${objects})
    target_link_libraries(${name} PRIVATE ${HOST_LIBRARIES})
endfunction()

# How the device's bundle is linked. There is no SDK: what the bundle may import is named, library by library, in the
# link stubs.
include(${CMAKE_CURRENT_LIST_DIR}/DeviceHeaders.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/DeviceLinker.cmake)
include(ExternalProject)

find_program(DEVICE_LIPO llvm-lipo-22 REQUIRED)
set(DEVICE_MINIMUM_SYSTEM 15.0)
set(DEVICE_RUN_PATHS /var/jb/usr/lib @loader_path/.jbroot/usr/lib)

set(DEVICE_CODE_OPTIONS -fno-exceptions -fblocks -fvisibility=hidden -fvisibility-inlines-hidden
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
add_compile_options(${DEVICE_CODE_OPTIONS})

# The tools run here, so they have a build of their own.
set(ARM64E ${CMAKE_BINARY_DIR}/tools/corvex-arm64e)
ExternalProject_Add(device_tools
    SOURCE_DIR ${CMAKE_SOURCE_DIR}/device/tools
    BINARY_DIR ${CMAKE_BINARY_DIR}/tools
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=clang++-22 -DCORVEX_CCACHE=${CORVEX_CCACHE}
    BUILD_BYPRODUCTS ${ARM64E}
    BUILD_ALWAYS TRUE
    INSTALL_COMMAND "")

# corvex_device_stubs(RESULT FILES...): what the linker is told of the libraries that lists name. Each list says on its
# first line, after comments, where the device has the library, and then a symbol or an Objective-C class a line. The
# code is loaded without a "weak library" too.
function(corvex_device_stubs result)
    set(targets "[ arm64-ios, arm64e-ios ]")
    set(stubs)
    foreach(list IN LISTS ARGN)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
        get_filename_component(name ${list} NAME_WE)
        file(STRINGS ${list} lines REGEX "^[^#]")
        set(library)
        set(how)
        set(symbols)
        set(classes)
        foreach(line IN LISTS lines)
            if(line MATCHES "^(weak )?library ([^ ]+)$")
                set(library ${CMAKE_MATCH_2})
                if(CMAKE_MATCH_1)
                    set(how -weak_library)
                endif()
            elseif(line MATCHES "^symbol ([^ ]+)$")
                list(APPEND symbols "'${CMAKE_MATCH_1}'")
            elseif(line MATCHES "^class ([^ ]+)$")
                list(APPEND classes "'${CMAKE_MATCH_1}'")
            else()
                message(FATAL_ERROR "${list}: \"${line}\" is no library, symbol or class")
            endif()
        endforeach()
        if(NOT library)
            message(FATAL_ERROR "${list}: does not say which library it lists")
        endif()
        list(JOIN symbols ", " symbols)
        list(JOIN classes ", " classes)
        set(stub ${CMAKE_CURRENT_BINARY_DIR}/stubs/${name}.tbd)
        file(CONFIGURE OUTPUT ${stub} @ONLY CONTENT
"--- !tapi-tbd
tbd-version: 4
targets: @targets@
install-name: '@library@'
current-version: 0
compatibility-version: 0
exports:
  - targets: @targets@
    symbols: [ @symbols@ ]
    objc-classes: [ @classes@ ]
...
")
        list(APPEND stubs ${how} ${stub})
    endforeach()
    set(${result} ${stubs} PARENT_SCOPE)
endfunction()

# corvex_device_bundle(NAME FILE path PARTS targets... STUBS stubs... [EXPORTS symbols...]): a universal bundle of the
# objects of libraries, which exports the symbols that are named alone. Every signed pointer of the arm64e half is
# verified before there is a file.
function(corvex_device_bundle name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "FILE" "PARTS;STUBS;EXPORTS")
    list(TRANSFORM arg_PARTS REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>" OUTPUT_VARIABLE objects)
    get_filename_component(file_name ${arg_FILE} NAME)
    get_filename_component(folder ${arg_FILE} DIRECTORY)
    set(work ${CMAKE_CURRENT_BINARY_DIR}/${name}.link)
    set(arm64 ${work}/arm64/${file_name})
    set(arm64e ${work}/arm64e/${file_name})
    set(list ${work}/objects)
    file(GENERATE OUTPUT ${list} CONTENT "$<JOIN:${objects},\n>\n")
    set(stub_files ${arg_STUBS})
    list(FILTER stub_files EXCLUDE REGEX "^-")

    list(JOIN arg_EXPORTS "\n" exported)
    set(exports ${work}/exports)
    file(CONFIGURE OUTPUT ${exports} CONTENT "${exported}\n" @ONLY)
    list(TRANSFORM DEVICE_RUN_PATHS REPLACE "(.+)" "-rpath;\\1" OUTPUT_VARIABLE run_paths)
    set(link ${DEVICE_LINKER} -arch arm64 -platform_version ios ${DEVICE_MINIMUM_SYSTEM} ${DEVICE_MINIMUM_SYSTEM}
        -bundle --error-limit=0 -adhoc_codesign -fixup_chains -init_offsets -dead_strip -S -exported_symbols_list ${exports} ${run_paths})

    add_custom_command(OUTPUT ${arm64}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${work}/arm64
        COMMAND ${link} -x -map ${arm64}.map -o ${arm64} -filelist ${list} ${arg_STUBS}
        DEPENDS ${list} ${objects} ${stub_files} ${exports}
        COMMENT "Linking ${file_name} for arm64" VERBATIM COMMAND_EXPAND_LISTS)
    # The linker takes prepared objects for arm64. Local symbols carry what it does not know, so they are kept.
    add_custom_command(OUTPUT ${arm64e}
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${work}/arm64e
        COMMAND ${ARM64E} prepare ${list} ${work}/arm64e/objects
        COMMAND ${link} -map ${arm64e}.map -o ${arm64e}.linked -filelist ${work}/arm64e/objects/objects ${arg_STUBS}
        COMMAND ${ARM64E} finish ${arm64e}.linked ${arm64e}.finished ${file_name}
        COMMAND ${ARM64E} verify ${list} ${arm64e}.finished ${arm64e}.map
        COMMAND ${CMAKE_COMMAND} -E rename ${arm64e}.finished ${arm64e}
        DEPENDS ${list} ${objects} ${stub_files} ${exports} ${ARM64E} device_tools
        COMMENT "Linking ${file_name} for arm64e" VERBATIM COMMAND_EXPAND_LISTS)
    add_custom_command(OUTPUT ${arg_FILE}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${DEVICE_LIPO} -create ${arm64} ${arm64e} -output ${arg_FILE}
        DEPENDS ${arm64} ${arm64e}
        COMMENT "Joining both architectures in ${file_name}" VERBATIM)
    add_custom_target(${name} DEPENDS ${arg_FILE})
endfunction()

# What the bundle may import, in the order in which it names the libraries to the loader.
set(stub_lists libSystem libobjc libc++ CoreFoundation Foundation UIKit QuartzCore AudioToolbox Preferences
    OnBoardingKit libarchive libgcuniversal)
list(TRANSFORM stub_lists REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/device/stubs/\\1.txt" OUTPUT_VARIABLE DEVICE_STUB_LISTS)
corvex_device_stubs(DEVICE_STUBS ${DEVICE_STUB_LISTS})

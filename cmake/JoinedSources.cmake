# The sources of a target compiled several at once, as texts that tools/join puts together: what they include is read
# once for all, and code that they have in common is made once. From nothing that takes two thirds of the time, after a
# change more.
include(${CMAKE_CURRENT_LIST_DIR}/TargetsBelow.cmake)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(JOINED_AT_MOST 24)
set(JOINED_FOLDER ${CMAKE_BINARY_DIR}/joined)

# corvex_sources_to_join(RESULT TARGET): the paths of the target's sources that are compiled as all of its others are.
function(corvex_sources_to_join result target)
    get_target_property(sources ${target} SOURCES)
    get_target_property(folder ${target} SOURCE_DIR)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(TRANSFORM sources REPLACE "^([^/].*)$" "${folder}/\\1")
    set(found)
    foreach(source IN LISTS sources)
        get_source_file_property(options ${source} TARGET_DIRECTORY ${target} COMPILE_OPTIONS)
        get_source_file_property(generated ${source} TARGET_DIRECTORY ${target} GENERATED)
        if(NOT options AND NOT generated)
            list(APPEND found ${source})
        endif()
    endforeach()
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# corvex_join_sources_of(TARGET): texts take the place of the target's sources. What is to be put together is added to
# the properties JOINED_TEXTS and JOINED_SOURCES, and a line for each text to JOINED_LIST.
function(corvex_join_sources_of target)
    corvex_sources_to_join(sources ${target})
    list(LENGTH sources count)
    if(count LESS 2)
        return()
    endif()
    get_target_property(others ${target} SOURCES)
    get_target_property(folder ${target} SOURCE_DIR)
    list(TRANSFORM others REPLACE "^([^/$].*)$" "${folder}/\\1")
    list(REMOVE_ITEM others ${sources})
    set_property(GLOBAL APPEND PROPERTY JOINED_SOURCES ${sources})

    math(EXPR texts "(${count} + ${JOINED_AT_MOST} - 1) / ${JOINED_AT_MOST}")
    foreach(number RANGE 1 ${texts})
        math(EXPR from "${count} * (${number} - 1) / ${texts}")
        math(EXPR length "${count} * ${number} / ${texts} - ${from}")
        list(SUBLIST sources ${from} ${length} part)
        set(text ${JOINED_FOLDER}/${target}-${number}.cpp)
        list(APPEND others ${text})
        set_property(GLOBAL APPEND PROPERTY JOINED_TEXTS ${text})
        list(JOIN part " " part)
        set_property(GLOBAL APPEND_STRING PROPERTY JOINED_LIST "${text} ${part}\n")
    endforeach()
    set_target_properties(${target} PROPERTIES SOURCES "${others}")
    add_dependencies(${target} joined_sources)
endfunction()

# corvex_join_sources(FOLDER): for the targets of a folder and of those below it, when all of them are known, but for those
# that a generator looks for headers in, and those that say no by UNITY_BUILD. Texts that stay the same are left alone.
function(corvex_join_sources folder)
    corvex_targets_below(targets ${folder})
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        get_target_property(automoc ${target} AUTOMOC)
        get_target_property(together ${target} UNITY_BUILD)
        if(type MATCHES "^(STATIC_LIBRARY|OBJECT_LIBRARY|EXECUTABLE)$" AND NOT automoc AND NOT together STREQUAL "OFF")
            corvex_join_sources_of(${target})
        endif()
    endforeach()
    get_property(texts GLOBAL PROPERTY JOINED_TEXTS)
    get_property(sources GLOBAL PROPERTY JOINED_SOURCES)
    get_property(lines GLOBAL PROPERTY JOINED_LIST)
    file(CONFIGURE OUTPUT ${JOINED_FOLDER}/list CONTENT "${lines}" @ONLY)
    add_custom_command(OUTPUT ${texts}
        COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tools/join ${JOINED_FOLDER}/list ${PROJECT_SOURCE_DIR}
        DEPENDS ${JOINED_FOLDER}/list ${sources} ${PROJECT_SOURCE_DIR}/tools/join ${PROJECT_SOURCE_DIR}/tools/batches.py
        COMMENT "Putting sources together" VERBATIM)
    add_custom_target(joined_sources DEPENDS ${texts})
endfunction()

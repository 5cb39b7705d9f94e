# The system's headers, read by the compiler once for all targets that are compiled alike, instead of once a source.
# Sources name what they include all the same: static analysis reads them without this.
#
# g++ forgets here where the library's own headers switch a warning off, so that it may warn of what is right, where texts
# are put together with "+" at that; with append() it does not.
include(${CMAKE_CURRENT_LIST_DIR}/PrecompiledStandardHeaders.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/TargetsBelow.cmake)
set(PRECOMPILED_TESTS <filesystem> <fstream> <gtest/gtest.h> <random>)
set(PRECOMPILED_PICTURES <QGuiApplication> <QImage> <QJsonArray> <QJsonObject> <QPainter> <QPainterPath>)

# What a program, and what a library, is compiled differently for when it links it.
set(PRECOMPILED_PROGRAM_TRAITS corvex_portable corvex_unoptimised GTest::gtest Qt6::Core Qt6::Gui Qt6::Widgets)
set(PRECOMPILED_LIBRARY_TRAITS corvex_portable Qt6::Gui Qt6::Widgets)

# With clang the tree's own headers too that most come to include. To g++ they are no gain.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    file(GLOB PRECOMPILED_CONTRACT CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*/*.h)
    set(PRECOMPILED_VIEWS
        ${PROJECT_SOURCE_DIR}/tests/support/Phone.h
        ${PROJECT_SOURCE_DIR}/desktop/quartzcore/LayerPainter.h
        ${PROJECT_SOURCE_DIR}/desktop/uikit/scrolling/UIScrollViewPeer.h
        ${PROJECT_SOURCE_DIR}/desktop/uikit/views/UIViewPeer.h)
    list(APPEND PRECOMPILED_PROGRAM_TRAITS contract phone_support)
    list(APPEND PRECOMPILED_LIBRARY_TRAITS contract)
endif()

# corvex_linked_libraries(RESULT TARGET): the names of all that a target is compiled with, directly or through others.
function(corvex_linked_libraries result target)
    set(found)
    get_property(left TARGET ${target} PROPERTY LINK_LIBRARIES)
    while(NOT "${left}" STREQUAL "")
        list(POP_FRONT left next)
        if(next IN_LIST found)
            continue()
        endif()
        list(APPEND found ${next})
        if(TARGET ${next})
            get_property(further TARGET ${next} PROPERTY INTERFACE_LINK_LIBRARIES)
            list(APPEND left ${further})
        endif()
    endwhile()
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# corvex_precompiled_headers(RESULT TARGET): the target whose precompiled headers fit TARGET, made when it is the first
# of its kind. The compilers refuse them, with an error, where options differ.
function(corvex_precompiled_headers result target)
    get_target_property(type ${target} TYPE)
    set(kind LIBRARY)
    if(type STREQUAL "EXECUTABLE")
        set(kind PROGRAM)
    endif()
    corvex_linked_libraries(libraries ${target})
    set(traits)
    foreach(trait IN LISTS PRECOMPILED_${kind}_TRAITS)
        if(trait IN_LIST libraries)
            list(APPEND traits ${trait})
        endif()
    endforeach()
    string(TOLOWER "precompiled_for_${kind}_${traits}" name)
    string(MAKE_C_IDENTIFIER "${name}" name)
    set(${result} ${name} PARENT_SCOPE)
    if(TARGET ${name})
        return()
    endif()
    set(headers ${PRECOMPILED_STANDARD})
    if("GTest::gtest" IN_LIST traits)
        find_package(GTest REQUIRED)
        list(APPEND headers ${PRECOMPILED_TESTS})
    endif()
    if("Qt6::Gui" IN_LIST traits)
        find_package(Qt6 REQUIRED COMPONENTS Gui)
        list(APPEND headers ${PRECOMPILED_PICTURES})
    elseif("Qt6::Core" IN_LIST traits)
        find_package(Qt6 REQUIRED COMPONENTS Core)
    endif()
    if("Qt6::Widgets" IN_LIST traits)
        find_package(Qt6 REQUIRED COMPONENTS Widgets)
    endif()
    if("contract" IN_LIST traits)
        list(APPEND headers ${PRECOMPILED_CONTRACT})
    endif()
    if("phone_support" IN_LIST traits)
        list(APPEND headers ${PRECOMPILED_VIEWS})
    endif()
    set(source ${CMAKE_BINARY_DIR}/precompiled/${kind}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "int main() {}\n" @ONLY)
    if(kind STREQUAL "PROGRAM")
        add_executable(${name} EXCLUDE_FROM_ALL ${source})
    else()
        add_library(${name} STATIC EXCLUDE_FROM_ALL ${source})
    endif()
    target_link_libraries(${name} PRIVATE corvex_warnings ${traits})
    target_precompile_headers(${name} PRIVATE ${headers})
endfunction()

# corvex_precompile_headers(FOLDER): for the libraries and the tests of a folder and of those below it. Other programs
# and what is loaded at run time have a source or two each.
function(corvex_precompile_headers folder)
    corvex_targets_below(targets ${folder})
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        get_target_property(sources ${target} SOURCES)
        list(FILTER sources INCLUDE REGEX "\\.cpp$")
        list(LENGTH sources count)
        corvex_linked_libraries(libraries ${target})
        if(count EQUAL 0 OR NOT libraries MATCHES "corvex_(warnings|portable)"
                OR NOT (type MATCHES "^(STATIC|OBJECT)_LIBRARY$"
                    OR (type STREQUAL "EXECUTABLE" AND "GTest::gtest" IN_LIST libraries AND count GREATER 1)))
            continue()
        endif()
        corvex_precompiled_headers(precompiled ${target})
        target_precompile_headers(${target} REUSE_FROM ${precompiled})
    endforeach()
endfunction()

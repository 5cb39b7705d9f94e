# The C++ library's headers and the contract's, read by the compiler once for each of the device's architectures, instead
# of once a source. What CMake offers knows of one architecture. The compiler takes from a folder the file that fits, and
# refuses, with an error, where none does.
include(${CMAKE_CURRENT_LIST_DIR}/PrecompiledStandardHeaders.cmake)

set(DEVICE_PRECOMPILED ${CMAKE_BINARY_DIR}/precompiled/cmake_pch.pch)

# corvex_device_precompile_headers(): once, before any target takes them.
function(corvex_device_precompile_headers)
    set(folder ${CMAKE_BINARY_DIR}/precompiled)
    file(GLOB contract CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*/*.h)
    list(TRANSFORM contract REPLACE "(.+)" "\"\\1\"")
    set(lines ${PRECOMPILED_STANDARD} ${contract})
    list(TRANSFORM lines REPLACE "(.+)" "#include \\1\n")
    list(JOIN lines "" content)
    set(header ${folder}/common.h)
    file(CONFIGURE OUTPUT ${header} CONTENT "${content}" @ONLY)
    string(TOUPPER "CMAKE_CXX_FLAGS_${CMAKE_BUILD_TYPE}" build_type_flags)
    separate_arguments(optimisation UNIX_COMMAND "${${build_type_flags}}")
    set(read_headers ${CMAKE_CXX_COMPILER} --target=${DEVICE_TARGET} ${optimisation} ${DEVICE_HEADER_OPTIONS}
        ${DEVICE_CODE_OPTIONS} -I${PROJECT_SOURCE_DIR}/platform ${CMAKE_CXX23_STANDARD_COMPILE_OPTION}
        -fpch-instantiate-templates -x c++-header ${header})

    set(made)
    foreach(architecture IN LISTS DEVICE_ARCHITECTURES)
        set(file ${DEVICE_PRECOMPILED}/${architecture}.pch)
        add_custom_command(OUTPUT ${file}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${DEVICE_PRECOMPILED}
            COMMAND ${read_headers} -arch ${architecture} -MD -MT ${file} -MF ${folder}/${architecture}.d -o ${file}
            DEPENDS ${header} DEPFILE ${folder}/${architecture}.d
            COMMENT "Reading the common headers for ${architecture}" VERBATIM)
        list(APPEND made ${file})
    endforeach()
    add_custom_target(device_precompiled_headers DEPENDS ${made})
endfunction()

# corvex_device_take_precompiled_headers(TARGETS...): for libraries of bundles.
function(corvex_device_take_precompiled_headers)
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE "SHELL:-include-pch ${DEVICE_PRECOMPILED}")
        add_dependencies(${target} device_precompiled_headers)
    endforeach()
endfunction()

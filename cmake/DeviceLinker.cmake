# The linker of the device's bundle. What surrounds the link of arm64e relies on how this version behaves; the tests
# show whether another one does.
set(DEVICE_LINKER_VERSION 22.1.8 CACHE STRING "Version of ld64.lld-22 that the bundle may be linked with")
find_program(DEVICE_LINKER ld64.lld-22 REQUIRED)

execute_process(COMMAND ${DEVICE_LINKER} --version OUTPUT_VARIABLE version OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
if(NOT version MATCHES "LLD ${DEVICE_LINKER_VERSION}$")
    message(FATAL_ERROR "device: ${DEVICE_LINKER} is \"${version}\", but the link of arm64e was proven with LLD "
        "${DEVICE_LINKER_VERSION} alone. To prove it with this one, configure with -D DEVICE_LINKER_VERSION and run "
        "the tests of the preset \"device\"; when all pass, change the version in cmake/DeviceLinker.cmake.")
endif()

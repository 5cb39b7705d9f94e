# Programs for Linux on AArch64, made and run on this machine: they run the device's code in their own process.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

get_filename_component(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot ABSOLUTE)
if(NOT EXISTS ${CMAKE_SYSROOT}/lock)
    message(FATAL_ERROR "device-shipped: ${CMAKE_SYSROOT} is not there; run tools/setup shipped")
endif()
set(CMAKE_CXX_COMPILER clang++-22)
set(CMAKE_CXX_COMPILER_TARGET aarch64-linux-gnu)
find_program(CMAKE_OBJC_COMPILER clang-22 REQUIRED)
set(CMAKE_OBJC_COMPILER_TARGET aarch64-linux-gnu)
set(CMAKE_EXE_LINKER_FLAGS_INIT -fuse-ld=lld)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -fuse-ld=lld)

# A processor that has signed pointers.
find_program(AARCH64_EMULATOR qemu-aarch64 REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR env QEMU_LD_PREFIX=${CMAKE_SYSROOT} ${AARCH64_EMULATOR} -cpu max)

set(CMAKE_FIND_ROOT_PATH ${CMAKE_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

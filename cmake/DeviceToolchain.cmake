# Code for the device: every object is universal, compiled once for each of the device's architectures.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm64)

set(DEVICE_TARGET arm64-apple-ios15.0)
set(DEVICE_ARCHITECTURES arm64 arm64e)

set(CMAKE_CXX_COMPILER clang++-22)
set(CMAKE_CXX_COMPILER_TARGET ${DEVICE_TARGET})
set(CMAKE_AR llvm-ar-22)
set(CMAKE_RANLIB llvm-ranlib-22)
list(TRANSFORM DEVICE_ARCHITECTURES PREPEND "-arch " OUTPUT_VARIABLE flags)
list(JOIN flags " " CMAKE_CXX_FLAGS_INIT)
string(APPEND CMAKE_CXX_FLAGS_INIT " -fuse-lipo=llvm-lipo-22")

# Programs are linked by nobody here, so the compiler is tried without a link.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

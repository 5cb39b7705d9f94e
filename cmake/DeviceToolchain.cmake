# Code for the device: every object is universal, compiled once for each of the device's architectures.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm64)

set(DEVICE_TARGET arm64-apple-ios15.0)
set(DEVICE_ARCHITECTURES -arch arm64 -arch arm64e -fuse-lipo=llvm-lipo-22)

set(CMAKE_CXX_COMPILER clang++-22)
set(CMAKE_CXX_COMPILER_TARGET ${DEVICE_TARGET})
set(CMAKE_AR llvm-ar-22)
set(CMAKE_RANLIB llvm-ranlib-22)
list(JOIN DEVICE_ARCHITECTURES " " CMAKE_CXX_FLAGS_INIT)

# Programs are linked by nobody here, so the compiler is tried without a link.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

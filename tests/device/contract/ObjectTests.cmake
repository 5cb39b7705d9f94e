# What the contract says of objects: tested over the sources as they are compiled for this machine, and as code of the
# device.
set(DEVICE_OBJECT_TESTS AttachedValuesTest.cpp ClassTest.cpp MethodTest.cpp NSErrorTest.cpp NSObjectTest.cpp RefTest.cpp
    ThreadsTest.cpp UTF8LocaleTest.cpp WeakTest.cpp)
list(TRANSFORM DEVICE_OBJECT_TESTS PREPEND ${CMAKE_SOURCE_DIR}/tests/platform/)

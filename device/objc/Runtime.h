#pragma once

#include <cstddef>
#include <cstdint>

/// What the binding uses of an Objective-C runtime, Apple's or GNU's. Declared here and not taken from the
/// runtime's own headers, whose names `Class` and `Method` are the contract's too. This pair of files is all
/// that knows in what the two runtimes differ.
struct objc_object;
struct objc_class;
struct objc_selector;
struct objc_ivar;

using id = objc_object*;
using SEL = const objc_selector*;
using IMP = void (*)();

#ifdef __APPLE__
/// `BOOL`.
using ObjcBool = bool;
#else
using ObjcBool = unsigned char;
#endif

extern "C" {
objc_class* objc_getClass(const char* name);
objc_class* objc_allocateClassPair(objc_class* superclass, const char* name, std::size_t extraBytes);
void objc_registerClassPair(objc_class* added);
const char* class_getName(objc_class* of);
objc_class* class_getSuperclass(objc_class* of);
ObjcBool class_addIvar(objc_class* to, const char* name, std::size_t size, std::uint8_t alignmentLog2,
                       const char* types);
ObjcBool class_addMethod(objc_class* to, SEL selector, IMP implementation, const char* types);
objc_ivar* class_getInstanceVariable(objc_class* of, const char* name);
IMP class_getMethodImplementation(objc_class* of, SEL selector);
std::ptrdiff_t ivar_getOffset(objc_ivar* ivar);
objc_class* object_getClass(id object);
SEL sel_registerName(const char* name);
const char* sel_getName(SEL selector);

id objc_retain(id object);
void objc_release(id object);
id objc_autorelease(id object);
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);

id objc_initWeakOrNil(id* slot, id object); // null in the slot when the object's end has begun
id objc_loadWeakRetained(id* slot);
void objc_copyWeak(id* to, id* from);
void objc_moveWeak(id* to, id* from);
void objc_destroyWeak(id* slot);

id objc_getAssociatedObject(id owner, const void* key);
void objc_setAssociatedObject(id owner, const void* key, id value, std::uintptr_t policy);

// NOLINTBEGIN(*-reserved-identifier,*-redundant-declaration): the runtime's names; libc++ has them too
void* _Block_copy(const void* block);
void _Block_release(const void* block);
// NOLINTEND(*-reserved-identifier,*-redundant-declaration)
}

/// The function to call, as one of the message's own type, to send `selector` to `receiver`, which is not
/// null.
[[nodiscard]] IMP messageFunction(id receiver, SEL selector);

/// A class seen as the object that it is.
[[nodiscard]] inline id classObject(objc_class* of) {
    return reinterpret_cast<id>(of);
}

/// Keeps what is autoreleased meanwhile no longer than itself. For wherever C++ is entered from outside.
class AutoreleasePool {
public:
    AutoreleasePool() : pool_(objc_autoreleasePoolPush()) {}

    ~AutoreleasePool() { objc_autoreleasePoolPop(pool_); }

    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

private:
    void* const pool_;
};

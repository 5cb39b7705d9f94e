// What the bundle imports of the Objective-C runtime, and passes pointers to code through or is written for
// GNU's.

#include "CodePointers.h"
#include "ImportLists.h"
#include "MessageSending.h"
#include "RecordedClasses.h"
#include "Runtime.h"

#include <array>
#include <cstddef>

namespace {

ObjcBool addMethod(objc_class* to, SEL selector, IMP implementation, const char* types) {
    return class_addMethod(RecordedClasses::toRuntime(to), selector,
                           CodePointers::authenticated(implementation, "a method"), types);
}

IMP implementationOf(objc_class* of, SEL selector) {
    return CodePointers::signedFunction(
        class_getMethodImplementation(RecordedClasses::toRuntime(of), selector));
}

objc_class* classNamed(const char* name) {
    return RecordedClasses::toBundle(objc_getClass(name));
}

objc_class* classOf(id object) {
    return RecordedClasses::toBundle(object_getClass(RecordedClasses::toRuntime(object)));
}

objc_class* superclassOf(objc_class* of) {
    return RecordedClasses::toBundle(class_getSuperclass(RecordedClasses::toRuntime(of)));
}

const char* nameOf(objc_class* of) {
    return class_getName(RecordedClasses::toRuntime(of));
}

objc_ivar* variableOf(objc_class* of, const char* name) {
    return class_getInstanceVariable(RecordedClasses::toRuntime(of), name);
}

objc_class* makeClass(objc_class* superclass, const char* name, std::size_t extraBytes) {
    return objc_allocateClassPair(RecordedClasses::toRuntime(superclass), name, extraBytes);
}

const std::array<void*, 2> emptyCache{};

} // namespace

Imports runtimeImports() {
    static const std::array imports{Import{"__objc_empty_cache", &emptyCache},
                                    Import{"_class_addMethod", code(addMethod)},
                                    Import{"_class_getInstanceVariable", code(variableOf)},
                                    Import{"_class_getMethodImplementation", code(implementationOf)},
                                    Import{"_class_getName", code(nameOf)},
                                    Import{"_class_getSuperclass", code(superclassOf)},
                                    Import{"_objc_allocateClassPair", code(makeClass)},
                                    Import{"_objc_autorelease", code(objc_autorelease)},
                                    Import{"_objc_autoreleasePoolPop", code(objc_autoreleasePoolPop)},
                                    Import{"_objc_autoreleasePoolPush", code(objc_autoreleasePoolPush)},
                                    Import{"_objc_copyWeak", code(objc_copyWeak)},
                                    Import{"_objc_destroyWeak", code(objc_destroyWeak)},
                                    Import{"_objc_getAssociatedObject", code(objc_getAssociatedObject)},
                                    Import{"_objc_getClass", code(classNamed)},
                                    Import{"_objc_initWeakOrNil", code(objc_initWeakOrNil)},
                                    Import{"_objc_loadWeakRetained", code(objc_loadWeakRetained)},
                                    Import{"_objc_moveWeak", code(objc_moveWeak)},
                                    Import{"_objc_msgSend", code(sendMessage)},
                                    Import{"_objc_release", code(objc_release)},
                                    Import{"_objc_retain", code(objc_retain)},
                                    Import{"_objc_setAssociatedObject", code(objc_setAssociatedObject)},
                                    Import{"_object_getClass", code(classOf)}};
    return imports;
}

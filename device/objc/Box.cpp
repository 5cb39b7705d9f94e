#include "Box.h"

#include "Message.h"
#include "PublishedClasses.h"

namespace {

constexpr auto boxClassName = "CorvexBox";
constexpr auto contentVariableName = "_content";

BoxContent*& contentOf(id box) {
    static const auto offset =
        ivar_getOffset(class_getInstanceVariable(object_getClass(box), contentVariableName));
    return *reinterpret_cast<BoxContent**>(reinterpret_cast<char*>(box) + offset);
}

void deallocBox(id self, SEL selector) {
    delete contentOf(self);
    auto* const inherited = class_getMethodImplementation(objc_getClass("NSObject"), selector);
    reinterpret_cast<void (*)(id, SEL)>(inherited)(self, selector);
}

id copyBox(id self, SEL /*selector*/) {
    return objc_retain(self);
}

objc_class* makeBoxClass() {
    auto* const made = newClass(boxClassName, objc_getClass("NSObject"));
    class_addIvar(made, contentVariableName, sizeof(BoxContent*), 3, "^v");
    class_addMethod(made, sel_registerName("dealloc"), reinterpret_cast<IMP>(&deallocBox), "v@:");
    class_addMethod(made, sel_registerName("copy"), reinterpret_cast<IMP>(&copyBox), "@@:");
    objc_registerClassPair(made);
    return made;
}

objc_class* boxClass() {
    static auto* const shared = makeBoxClass();
    return shared;
}

} // namespace

id makeBox(std::unique_ptr<BoxContent> content) {
    const id box = send<"+[NSObject new]", id>(classObject(boxClass()));
    contentOf(box) = content.release();
    return box;
}

BoxContent* boxContent(id object) {
    return object_getClass(object) == boxClass() ? contentOf(object) : nullptr;
}

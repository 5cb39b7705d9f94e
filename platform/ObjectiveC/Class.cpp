#include "ObjectiveC/Class.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/ClassTable.h"

#include <algorithm>

Class::Class(std::string_view name, const char* type, const char* baseType, Constructor construct,
             InstanceTest isInstance, std::initializer_list<Method> methods)
    : name_(name),
      type_(type),
      baseType_(baseType),
      construct_(construct),
      isInstance_(isInstance),
      methods_(methods) {
    if (!ClassTable::shared().add(*this))
        NSLog("Class %@ is stated twice; the second is refused.", name_);
}

Class::~Class() {
    ClassTable::shared().remove(*this);
}

const Class* Class::superclass() const {
    return baseType_ != type_ ? ClassTable::shared().ofType(baseType_) : nullptr;
}

bool Class::isSubclassOf(const Class& other) const {
    const Class* stated = this;
    while (stated != nullptr && stated != &other)
        stated = stated->superclass();
    return stated != nullptr;
}

const Method* Class::instanceMethod(std::string_view selector) const {
    for (const Class* stated = this; stated != nullptr; stated = stated->superclass()) {
        const auto found = std::ranges::find(stated->methods_, selector, &Method::selector);
        if (found != stated->methods_.end())
            return &*found;
    }
    return nullptr;
}

Ref<NSObject> Class::allocate() const {
    return construct_ != nullptr ? adopt(construct_()) : nullptr;
}

Ref<NSObject> Class::create() const {
    auto object = allocate();
    return object && object->init() ? object : nullptr;
}

const Class* NSClassFromString(std::string_view name) {
    return ClassTable::shared().named(name);
}

#pragma once

#include "ObjectiveC/Class.h"
#include "Runtime.h"

#include <string>

/// Which Objective-C classes the classes of the class table are. One of ours is not known by its name, which
/// other code in the process may have given to a class of its own. Any thread.

/// A new class that is still to be registered. When the name is taken it gets another one that begins with
/// it, which is logged. Null when the runtime refuses it.
[[nodiscard]] objc_class* newClass(const std::string& name, objc_class* base);

/// From now on objects of that class are ours: the place for its C++ half is in the object.
void markPublished(const Class& stated, objc_class* published);

/// The class that a stated one is published as, or the frameworks' own class; null while there is none.
[[nodiscard]] objc_class* runtimeClass(const Class& stated);

/// The class of the table that a class of the runtime stands for; null when there is none.
[[nodiscard]] const Class* statedClass(objc_class* of);

/// The nearest class of the object that is published by us; null when there is none.
[[nodiscard]] objc_class* publishedClassOf(id object);

/// The function to call for what the frameworks do for a message: for an object of a published class what
/// that inherits from them, for any other what it does by itself.
[[nodiscard]] IMP inheritedImplementation(id object, SEL selector);

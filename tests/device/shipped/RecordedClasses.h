#pragma once

#include "Runtime.h"

/// On the device a class is its record in the bundle; here it is another one, which was made as the record
/// says. What the bundle hears of it is the record, and what the runtime hears is the class. The same for
/// metaclasses; all other classes are one.
class RecordedClasses {
public:
    static void add(objc_class* record, objc_class* made);

    [[nodiscard]] static objc_class* toBundle(objc_class* of);
    [[nodiscard]] static objc_class* toRuntime(objc_class* of);
    [[nodiscard]] static id toRuntime(id object);
};

#include "RecordedClasses.h"

#include <vector>

namespace {

struct Pair {
    objc_class* record;
    objc_class* made;
};

std::vector<Pair>& pairs() {
    static std::vector<Pair> all;
    return all;
}

} // namespace

void RecordedClasses::add(objc_class* record, objc_class* made) {
    pairs().push_back({.record = record, .made = made});
}

objc_class* RecordedClasses::toBundle(objc_class* of) {
    for (const auto& pair : pairs()) {
        if (pair.made == of)
            return pair.record;
    }
    return of;
}

objc_class* RecordedClasses::toRuntime(objc_class* of) {
    for (const auto& pair : pairs()) {
        if (pair.record == of)
            return pair.made;
    }
    return of;
}

id RecordedClasses::toRuntime(id object) {
    return classObject(toRuntime(reinterpret_cast<objc_class*>(object)));
}

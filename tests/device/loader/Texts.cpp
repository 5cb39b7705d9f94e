#include "Texts.h"

bool areEqual(const char* left, const char* right) {
    return haveEqualStarts(left, right, ~static_cast<size_t>(0));
}

bool haveEqualStarts(const char* left, const char* right, size_t longest) {
    for (size_t i = 0; i < longest; ++i) {
        if (left[i] != right[i])
            return false;
        if (left[i] == 0)
            break;
    }
    return true;
}

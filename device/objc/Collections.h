#pragma once

#include "Runtime.h"

/// Arrays of objects.

[[nodiscard]] std::uint64_t countOf(id collection);
[[nodiscard]] id objectAt(id array, std::uint64_t index);

/// An autoreleased array that can be changed, empty so far.
[[nodiscard]] id emptyArray();
void addTo(id array, id object);

/// An autoreleased array of what `toObject` makes of each element; what it makes null of is left out.
template <class Elements, class ToObject>
[[nodiscard]] id arrayOf(const Elements& elements, ToObject toObject) {
    const id array = emptyArray();
    for (const auto& element : elements) {
        if (const id object = toObject(element); object != nullptr)
            addTo(array, object);
    }
    return array;
}

#pragma once

#include "ObjectiveC/Weak.h"
#include "accessibility/AccessibilityElement.h"

#include <string>
#include <vector>

/// The elements of the screen as assistive programs were told of them last. Part of the window.
class ToldElements {
public:
    enum class Change {
        Elements, ///< which there are, or in which order
        Name,
        Value
    };

    /// What is to be told.
    struct News {
        Change change;
        Ref<UIView> view; ///< of the element; empty for `Elements`

        bool operator==(const News&) const = default;
    };

    /// Takes over how the elements are now. \returns what is otherwise than before, from the whole to the
    /// single
    [[nodiscard]] std::vector<News> update(const std::vector<AccessibilityElement>& elements);

private:
    struct Told {
        Weak<UIView> view;
        std::string label;
        std::string value;
    };

    std::vector<Told> told_;
};

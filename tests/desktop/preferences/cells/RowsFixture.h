#pragma once

#include "Foundation/NSDictionary.h"
#include "PageFixture.h"
#include "accessibility/AccessibilityElement.h"
#include "screen/Presentations.h"
#include "text/UITextFieldPeer.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// A page of rows with what stands in them, and what of them is on the disk.
class RowsFixture : public PageFixture {
protected:
    using PageFixture::PageFixture;

    /// What the domain's file holds under a key.
    [[nodiscard]] static std::optional<PropertyList> written(const std::string& key);

    /// The first view of a class in a row, which must have one.
    template <class T>
    [[nodiscard]] T& viewIn(const std::string& id) const {
        auto* const found = dynamic_cast<T*>(findIn<T>(cell(id)));
        if (found == nullptr)
            throw std::runtime_error("there is no such view in row " + id);
        return *found;
    }

    [[nodiscard]] UITextFieldPeer& fieldOf(const std::string& id) const {
        return peerOf<UITextFieldPeer>(viewIn<UITextField>(id));
    }

    /// The elements of a row for those who do not see it, as "label=value" each.
    [[nodiscard]] std::vector<std::string> elementsOf(const std::string& id) const;
    [[nodiscard]] std::vector<AccessibilityRole> rolesOf(const std::string& id) const;

    /// What is presented on top; null when nothing is.
    [[nodiscard]] Presented* sheet() { return screen.presentations().top(); }

    /// What the sheet calls all that is in it.
    [[nodiscard]] std::vector<std::string> namesOnSheet();

    /// What the sheet calls so, which must be there.
    [[nodiscard]] AccessibilityElement elementOnSheet(const std::string& label);

    /// Where the middle of something is on the screen.
    [[nodiscard]] static CGPoint middleOf(const UIView& view);

    /// An XML array of texts, or of other values.
    [[nodiscard]] static std::string texts(const std::string& key, const std::vector<std::string>& texts);
    [[nodiscard]] static std::string list(const std::string& key, const std::string& xml);

private:
    template <class T>
    [[nodiscard]] static UIView* findIn(UIView& view) {
        if (dynamic_cast<T*>(&view) != nullptr)
            return &view;
        for (const auto& subview : view.peer().subviews()) {
            if (auto* const found = findIn<T>(*subview))
                return found;
        }
        return nullptr;
    }
};

#pragma once

#include "Phone.h"
#include "Preferences/PSListController.h"
#include "Preferences/PSTableCell.h"
#include "UIKit/UIControl.h"
#include "UIKit/UINavigationController.h"
#include "specifiers/DesktopSpecifier.h"

#include <string>
#include <vector>

/// A page of rows that a test describes, which keeps the buttons that are to open other pages.
class CellPage final : public PSListController {
public:
    [[nodiscard]] Specifiers specifiers() override { return cachedSpecifiers(); }

    void openController(const Ref<UIControl>& sender) { opened.push_back(sender); }

    std::vector<Ref<UIControl>> opened;
};

/// A phone, and a page of its Settings whose rows have cells of the pane's own.
class CellFixture : public Phone {
protected:
    using Properties = PropertyList::Dictionary;

    /// \param className of the rows' cells
    explicit CellFixture(std::string className, const Screen::Options& options = {})
        : Phone(options),
          className_(std::move(className)) {}

    /// A row of the page, which gets its messages.
    [[nodiscard]] Ref<DesktopSpecifier> row(Properties properties) const;

    /// A new cell for a row, made as the framework makes it.
    [[nodiscard]] Ref<PSTableCell> cellFor(const Properties& properties) const;

    /// Shows the page with one row, on a navigation controller. \returns the row's cell
    Ref<PSTableCell> showRow(const Properties& properties);

    /// The views of a class in a view, those that lie in front last.
    template <class T>
    [[nodiscard]] static std::vector<Ref<T>> allIn(const UIView& view) {
        std::vector<Ref<T>> found;
        for (const auto& subview : view.subviews()) {
            if (auto typed = dynamicCast<T>(subview))
                found.push_back(std::move(typed));
            for (auto& inner : allIn<T>(*subview))
                found.push_back(std::move(inner));
        }
        return found;
    }

    Ref<CellPage> page = make<CellPage>();
    Ref<UINavigationController> navigation = make<UINavigationController>();

private:
    std::string className_;
};

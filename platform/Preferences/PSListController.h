#pragma once

#include "Foundation/NSIndexPath.h"
#include "Foundation/PropertyList.h"
#include "Preferences/PSSpecifier.h"
#include "UIKit/UITableView.h"
#include "UIKit/UIViewController.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

/// A page of rows. The framework asks it for its specifiers, makes a cell for each, and reads and writes the
/// rows' values through the page.
class PSListController : public UIViewController {
public:
    using Specifiers = std::vector<Ref<PSSpecifier>>;

    PSListController();

    /// The rows of the page. A page overrides this to load them once and keep them with
    /// `setCachedSpecifiers`; asked often.
    [[nodiscard]] virtual Specifiers specifiers();

    /// The rows that the framework keeps for the page; none until the page has set them.
    [[nodiscard]] Specifiers cachedSpecifiers() const;
    void setCachedSpecifiers(Specifiers specifiers);

    /// The rows of the list "<name>.plist" among the resources of the page's bundle, in their order. The
    /// rows' actions are sent to `target`. None when there is no such list or it cannot be read.
    [[nodiscard]] Specifiers loadSpecifiersFromPlistName(std::string_view name, NSObject& target);

    /// Asks for the specifiers anew and shows them.
    virtual void reloadSpecifiers();

    /// The value of a row, from the preference domain and key that it names, else the row's default. A page
    /// overrides this to keep its values elsewhere.
    [[nodiscard]] virtual std::optional<PropertyList> readPreferenceValue(PSSpecifier& specifier);
    virtual void setPreferenceValue(const std::optional<PropertyList>& value, PSSpecifier& specifier);

    /// The row of that identifier; empty when there is none.
    [[nodiscard]] Ref<PSSpecifier> specifierForID(std::string_view identifier);

    /// The row that stands there in the table; empty when there is none.
    [[nodiscard]] Ref<PSSpecifier> specifierAtIndexPath(NSIndexPath indexPath);

    /// A row's height in points, 0 for a row that is hidden; `UITableViewAutomaticDimension` for what suits
    /// its cell. Asked when rows are first shown, when their cells are made, and whenever the table asks for
    /// all heights anew. By default the height that the row names, else what suits its cell.
    [[nodiscard]] virtual double heightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath);

    /// What shows the rows; made with the view.
    [[nodiscard]] Ref<UITableView> table();

protected:
    explicit PSListController(std::unique_ptr<UIViewControllerPeer> peer);
};

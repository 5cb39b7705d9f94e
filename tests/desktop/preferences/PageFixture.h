#pragma once

#include "ListRows.h"
#include "PSListControllerPeer.h"
#include "Phone.h"
#include "UIKit/UINavigationController.h"
#include "tables/UITableViewCellPeer.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

/// A page of the list "Rows" of the test bundle, which writes down what happens to it.
class ListedPage : public PSListController {
public:
    [[nodiscard]] Specifiers specifiers() override;
    [[nodiscard]] double heightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath) override;

    void tapped(const Ref<PSSpecifier>& specifier);
    void tappedPlainly();
    [[nodiscard]] std::optional<PropertyList> ownValue(const Ref<PSSpecifier>& specifier);
    void setOwnValue(const std::optional<PropertyList>& value, const Ref<PSSpecifier>& specifier);

    [[nodiscard]] std::optional<PropertyList> choiceValues(const Ref<PSSpecifier>& specifier);
    [[nodiscard]] std::optional<PropertyList> choiceTitles(const Ref<PSSpecifier>& specifier);

    std::vector<std::string> events;
    std::function<void()> tapAction = [] {}; ///< called by `tapped`
    std::map<std::string, double> heights;   ///< the page's own answers, by the rows' identifiers
    std::vector<std::string> heightsAsked;
    std::size_t loads = 0;
};

/// A device with a test bundle, whose list a test writes, and a phone's screen that shows its page.
class PageFixture : public Phone {
protected:
    static constexpr auto bundlePath = "/var/jb/Library/PreferenceBundles/Test.bundle";
    static constexpr auto domain = "com.example.test";

    explicit PageFixture(const TestDevice::Settings& settings = {});
    ~PageFixture() override;

    /// Writes the list "Rows" of those items, each the inside of an XML dictionary.
    void writeList(const std::vector<std::string>& items, const std::string& title = "Rows");
    /// An XML key with a text, a boolean or any other value.
    [[nodiscard]] static std::string text(const std::string& key, const std::string& text);
    [[nodiscard]] static std::string yes(const std::string& key);
    [[nodiscard]] static std::string no(const std::string& key);
    [[nodiscard]] static std::string value(const std::string& key, const std::string& xml);

    /// The inside of a row of a kind, by its id.
    [[nodiscard]] static std::string row(const std::string& cell, const std::string& id,
                                         const std::string& more = {});
    /// One that keeps its value in the domain, under its id.
    [[nodiscard]] static std::string keptRow(const std::string& cell, const std::string& id,
                                             const std::string& more = {});

    /// Shows a new page.
    void show();
    /// Taps the middle of a row.
    void tap(const std::string& id);

    [[nodiscard]] PSListControllerPeer& peer() const { return peerOf<PSListControllerPeer>(*page_); }

    [[nodiscard]] DesktopSpecifier& specifier(const std::string& id) const { return specifierOf(*page_, id); }

    [[nodiscard]] ListRow listRow(const std::string& id) const { return rowOf(*page_, id); }

    [[nodiscard]] UITableViewCell& cell(const std::string& id) const { return cellOf(*page_, id); }

    [[nodiscard]] UITableViewCellPeer& cellPeer(const std::string& id) const {
        return peerOf<UITableViewCellPeer>(cell(id));
    }

    /// The lines since the last call.
    [[nodiscard]] std::vector<std::string> log() { return device.log().take(); }

    Ref<ListedPage> page_;
    Ref<UINavigationController> navigation_;
};

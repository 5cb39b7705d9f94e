#pragma once

#include "ListRows.h"
#include "PSListControllerPeer.h"
#include "Phone.h"
#include "UIKit/UINavigationController.h"
#include "tables/UITableViewCellPeer.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The bundle of the pane on a phone, with lists that a test writes, and one of its pages on the screen.
class PagesFixture : public Phone {
protected:
    static constexpr auto domain = "com.example.test";

    PagesFixture();
    ~PagesFixture() override;

    /// Writes a list of those items, each the inside of an XML dictionary.
    void writeList(const std::string& name, const std::vector<std::string>& items);

    /// The inside of a row of a kind, labelled by its id.
    [[nodiscard]] static std::string row(const std::string& cell, const std::string& id,
                                         const std::string& more = {});
    /// A switch that keeps its value in the domain, under its id.
    [[nodiscard]] static std::string switchRow(const std::string& id, const std::string& more = {});
    /// A row of text that depends on others by that rule.
    [[nodiscard]] static std::string ruledRow(const std::string& id, const std::string& rule,
                                              const std::string& more = {});

    /// A new page, made by its class's name and shown.
    void open(const std::string& className);

    static void store(const PropertyList& value, std::string_view key);
    [[nodiscard]] static std::optional<PropertyList> stored(std::string_view key);

    /// Taps the switch of a row.
    void flip(const std::string& id);

    [[nodiscard]] PSListControllerPeer& peer() const { return peerOf<PSListControllerPeer>(*page); }

    [[nodiscard]] UITableViewPeer& table() const { return peer().table(); }

    [[nodiscard]] DesktopSpecifier& specifier(const std::string& id) const { return specifierOf(*page, id); }

    [[nodiscard]] ListRow listRow(const std::string& id) const { return rowOf(*page, id); }

    [[nodiscard]] UITableViewCell& cell(const std::string& id) const { return cellOf(*page, id); }

    [[nodiscard]] double heightOf(const std::string& id) const { return listRow(id).height; }

    /// Where a row's cell is seen now, on its way.
    [[nodiscard]] CGRect shownFrame(const std::string& id) const;
    /// Whether what does not fit into a row's cell is not seen.
    [[nodiscard]] bool isCutOff(const std::string& id) const;

    Ref<PSListController> page;
    Ref<UINavigationController> navigation;
};

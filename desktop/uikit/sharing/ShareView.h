#pragma once

#include "UIKit/UITableView.h"
#include "sharing/ShareHeaderView.h"
#include "tables/TableContent.h"

#include <functional>
#include <string>
#include <vector>

/// What a share sheet shows: what is shared, and what can be done with it. Made by the sheet's peer.
class ShareView final : public UIView, public TableContent {
public:
    struct Activity {
        std::string title;
        std::string symbol;
        std::function<void()> perform;
    };

    ShareView(const Ref<ShareHeaderView>& header, std::vector<Activity> activities);
    ~ShareView() override;
    ShareView(const ShareView&) = delete;
    ShareView& operator=(const ShareView&) = delete;

    /// That all of it needs, in points, for so many activities.
    [[nodiscard]] static double heightFor(std::size_t activities);

    // UIView:
    void layoutSubviews() override;

    // TableContent:
    [[nodiscard]] std::size_t sectionCount() const override { return 1; }

    [[nodiscard]] std::size_t rowCount(std::size_t /*section*/) const override { return activities_.size(); }

    [[nodiscard]] std::optional<double> rowHeight(IndexPath row) override;
    [[nodiscard]] Ref<UITableViewCell> cellForRow(IndexPath row) override;
    [[nodiscard]] TableCaption header(std::size_t section) override;
    [[nodiscard]] TableCaption footer(std::size_t section) override;

    [[nodiscard]] bool isSelectable(IndexPath /*row*/) override { return true; }

    void didSelectRow(IndexPath row) override;

private:
    const Ref<ShareHeaderView> header_;
    const Ref<UITableView> table_ = make<UITableView>();
    const std::vector<Activity> activities_;
};

#pragma once

#include "OBBulletedListItem.h"

#include <vector>

/// The items of a welcome page, one below the other. Made by the page's view.
class OBBulletedList final : public UIView {
public:
    void addItem(const Ref<OBBulletedListItem>& item);

    [[nodiscard]] const std::vector<Ref<OBBulletedListItem>>& items() const { return items_; }

    /// In points.
    [[nodiscard]] double heightForWidth(double width) const;

    // UIView:
    void layoutSubviews() override;

private:
    std::vector<Ref<OBBulletedListItem>> items_;
};

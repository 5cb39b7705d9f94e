#pragma once

#include "OBBulletedList.h"
#include "OBHeaderView.h"
#include "UIKit/UIScrollView.h"

/// The view of a welcome page: its header and its list, which scroll together. Made by the page's controller.
class WelcomeView final : public UIView {
public:
    WelcomeView();

    [[nodiscard]] OBHeaderView& header() const { return *header_; }

    [[nodiscard]] OBBulletedList& list() const { return *list_; }

    [[nodiscard]] UIScrollView& scrollView() const { return *scroll_; }

    void setHeaderContent(const OBHeaderView::Content& content);
    void addItem(const Ref<OBBulletedListItem>& item);

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UIScrollView> scroll_;
    Ref<OBHeaderView> header_;
    Ref<OBBulletedList> list_;
};

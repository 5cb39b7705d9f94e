#pragma once

#include "UIKit/UINavigationItem.h"

#include <functional>
#include <string>
#include <vector>

/// What a navigation bar shows for one controller, as the bar reads it. Tells whoever shows it of changes.
class DesktopNavigationItem final : public UINavigationItem {
public:
    enum class LargeTitle { Automatic, Always, Never };

    [[nodiscard]] const std::string& title() const { return title_; }

    void setTitle(std::string title);

    [[nodiscard]] const Ref<UIView>& titleView() const { return titleView_; }

    /// The size that the title view had when it was set, which it keeps; where that is nothing, the view has
    /// its intrinsic one.
    [[nodiscard]] CGSize titleViewSize() const { return titleViewSize_; }

    [[nodiscard]] const std::vector<Ref<UIBarButtonItem>>& leftItems() const { return leftItems_; }

    void setLeftBarButtonItems(std::vector<Ref<UIBarButtonItem>> items);

    [[nodiscard]] const std::vector<Ref<UIBarButtonItem>>& rightItems() const { return rightItems_; }

    [[nodiscard]] LargeTitle largeTitle() const { return largeTitle_; }

    void setLargeTitle(LargeTitle mode);

    /// Called after each change; empty for nobody.
    void setObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    // UINavigationItem:
    void setTitleView(const Ref<UIView>& view) override;
    void setLeftBarButtonItem(const Ref<UIBarButtonItem>& item) override;
    void setRightBarButtonItem(const Ref<UIBarButtonItem>& item) override;
    void setRightBarButtonItems(std::vector<Ref<UIBarButtonItem>> items) override;

private:
    void changed();

    std::string title_;
    Ref<UIView> titleView_;
    CGSize titleViewSize_;
    std::vector<Ref<UIBarButtonItem>> leftItems_;
    std::vector<Ref<UIBarButtonItem>> rightItems_;
    LargeTitle largeTitle_ = LargeTitle::Automatic;
    std::function<void()> observer_;
};

#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIView.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A view that is known to the class table, counts itself, and does what tests give it to do.
class CountedView : public UIView {
public:
    CountedView() { ++alive; }

    ~CountedView() override {
        --alive;
        if (atEnd)
            atEnd();
    }

    void layoutSubviews() override {
        UIView::layoutSubviews();
        ++layouts;
        if (atLayout)
            atLayout();
    }

    [[nodiscard]] bool initWithFrame(const CGRect& frame) override {
        if (atInit)
            atInit(*this);
        return frame.size.height != 13 && UIView::initWithFrame(frame) && frame.size.width != 13;
    }

    [[nodiscard]] std::int64_t layoutCount() const { return layouts; }

    void setScale(double scale) {
        scale_ = scale;
        if (atLayout)
            atLayout();
    }

    [[nodiscard]] double scale() const { return scale_; }

    void setPair(bool on, bool animated) { pair = (on ? 1 : 0) + (animated ? 2 : 0); }

    [[nodiscard]] std::int64_t takeMixed(double first, const std::optional<std::string>& text, bool flag,
                                         double second) {
        mixed = {first, second};
        mixedText = text;
        pair = flag ? 1 : 0;
        return pair;
    }

    [[nodiscard]] std::optional<std::string> echo(const std::optional<std::string>& text) const {
        return text;
    }

    [[nodiscard]] std::optional<PropertyList> echoValue(const std::optional<PropertyList>& value) const {
        return value;
    }

    [[nodiscard]] Ref<UIView> fresh() const { return make<UIView>(); }

    void watch(const Ref<UIView>& view) { watched = Weak<UIView>(view); }

    [[nodiscard]] std::vector<Ref<UIView>> twice(const Ref<UIView>& view) const { return {view, view}; }

    std::int64_t layouts = 0;
    int pair = 0;
    std::pair<double, double> mixed;
    std::optional<std::string> mixedText;
    std::function<void()> atEnd;
    std::function<void()> atLayout;
    Weak<UIView> watched;

    static inline int alive = 0; ///< how many there are
    static inline std::function<void(CountedView&)> atInit;

private:
    double scale_ = 1;
};

/// Derived from a class that is published too.
class DerivedView final : public CountedView {
public:
    void layoutSubviews() override {
        CountedView::layoutSubviews();
        layouts += 10;
    }
};

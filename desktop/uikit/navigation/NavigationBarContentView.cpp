#include "navigation/NavigationBarContentView.h"

#include "AnimationGroup.h"
#include "CALayerPeer.h"
#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "controls/UIControlPeer.h"
#include "navigation/NavigationPageView.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace {

const Class classObject = Class::define<NavigationBarContentView, UIView>("NavigationBarContentView");

constexpr auto titleFontSize = 17.0;
constexpr auto highestTitleView = 44.0;
constexpr auto backgroundFade = 8.0; ///< points of overlap until the background is all there
constexpr auto titleFadeTime = std::chrono::milliseconds(200);

} // namespace

NavigationBarContentView::NavigationBarContentView(const Ref<DesktopNavigationItem>& item, Options options)
    : item_(item),
      options_(std::move(options)),
      titleHolder_(make<UIView>()),
      smallTitleIsShown_(!options_.hasLargeTitle) {
    titleHolder_->layer().peer().keepsPicture = true;
    item_->setObserver([content = Weak<NavigationBarContentView>(this)] {
        if (const auto living = content.strong())
            living->rebuild();
    });
    rebuild();
}

void NavigationBarContentView::setRowHeight(double points) {
    rowHeight_ = points;
    peer().setNeedsLayout();
}

void NavigationBarContentView::rebuild() {
    for (const auto& old : std::vector(peer().subviews()))
        old->peer().removeFromSuperview();
    if (options_.hasLargeTitle) {
        largeTitle_ = make<LargeTitleView>();
        largeTitle_->setTitle(item_->title());
        largeTitle_->setOverlap(overlap_);
        addSubview(largeTitle_);
    }
    buildTitle();
    if (options_.backTitle) {
        back_ = make<BackButtonView>(*options_.backTitle);
        peerOf<UIControlPeer>(*back_).addHandler(UIControlEvents::TouchUpInside, options_.goBack);
        addSubview(back_);
    }
    left_ = makeButtons(item_->leftItems());
    right_ = makeButtons(item_->rightItems());
    updateTitleAlpha();
    peer().setNeedsLayout();
}

void NavigationBarContentView::buildTitle() {
    for (const auto& old : std::vector(titleHolder_->peer().subviews()))
        old->peer().removeFromSuperview();
    title_ = item_->titleView();
    titleHolder_->peer().setAccessibility(
        {.label = item_->title(), .value = {}, .role = AccessibilityRole::None, .isElement = false});
    if (!title_) {
        const auto label = make<UILabel>();
        label->setText(item_->title());
        label->setFont(DesktopFont::font(titleFontSize, FontWeight::Semibold));
        label->setTextAlignment(NSTextAlignment::Center);
        label->peer().setAccessibility(
            {.label = item_->title(), .value = {}, .role = AccessibilityRole::Header, .isElement = true});
        title_ = label;
    }
    titleHolder_->addSubview(title_);
    addSubview(titleHolder_);
}

std::vector<Ref<BarButtonView>>
NavigationBarContentView::makeButtons(const std::vector<Ref<UIBarButtonItem>>& items) {
    std::vector<Ref<BarButtonView>> buttons;
    for (const auto& item : items) {
        if (const auto known = dynamicCast<DesktopBarButtonItem>(item)) {
            buttons.push_back(make<BarButtonView>(known));
            buttons.back()->layer().peer().keepsPicture = true;
            addSubview(buttons.back());
        }
    }
    return buttons;
}

double NavigationBarContentView::height() const {
    const auto extra = LargeTitleView::height - overlap_;
    return rowHeight_ + (options_.hasLargeTitle ? std::max(0.0, extra) : 0);
}

double NavigationBarContentView::backgroundAlpha() const {
    const auto beneath = overlap_ - (options_.hasLargeTitle ? LargeTitleView::height : 0);
    return std::clamp(beneath / backgroundFade, 0.0, 1.0);
}

void NavigationBarContentView::setOverlap(double points) {
    overlap_ = points;
    if (!largeTitle_)
        return;
    largeTitle_->setOverlap(points);
    const auto isShown = points >= LargeTitleView::hiddenFrom;
    if (std::exchange(smallTitleIsShown_, isShown) != isShown)
        AnimationGroup::run({.duration = titleFadeTime}, [this] { updateTitleAlpha(); }, {});
    peer().setNeedsLayout();
}

void NavigationBarContentView::updateTitleAlpha() {
    const auto isShown = smallTitleIsShown_ || item_->titleView();
    titleHolder_->setAlpha(isShown ? 1 - std::abs(phase_) : 0);
}

NavigationBarParts NavigationBarContentView::parts() const {
    const auto traits = peer().traits();
    NavigationBarParts parts;
    parts.bar = {bounds().size.width, rowHeight_};
    parts.margin = barMargin(traits);
    parts.hasBackButton = static_cast<bool>(back_);
    if (back_)
        parts.backTitles = back_->titleWidths();
    for (const auto& button : left_)
        parts.left.push_back(button->contentWidth());
    for (const auto& button : right_)
        parts.right.push_back(button->contentWidth());
    parts.title = titleSize();
    parts.displayScale = traits.displayScale;
    return parts;
}

CGSize NavigationBarContentView::titleSize() const {
    const auto& view = title_->peer();
    if (!item_->titleView())
        return view.sizeThatFits({});
    auto size = item_->titleViewSize();
    if (size.width <= 0)
        size.width = view.intrinsicWidth().value_or(view.sizeThatFits({}).width);
    if (size.height <= 0)
        size.height = view.intrinsicHeight().value_or(view.sizeThatFits({}).height);
    size.height = std::min(size.height, highestTitleView);
    return size;
}

void NavigationBarContentView::layoutSubviews() {
    UIView::layoutSubviews();
    if (CGRectIsEmpty(bounds()))
        return;
    const auto phase = phase_;
    setPhase(0);
    const auto places = placesFor(parts());
    peer().place(*titleHolder_, places.title);
    title_->setFrame({{}, places.title.size});
    if (back_) {
        back_->showTitle(places.backTitle);
        peer().place(*back_, places.back);
        back_->peer().layoutIfNeeded();
    }
    for (std::size_t index = 0; index < left_.size(); ++index)
        peer().place(*left_[index], places.left[index]);
    for (std::size_t index = 0; index < right_.size(); ++index)
        peer().place(*right_[index], places.right[index]);
    if (largeTitle_) {
        largeTitle_->setFrame(
            CGRectMake(0, rowHeight_, bounds().size.width, std::max(0.0, LargeTitleView::height - overlap_)));
    }
    setPhase(phase);
}

void NavigationBarContentView::setPhase(double phase) {
    phase_ = phase;
    const auto alpha = 1 - std::abs(phase);
    const auto width = bounds().size.width;
    const auto title = peer().fromLeading(titleHolder_->layer().peer().untransformedFrame());
    const auto toTrailing = phase * peer().rightward();
    const auto titleAway = phase > 0 ? width / 2 : title.origin.x - BackButtonView::titleStart;
    titleHolder_->peer().setTransform(AffineTransform::translation(toTrailing * titleAway, 0));
    updateTitleAlpha();
    if (back_) {
        // It comes from where the same words were the title of the page before.
        const auto middle = (width - back_->titleWidth()) / 2;
        const auto backAway = phase > 0 ? middle - BackButtonView::titleStart : width / 3;
        back_->placeTitle(toTrailing * backAway, alpha);
        back_->setChevronAlpha(keepsChevron_ ? 1 : alpha);
    }
    for (const auto* const buttons : {&left_, &right_}) {
        for (const auto& button : *buttons)
            button->setAlpha(alpha);
    }
    if (largeTitle_) {
        const auto part = phase > 0 ? 1 : NavigationPageView::parallax; // as its page moves
        largeTitle_->peer().setTransform(AffineTransform::translation(toTrailing * part * width, 0));
        largeTitle_->setAlpha(alpha);
    }
}

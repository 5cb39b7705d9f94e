#include "tables/UITableViewCellPeer.h"

#include "AnimationGroup.h"
#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "DesktopImage.h"
#include "layout/LayoutProblem.h"
#include "tables/TableMetrics.h"
#include "tables/UITableViewPeer.h"
#include "views/UIImageViewPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double iconSize = 29;
constexpr double iconGap = 16;
constexpr double detailGap = 6;              ///< between the title and the detail beside it, at least
constexpr double leastDetail = 24;           ///< a narrower one would be little more than an ellipsis
constexpr double verticalPadding = 35.0 / 3; ///< above and below texts that need more than the least height
constexpr double chevronSize = 13.5;         ///< the points that its symbol is set in
constexpr double checkmarkSize = 15;
constexpr double titleSize = 17;
constexpr double subtitleSize = 13;
constexpr std::chrono::milliseconds deselection{350};

constexpr auto unlimited = CGSize{1e6, 1e6};

double widthOf(const UILabel& label) {
    return label.peer().sizeThatFits(unlimited).width;
}

double heightOf(const UILabel& label, double width) {
    return label.peer().sizeThatFits({width, unlimited.height}).height;
}

/// Of the image as it is shown, which is no larger than an icon.
CGSize sizeOf(const UIImage& image) {
    const auto size = DesktopImage::sizeOf(image);
    const auto factor = std::min(1.0, iconSize / std::max({size.width, size.height, 1.0}));
    return {size.width * factor, size.height * factor};
}

/// All that it needs, or what is left; none when that would cut it down to nothing that can be read.
double widthOfDetail(double needed, double left) {
    if (needed <= left)
        return needed;
    return left < leastDetail ? 0 : left;
}

bool hasText(const UILabel& label) {
    const auto& text = peerOf<UILabelPeer>(label).text();
    return text.has_value() && !text->empty();
}

/// Of a row that looks pressed by that part.
Ref<UIColor> colorOfRow(double pressed, const Traits& traits) {
    const auto plain = DesktopColor::system(SystemColor::SecondaryGroupedBackground);
    const auto full = DesktopColor::system(SystemColor::Gray4);
    if (pressed <= 0 || pressed >= 1)
        return pressed <= 0 ? plain : full;
    const auto from = DesktopColor::resolve(plain, traits);
    const auto to = DesktopColor::resolve(full, traits);
    return DesktopColor::fixed({.red = std::lerp(from.red, to.red, pressed),
                                .green = std::lerp(from.green, to.green, pressed),
                                .blue = std::lerp(from.blue, to.blue, pressed),
                                .alpha = std::lerp(from.alpha, to.alpha, pressed)});
}

Ref<UIImage> indicatorImage(UITableViewCellAccessoryType type, bool rightToLeft) {
    if (type == UITableViewCellAccessoryType::Checkmark)
        return DesktopImage::symbol("checkmark", checkmarkSize, SymbolWeight::Semibold);
    return DesktopImage::symbol(rightToLeft ? "chevron.left" : "chevron.right", chevronSize,
                                SymbolWeight::Semibold);
}

} // namespace

double UITableViewCellPeer::TextRoom::width() const {
    return std::max(0.0, right - left);
}

UITableViewCell& UITableViewCellPeer::cell() const {
    return dynamic_cast<UITableViewCell&>(view());
}

void UITableViewCellPeer::viewMade() {
    slice_ = make<UIView>();
    background_ = make<UIView>();
    contentView_ = make<UIView>();
    textLabel_ = make<UILabel>();
    detailTextLabel_ = make<UILabel>();
    imageView_ = make<UIImageView>();
    separator_ = make<UIView>();
    layer().peer().keepsPicture = true;
    addSubview(slice_);
    for (const auto& part : {background_, contentView_, separator_})
        slice_->addSubview(part);
    for (const auto& part : {Ref<UIView>(imageView_), Ref<UIView>(textLabel_), Ref<UIView>(detailTextLabel_)})
        contentView_->addSubview(part);
    peerOf<UILabelPeer>(*textLabel_).setFontStyle({.size = titleSize});
    detailTextLabel_->setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    background_->layer().setCornerRadius(TableMetrics::cornerRadius);
    background_->layer().peer().continuousCorners = true;
    separator_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
    setPlaceInCard(true, true);
    setUp(UITableViewCellStyle::Default, {});
}

void UITableViewCellPeer::setUp(UITableViewCellStyle style, const std::string& reuseIdentifier) {
    style_ = style;
    reuseIdentifier_ = reuseIdentifier;
    const auto subtitle = style == UITableViewCellStyle::Subtitle;
    peerOf<UILabelPeer>(*detailTextLabel_).setFontStyle({.size = subtitle ? subtitleSize : titleSize});
    detailTextLabel_->peer().setHidden(style == UITableViewCellStyle::Default);
}

void UITableViewCellPeer::setAccessoryType(UITableViewCellAccessoryType type) {
    if (std::exchange(accessoryType_, type) != type)
        showAccessory();
}

void UITableViewCellPeer::setAccessoryView(const Ref<UIView>& view) {
    if (view == accessoryView_)
        return;
    if (accessoryView_)
        accessoryView_->peer().removeFromSuperview();
    accessoryView_ = view;
    showAccessory();
}

void UITableViewCellPeer::showAccessory() {
    if (indicator_)
        indicator_->peer().removeFromSuperview();
    indicator_ = nullptr;
    if (accessoryView_) {
        slice_->addSubview(accessoryView_);
    } else if (accessoryType_ != UITableViewCellAccessoryType::None) {
        indicator_ = make<UIImageView>();
        indicator_->setImage(indicatorImage(accessoryType_, isRightToLeft()));
        if (accessoryType_ == UITableViewCellAccessoryType::DisclosureIndicator)
            indicator_->peer().setTintColor(DesktopColor::system(SystemColor::TertiaryLabel));
        slice_->addSubview(indicator_);
    }
    setNeedsLayout();
}

void UITableViewCellPeer::setDetailHasPriority(bool priority) {
    detailHasPriority_ = priority;
    setNeedsLayout();
}

void UITableViewCellPeer::setPlaceInCard(bool first, bool last) {
    auto& layer = background_->layer().peer();
    layer.roundTop = first;
    layer.roundBottom = last;
    lastInCard_ = last;
    showState();
}

void UITableViewCellPeer::setMargin(double margin) {
    if (std::exchange(margin_, margin) != margin)
        setNeedsLayout();
}

void UITableViewCellPeer::setCutOff(bool cutOff) {
    slice_->setClipsToBounds(cutOff);
}

void UITableViewCellPeer::setHighlighted(bool highlighted) {
    highlighted_ = highlighted;
    showState();
}

void UITableViewCellPeer::setSelected(bool selected, bool animated) {
    if (std::exchange(selected_, selected) == selected)
        return;
    selectionFade_ = 0;
    if (animated)
        AnimationGroup::run({.duration = deselection}, [this] { showState(); }, {});
    else
        showState();
}

void UITableViewCellPeer::setSelectionFade(double faded) {
    selectionFade_ = faded;
    showState();
}

double UITableViewCellPeer::pressedPart() const {
    if (highlighted_)
        return 1;
    return selected_ ? 1 - selectionFade_ : 0;
}

void UITableViewCellPeer::showState() {
    const auto part = pressedPart();
    background_->setBackgroundColor(colorOfRow(part, traits()));
    separator_->peer().setHidden(lastInCard_ || part >= 1);
    separator_->setAlpha(1 - part);
}

const UIView* UITableViewCellPeer::accessory() const {
    return accessoryView_ ? accessoryView_.get() : indicator_.get();
}

CGRect UITableViewCellPeer::accessoryFrame(const CGRect& bounds) const {
    const auto size =
        accessoryView_ ? accessoryView_->bounds().size : indicator_->peer().sizeThatFits(unlimited);
    const TableMetrics metrics(bounds.size.width, traits().displayScale);
    return CGRectMake(bounds.size.width - margin_ - size.width,
                      metrics.rounded((bounds.size.height - size.height) / 2), size.width, size.height);
}

double UITableViewCellPeer::imageWidth() const {
    return imageColumn_.value_or(sizeOf(*imageView_->image()).width);
}

void UITableViewCellPeer::setImageColumn(double width) {
    imageColumn_ = width;
    setNeedsLayout();
}

UITableViewCellPeer::TextRoom UITableViewCellPeer::textRoom(double width) const {
    auto left = margin_;
    if (imageView_->image())
        left += imageWidth() + iconGap;
    auto right = width - margin_;
    if (accessory() != nullptr)
        right = accessoryFrame(CGRectMake(0, 0, width, 0)).origin.x - textGap;
    return {left, right};
}

double UITableViewCellPeer::heightFor(double width) const {
    const auto room = textRoom(width).width();
    // Rounded to pixels, a line would need another height at each scale.
    auto texts = peerOf<UILabelPeer>(*textLabel_).heightOfLines(room);
    if (style_ == UITableViewCellStyle::Subtitle && hasText(*detailTextLabel_))
        texts += peerOf<UILabelPeer>(*detailTextLabel_).heightOfLines(room);
    const TableMetrics metrics(width, traits().displayScale);
    return metrics.rounded(
        std::max({TableMetrics::minimumRowHeight, texts + 2 * verticalPadding, constrainedHeight(width)}));
}

double UITableViewCellPeer::constrainedHeight(double width) const {
    return LayoutProblem::isHost(*contentView_) ? contentView_->peer().fittingSize(contentWidth(width)).height
                                                : 0;
}

CGSize UITableViewCellPeer::sizeThatFits(CGSize room) const {
    return {room.width, heightFor(room.width)};
}

double UITableViewCellPeer::contentWidth(double width) const {
    return accessory() != nullptr ? accessoryFrame(CGRectMake(0, 0, width, 0)).origin.x : width;
}

void UITableViewCellPeer::traitsDidChange() {
    UIViewPeer::traitsDidChange();
    if (indicator_)
        indicator_->setImage(indicatorImage(accessoryType_, isRightToLeft()));
}

void UITableViewCellPeer::layoutSubviews() {
    const auto bounds = view().bounds();
    const auto hairline = 1 / traits().displayScale;
    slice_->setFrame(bounds);
    background_->setFrame(bounds);
    if (accessory() != nullptr)
        place(accessoryView_ ? *accessoryView_ : *indicator_, accessoryFrame(bounds));
    place(*contentView_, CGRectMake(0, 0, contentWidth(bounds.size.width), bounds.size.height));
    layOutTexts(bounds);
    const auto left = textRoom(bounds.size.width).left;
    place(*separator_, CGRectMake(left, bounds.size.height - hairline, bounds.size.width - left, hairline));
}

void UITableViewCellPeer::layOutTexts(const CGRect& bounds) {
    const auto room = textRoom(bounds.size.width);
    if (const auto image = imageView_->image()) {
        const auto size = sizeOf(*image);
        const TableMetrics metrics(bounds.size.width, traits().displayScale);
        contentView_->peer().place(*imageView_,
                                   CGRectMake(metrics.rounded(margin_ + (imageWidth() - size.width) / 2),
                                              metrics.rounded((bounds.size.height - size.height) / 2),
                                              size.width, size.height));
    }
    if (style_ == UITableViewCellStyle::Subtitle && hasText(*detailTextLabel_))
        layOutStacked(room, bounds.size.height);
    else
        layOutSideBySide(room, bounds.size.height);
}

void UITableViewCellPeer::layOutSideBySide(const TextRoom& room, double height) {
    auto title = room.width();
    if (style_ == UITableViewCellStyle::Value1 && hasText(*detailTextLabel_)) {
        auto detail = std::min(widthOf(*detailTextLabel_), room.width());
        title = std::min(widthOf(*textLabel_), room.width());
        const auto both = std::max(0.0, room.width() - detailGap);
        if (detailHasPriority_)
            title = std::min(title, std::max(0.0, both - detail));
        else
            detail = widthOfDetail(detail, both - title);
        contentView_->peer().place(*detailTextLabel_, CGRectMake(room.right - detail, 0, detail, height));
    }
    contentView_->peer().place(*textLabel_, CGRectMake(room.left, 0, title, height));
}

void UITableViewCellPeer::layOutStacked(const TextRoom& room, double height) {
    const auto title = heightOf(*textLabel_, room.width());
    const auto detail = heightOf(*detailTextLabel_, room.width());
    const auto top = (height - title - detail) / 2;
    contentView_->peer().place(*textLabel_, CGRectMake(room.left, top, room.width(), title));
    contentView_->peer().place(*detailTextLabel_, CGRectMake(room.left, top + title, room.width(), detail));
}

UITableViewPeer* UITableViewCellPeer::table() const {
    for (const auto* parent = superview(); parent != nullptr; parent = parent->peer().superview()) {
        if (const auto* const table = dynamic_cast<const UITableView*>(parent))
            return &peerOf<UITableViewPeer>(*table);
    }
    return nullptr;
}

bool UITableViewCellPeer::isSelectable() const {
    auto* const shownIn = table();
    return shownIn != nullptr && shownIn->isSelectable(cell());
}

void UITableViewCellPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    UIViewPeer::touchBegan(touch, event);
    if (auto* const table = this->table())
        table->cellTouched(cell());
}

void UITableViewCellPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    UIViewPeer::touchEnded(touch, event);
    if (auto* const table = this->table())
        table->cellReleased(cell());
}

void UITableViewCellPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    UIViewPeer::touchCancelled(touch, event);
    if (auto* const table = this->table())
        table->cellTouchCancelled();
}

PropertyList::Dictionary UITableViewCellPeer::inspectedProperties() const {
    PropertyList::Dictionary properties;
    properties.insert_or_assign("highlighted", highlighted_);
    properties.insert_or_assign("selected", selected_);
    properties.insert_or_assign("reuseIdentifier", reuseIdentifier_);
    properties.insert_or_assign("accessoryType", static_cast<int>(accessoryType_));
    return properties;
}

#include "sharing/ShareView.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<ShareView, UIView>("ShareView");

constexpr auto reuseIdentifier = "activity";
constexpr double rowHeightInPoints = 50;
constexpr double gap = 16; ///< above and below the rows
constexpr double glyphSize = 22;

TableCaption emptyCaption() {
    TableCaption caption;
    caption.height = gap;
    return caption;
}

} // namespace

ShareView::ShareView(const Ref<ShareHeaderView>& header, std::vector<Activity> activities)
    : header_(header),
      activities_(std::move(activities)) {
    const auto background = DesktopColor::system(SystemColor::GroupedBackground);
    setBackgroundColor(background);
    table_->setBackgroundColor(background);
    addSubview(header_);
    addSubview(table_);
    peerOf<UITableViewPeer>(*table_).setContent(this);
}

ShareView::~ShareView() {
    peerOf<UITableViewPeer>(*table_).setContent(nullptr);
}

double ShareView::heightFor(std::size_t activities) {
    return ShareHeaderView::height + 2 * gap + rowHeightInPoints * static_cast<double>(activities);
}

void ShareView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    header_->setFrame(CGRectMake(0, 0, size.width, ShareHeaderView::height));
    table_->setFrame(
        CGRectMake(0, ShareHeaderView::height, size.width, size.height - ShareHeaderView::height));
}

std::optional<double> ShareView::rowHeight(IndexPath /*row*/) {
    return rowHeightInPoints;
}

Ref<UITableViewCell> ShareView::cellForRow(IndexPath row) {
    auto cell = makeWith<UITableViewCell>(&UITableViewCell::initWithStyle, UITableViewCellStyle::Default,
                                          reuseIdentifier);
    auto& shown = peerOf<UITableViewCellPeer>(*cell);
    const auto& activity = activities_[row.row];
    shown.textLabel().setText(activity.title);
    const auto glyph = make<UIImageView>();
    glyph->setFrame(CGRectMake(0, 0, glyphSize, glyphSize));
    glyph->setContentMode(UIViewContentMode::Center);
    glyph->setImage(DesktopImage::symbol(activity.symbol, glyphSize));
    glyph->setTintColor(DesktopColor::system(SystemColor::Label));
    shown.setAccessoryView(glyph);
    return cell;
}

TableCaption ShareView::header(std::size_t /*section*/) {
    return emptyCaption();
}

TableCaption ShareView::footer(std::size_t /*section*/) {
    return emptyCaption();
}

void ShareView::didSelectRow(IndexPath row) {
    peerOf<UITableViewPeer>(*table_).deselectRow(true);
    activities_[row.row].perform();
}

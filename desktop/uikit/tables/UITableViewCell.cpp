#include "tables/UITableViewCell.h"

#include "ObjectiveC/Class.h"
#include "tables/UITableViewCellPeer.h"

#include <utility>

namespace {

const Class cellClass = Class::define<UITableViewCell, UIView>("UITableViewCell");

} // namespace

UITableViewCell::UITableViewCell() : UITableViewCell(std::make_unique<UITableViewCellPeer>()) {}

UITableViewCell::UITableViewCell(std::unique_ptr<UITableViewCellPeer> peer) : UIView(std::move(peer)) {}

bool UITableViewCell::initWithFrame(const CGRect& frame) {
    if (!initWithStyle(UITableViewCellStyle::Default, {}))
        return false;
    setFrame(frame);
    return true;
}

bool UITableViewCell::initWithStyle(UITableViewCellStyle style, const std::string& reuseIdentifier) {
    if (!UIView::initWithFrame({}))
        return false;
    UITableViewCellPeer::of(*this).setUp(style, reuseIdentifier);
    return true;
}

const std::string& UITableViewCell::reuseIdentifier() const {
    return UITableViewCellPeer::of(*this).reuseIdentifier();
}

UIView& UITableViewCell::contentView() const {
    return UITableViewCellPeer::of(*this).contentView();
}

UILabel& UITableViewCell::textLabel() const {
    return UITableViewCellPeer::of(*this).textLabel();
}

UILabel& UITableViewCell::detailTextLabel() const {
    return UITableViewCellPeer::of(*this).detailTextLabel();
}

UIImageView& UITableViewCell::imageView() const {
    return UITableViewCellPeer::of(*this).imageView();
}

void UITableViewCell::setAccessoryType(UITableViewCellAccessoryType type) {
    UITableViewCellPeer::of(*this).setAccessoryType(type);
}

void UITableViewCell::setAccessoryView(const Ref<UIView>& view) {
    UITableViewCellPeer::of(*this).setAccessoryView(view);
}

void UITableViewCell::prepareForReuse() {}

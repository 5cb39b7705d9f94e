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
    peerOf<UITableViewCellPeer>(*this).setUp(style, reuseIdentifier);
    return true;
}

const std::string& UITableViewCell::reuseIdentifier() const {
    return peerOf<UITableViewCellPeer>(*this).reuseIdentifier();
}

UIView& UITableViewCell::contentView() const {
    return peerOf<UITableViewCellPeer>(*this).contentView();
}

UILabel& UITableViewCell::textLabel() const {
    return peerOf<UITableViewCellPeer>(*this).textLabel();
}

UILabel& UITableViewCell::detailTextLabel() const {
    return peerOf<UITableViewCellPeer>(*this).detailTextLabel();
}

UIImageView& UITableViewCell::imageView() const {
    return peerOf<UITableViewCellPeer>(*this).imageView();
}

void UITableViewCell::setAccessoryType(UITableViewCellAccessoryType type) {
    peerOf<UITableViewCellPeer>(*this).setAccessoryType(type);
}

void UITableViewCell::setAccessoryView(const Ref<UIView>& view) {
    peerOf<UITableViewCellPeer>(*this).setAccessoryView(view);
}

void UITableViewCell::prepareForReuse() {}

#include "UIKit/UITableViewCell.h"

#include "ObjectiveC/Class.h"
#include "tables/UITableViewCellPeer.h"

#include <utility>

namespace {

const Class cellClass = Class::define<UITableViewCell, UIView>("UITableViewCell");

/// Until a table places the cell: the platform's own, which a cell may look at when it is made.
constexpr auto firstFrame = CGRectMake(0, 0, 320, 44);

} // namespace

UITableViewCell::UITableViewCell() : UITableViewCell(std::make_unique<UITableViewCellPeer>()) {}

UITableViewCell::UITableViewCell(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {
    peerOf<UITableViewCellPeer>(*this).viewMade();
}

bool UITableViewCell::initWithStyle(UITableViewCellStyle style,
                                    const std::optional<std::string>& reuseIdentifier) {
    if (!UIView::initWithFrame(firstFrame))
        return false;
    contentView().setFrame(firstFrame);
    peerOf<UITableViewCellPeer>(*this).setUp(style, reuseIdentifier.value_or(""));
    return true;
}

UIView& UITableViewCell::contentView() const {
    return peerOf<UITableViewCellPeer>(*this).contentView();
}

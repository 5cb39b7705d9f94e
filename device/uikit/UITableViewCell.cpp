#include "UIKit/UITableViewCell.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<UITableViewCell, UIView> frameworkClass(
    "UITableViewCell",
    {initialiser<"-[UITableViewCell initWithStyle:reuseIdentifier:]", &UITableViewCell::initWithStyle>()});

} // namespace

UITableViewCell::UITableViewCell() = default;

UITableViewCell::UITableViewCell(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

bool UITableViewCell::initWithStyle(UITableViewCellStyle style,
                                    const std::optional<std::string>& reuseIdentifier) {
    return initialise<"-[UITableViewCell initWithStyle:reuseIdentifier:]">(*this, style, reuseIdentifier);
}

UIView& UITableViewCell::contentView() const {
    return *send<"-[UITableViewCell contentView]", Ref<UIView>>(*this);
}

#include "ProblemView.h"

#include "DesktopColor.h"
#include "DesktopFont.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "UILabelPeer.h"

#include <algorithm>
#include <array>

namespace {

const Class classObject = Class::define<ProblemView, UIView>("ProblemView");

constexpr auto signName = "exclamationmark.triangle";
constexpr double signSize = 44;
constexpr double titleSize = 22;
constexpr double reasonSize = 15;
constexpr double margin = 32;
constexpr double widestText = 420;
constexpr double gapBelowSign = 16;
constexpr double gapBelowTitle = 8;

Ref<UILabel> makeLabel(const std::string& text, double size, FontWeight weight, SystemColor color) {
    auto label = make<UILabel>();
    label->setText(text);
    label->setFont(DesktopFont::font(size, weight));
    label->setTextColor(DesktopColor::system(color));
    label->setTextAlignment(NSTextAlignment::Center);
    UILabelPeer::of(*label).setNumberOfLines(0);
    return label;
}

} // namespace

ProblemView::ProblemView(const std::string& title, const std::string& reason)
    : sign_(make<UIImageView>()),
      title_(makeLabel(title, titleSize, FontWeight::Bold, SystemColor::Label)),
      reason_(makeLabel(reason, reasonSize, FontWeight::Regular, SystemColor::SecondaryLabel)) {
    setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    sign_->setImage(DesktopImage::symbol(signName, signSize));
    sign_->peer().setTintColor(DesktopColor::system(SystemColor::Gray));
    addSubview(sign_);
    addSubview(title_);
    addSubview(reason_);
}

void ProblemView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    const auto safe = peer().safeAreaInsets();
    const CGSize room{std::min(size.width - 2 * margin, widestText), size.height};
    const std::array<UIView*, 3> views{sign_.get(), title_.get(), reason_.get()};
    constexpr std::array<double, 3> gaps{gapBelowSign, gapBelowTitle, 0};

    std::array<CGSize, 3> sizes;
    double height = 0;
    for (std::size_t index = 0; index < views.size(); ++index) {
        sizes[index] = views[index]->peer().sizeThatFits(room);
        height += sizes[index].height + gaps[index];
    }
    auto top = safe.top + (size.height - safe.top - safe.bottom - height) / 2;
    for (std::size_t index = 0; index < views.size(); ++index) {
        views[index]->setFrame({{(size.width - sizes[index].width) / 2, top}, sizes[index]});
        top += sizes[index].height + gaps[index];
    }
}

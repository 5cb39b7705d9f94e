#include "ProblemView.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"
#include "views/WrappedLabel.h"

#include <algorithm>
#include <array>

namespace {

const Class classObject = Class::define<ProblemView, UIView>("ProblemView");

constexpr auto signName = "exclamationmark.triangle";
constexpr double signSize = 44;
constexpr FontStyle titleStyle{.size = 22, .weight = FontWeight::Bold};
constexpr FontStyle reasonStyle{.size = 15};
constexpr double margin = 32;
constexpr double widestText = 420;
constexpr double gapBelowSign = 16;
constexpr double gapBelowTitle = 8;

Ref<UILabel> centredLabel(const std::string& text, const FontStyle& style, SystemColor color) {
    return wrappedLabel(text, style, color, NSTextAlignment::Center);
}

} // namespace

ProblemView::ProblemView(const std::string& title, const std::string& reason)
    : sign_(make<UIImageView>()),
      title_(centredLabel(title, titleStyle, SystemColor::Label)),
      reason_(centredLabel(reason, reasonStyle, SystemColor::SecondaryLabel)) {
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

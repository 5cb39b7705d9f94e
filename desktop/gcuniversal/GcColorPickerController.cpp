#include "GcColorPickerController.h"

#include "ColorCode.h"
#include "ColorPickerView.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <memory>
#include <utility>

namespace {

const Class controllerClass =
    Class::define<GcColorPickerController, UIViewController>("GcColorPickerController");

class GcColorPickerControllerPeer final : public UIViewControllerPeer {
public:
    GcColorPickerControllerPeer(Ref<DesktopSpecifier> row, GcColorPickerController::Save write)
        : row_(std::move(row)),
          write_(std::move(write)) {}

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    void viewDidLoad() override;
    void viewWillDisappear(bool animated) override;

private:
    void save();

    const Ref<DesktopSpecifier> row_;
    const GcColorPickerController::Save write_;
    Ref<ColorPickerView> colors_;
    bool isChanged_ = false;
};

Ref<UIView> GcColorPickerControllerPeer::makeView() {
    colors_ = make<ColorPickerView>(row_->boolForKey("supportsAlpha", true));
    colors_->setColor(colorOfRow(*row_));
    colors_->setChangeHandler([this] { isChanged_ = true; });
    return colors_;
}

void GcColorPickerControllerPeer::viewDidLoad() {
    const auto done = [weak = Weak<UIViewController>(&controller()), this] {
        const auto kept = weak.strong();
        if (!kept)
            return;
        save();
        kept->dismissViewControllerAnimated(true, {});
    };
    setTitle(systemText("Colors"));
    navigationItem().setRightBarButtonItem(
        make<DesktopBarButtonItem>(DesktopBarButtonItem::Content{.title = systemText("Done"),
                                                                 .image = {},
                                                                 .menu = {},
                                                                 .action = done,
                                                                 .target = {},
                                                                 .selector = {},
                                                                 .emphasised = true}));
}

void GcColorPickerControllerPeer::viewWillDisappear(bool /*animated*/) {
    if (row_->boolForKey("safeOnDismiss", true))
        save();
}

void GcColorPickerControllerPeer::save() {
    // What is typed counts.
    Screen::current().firstResponder().removeIn(*colors_);
    if (std::exchange(isChanged_, false))
        write_(codeOfColor(colors_->color()));
}

} // namespace

GcColorPickerController::GcColorPickerController(const Ref<DesktopSpecifier>& row, Save save)
    : UIViewController(std::make_unique<GcColorPickerControllerPeer>(row, std::move(save))) {}

ColorComponents colorOfRow(DesktopSpecifier& row) {
    const auto value = row.performGetter();
    const auto* const text = value ? value->getIf<std::string>() : nullptr;
    const auto kept = text != nullptr ? colorFromCode(*text) : std::nullopt;
    constexpr ColorComponents clear{.red = 0, .green = 0, .blue = 0, .alpha = 0};
    return kept.value_or(colorFromCode(row.textForKey("fallback")).value_or(clear));
}

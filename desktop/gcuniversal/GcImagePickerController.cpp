#include "GcImagePickerController.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "RowImage.h"
#include "SystemTexts.h"
#include "UIKit/UIButton.h"
#include "alerts/Complaint.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "controls/UIButtonPeer.h"
#include "screen/FilePicker.h"
#include "screen/Screen.h"
#include "text/UITextFieldPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

const Class controllerClass =
    Class::define<GcImagePickerController, UIViewController>("GcImagePickerController");

constexpr auto explanation = "Drop a PNG, JPEG or HEIC file on the window, or type its path.";
constexpr double margin = 16;
constexpr double rowHeight = 44;

/// What the sheet shows.
class ImagePickerView final : public UIView {
public:
    ImagePickerView();

    // UIView:
    void layoutSubviews() override;

    const Ref<UILabel> text = make<UILabel>();
    const Ref<UITextField> field = make<UITextField>();
    const Ref<UIButton> browser = make<UIButton>(); ///< shown where a dialog can be opened
    const Ref<UIButton> remover = make<UIButton>();
    const Ref<UIImageView> preview = make<UIImageView>();
};

ImagePickerView::ImagePickerView() {
    setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    text->setText(systemText(explanation));
    text->setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    peerOf<UILabelPeer>(*text).setNumberOfLines(0);
    preview->setContentMode(UIViewContentMode::ScaleAspectFit);
    auto& path = peerOf<UITextFieldPeer>(*field);
    path.setBorderStyle(UITextBorderStyle::RoundedRect);
    path.setPlaceholder(systemText("Path of a File"));
    path.setTextInputTraits({.capitals = TextInputTraits::Capitals::None});
    path.setEndsOnReturn(true);
    auto& browse = peerOf<UIButtonPeer>(*browser);
    browse.setTitle(systemText(HostFileDialog::buttonTitle));
    browse.setFontStyle({.size = 17});
    browse.setHidden(Screen::current().fileDialog() == nullptr);
    auto& button = peerOf<UIButtonPeer>(*remover);
    button.setTitle(systemText("Remove Image"));
    button.setFontStyle({.size = 17});
    button.setTitleColor(DesktopColor::system(SystemColor::Red));
    for (const auto& view : {Ref<UIView>(text), Ref<UIView>(field), Ref<UIView>(browser),
                             Ref<UIView>(preview), Ref<UIView>(remover)})
        addSubview(view);
}

void ImagePickerView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto safe = peer().safeAreaInsets();
    const auto width = bounds().size.width - 2 * margin;
    auto y = safe.top + margin;
    const auto height = text->peer().sizeThatFits({width, bounds().size.height}).height;
    text->setFrame(CGRectMake(margin, y, width, height));
    y += height + margin;
    field->setFrame(CGRectMake(margin, y, width, rowHeight));
    y += rowHeight + margin;
    if (!browser->peer().isHidden()) {
        browser->setFrame(CGRectMake(margin, y, width, rowHeight));
        y += rowHeight + margin;
    }
    const auto bottom = bounds().size.height - safe.bottom - margin;
    remover->setFrame(CGRectMake(margin, bottom - rowHeight, width, rowHeight));
    preview->setFrame(CGRectMake(margin, y, width, std::max(0.0, bottom - rowHeight - margin - y)));
}

class GcImagePickerControllerPeer final : public UIViewControllerPeer, public FilePicker {
public:
    GcImagePickerControllerPeer(Ref<DesktopSpecifier> row, std::function<void()> changed)
        : row_(std::move(row)),
          changed_(std::move(changed)) {}

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    void viewDidLoad() override;

    // FilePicker:
    std::expected<void, std::string> pickFiles(const std::vector<std::string>& hostPaths) override;
    void cancelPicking() override;

private:
    void showImage() const;
    void pickTyped();
    void browseHost();

    const Ref<DesktopSpecifier> row_;
    const std::function<void()> changed_;
    Ref<ImagePickerView> picker_;
};

Ref<UIView> GcImagePickerControllerPeer::makeView() {
    picker_ = make<ImagePickerView>();
    peerOf<UITextFieldPeer>(*picker_->field).setReturnHandler([this] { pickTyped(); });
    peerOf<UIButtonPeer>(*picker_->browser).addHandler(UIControlEvents::TouchUpInside, [this] {
        browseHost();
    });
    peerOf<UIButtonPeer>(*picker_->remover).addHandler(UIControlEvents::TouchUpInside, [this] {
        RowImage(*row_).remove();
        changed_();
        showImage();
    });
    showImage();
    return picker_;
}

void GcImagePickerControllerPeer::viewDidLoad() {
    setTitle(systemText("Image"));
    const auto cancel = [weak = Weak<UIViewController>(&controller()), this] {
        if (const auto kept = weak.strong())
            cancelPicking();
    };
    navigationItem().setLeftBarButtonItem(
        make<DesktopBarButtonItem>(DesktopBarButtonItem::Content{.title = systemText("Cancel"),
                                                                 .image = {},
                                                                 .menu = {},
                                                                 .action = cancel,
                                                                 .target = {},
                                                                 .selector = {},
                                                                 .emphasised = false}));
}

void GcImagePickerControllerPeer::showImage() const {
    const RowImage kept(*row_);
    picker_->preview->setImage(kept.image());
    picker_->remover->peer().setHidden(!kept.exists());
}

void GcImagePickerControllerPeer::pickTyped() {
    const auto path = picker_->field->text();
    if (!path.empty())
        static_cast<void>(pickFiles({path}));
}

std::expected<void, std::string>
GcImagePickerControllerPeer::pickFiles(const std::vector<std::string>& hostPaths) {
    const auto kept =
        hostPaths.size() == 1
            ? RowImage(*row_).keep(hostPaths.front())
            : std::expected<void, std::string>(std::unexpected(systemText("One image is wanted.")));
    if (!kept) {
        complain(controller(), systemText("The Image Cannot Be Used"), kept.error());
        return kept;
    }
    changed_();
    showImage();
    controller().dismissViewControllerAnimated(true, {});
    return {};
}

void GcImagePickerControllerPeer::cancelPicking() {
    controller().dismissViewControllerAnimated(true, {});
}

void GcImagePickerControllerPeer::browseHost() {
    Screen::current().fileDialog()->chooseFile(
        [weak = Weak<UIViewController>(&controller()), this](const std::string& path) {
            if (const auto kept = weak.strong())
                static_cast<void>(pickFiles({path}));
        });
}

} // namespace

GcImagePickerController::GcImagePickerController(const Ref<DesktopSpecifier>& row,
                                                 std::function<void()> changed)
    : UIViewController(std::make_unique<GcImagePickerControllerPeer>(row, std::move(changed))) {}

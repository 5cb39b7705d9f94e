#include "ObjectiveC/AttachedValues.h"
#include "ObjectiveC/Class.h"
#include "SheetBackdrop.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UILayoutGuide.h"
#include "UIKit/UINavigationItem.h"
#include "cxBackupRestoreController.h"

#include <iterator>

namespace {

constexpr auto messageSymbol = "info.circle.fill";
constexpr std::int64_t sheetBackdropStyle = 2;
constexpr auto completionKey = "CompletionBlock";
constexpr auto itemClassPart = "BulletedListItem";

} // namespace

// The presentation style is one that all who present sheets replace; that is meant.
Ref<OBWelcomeController> cxBackupRestoreController::createWelcomeControllerWithTitle(
    const std::optional<std::string>& title, const std::optional<std::string>& detailText,
    const std::optional<std::string>& symbolName, std::int64_t backdropStyle) {
    auto sheet = OBWelcomeController::initWithTitle(title.value_or(""), detailText, symbolName.value_or(""));
    if (!sheet)
        return nullptr;
    addBackdrop(sheet->view(), static_cast<int>(backdropStyle));
    sheet->view().setBackgroundColor(UIColor::clearColor());
    sheet->setModalPresentationStyle(UIModalPresentationStyle::PageSheet);
    return sheet;
}

Ref<OBWelcomeController> cxBackupRestoreController::makeSheet(const std::optional<std::string>& title,
                                                              const std::optional<std::string>& detailText,
                                                              const std::optional<std::string>& symbolName) {
    return createWelcomeControllerWithTitle(title, detailText, symbolName, sheetBackdropStyle);
}

Ref<UIBarButtonItem> cxBackupRestoreController::makeBarButton(std::string_view title,
                                                              UIBarButtonItemStyle style,
                                                              std::string_view action) {
    return UIBarButtonItem::initWithTitle(title, style, *this, action);
}

Ref<UINavigationBar> cxBackupRestoreController::addNavigationBar(UIView& sheetView,
                                                                 const Ref<UIBarButtonItem>& left,
                                                                 const Ref<UIBarButtonItem>& right) {
    auto bar = make<UINavigationBar>();
    bar->setTranslatesAutoresizingMaskIntoConstraints(false);
    sheetView.addSubview(bar);
    const auto item = UINavigationItem::initWithTitle("");
    if (left)
        item->setLeftBarButtonItem(left);
    if (right)
        item->setRightBarButtonItem(right);
    bar->setItems({item});
    return bar;
}

std::vector<Ref<NSLayoutConstraint>>
cxBackupRestoreController::constraintsOfNavigationBar(const UINavigationBar& bar, const UIView& sheetView) {
    return {bar.topAnchor()->constraintEqualToAnchor(sheetView.safeAreaLayoutGuide()->topAnchor()),
            bar.leadingAnchor()->constraintEqualToAnchor(sheetView.leadingAnchor()),
            bar.trailingAnchor()->constraintEqualToAnchor(sheetView.trailingAnchor())};
}

void cxBackupRestoreController::installNavigationBar(UIView& sheetView, const Ref<UIBarButtonItem>& left,
                                                     const Ref<UIBarButtonItem>& right) {
    const auto bar = addNavigationBar(sheetView, left, right);
    NSLayoutConstraint::activateConstraints(constraintsOfNavigationBar(*bar, sheetView));
}

void cxBackupRestoreController::presentSheet(const Ref<OBWelcomeController>& sheet) {
    sheet->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    sheet->setModalInPresentation(true);
    presentViewController(sheet, true, {});
}

void cxBackupRestoreController::showMessage(const std::optional<std::string>& message,
                                            const std::optional<std::string>& title,
                                            const std::function<void()>& completion) {
    const auto sheet = makeSheet(title, message, messageSymbol);
    if (!sheet)
        return;
    const auto button = makeBarButton("OK", UIBarButtonItemStyle::Done, "dismissMessageController:");
    if (completion)
        setAttachedValue(*button, completionKey, completion, Retention::CopyNonatomic);
    installNavigationBar(sheet->view(), nullptr, button);
    presentSheet(sheet);
}

void cxBackupRestoreController::showMessage(const std::optional<std::string>& message,
                                            const std::optional<std::string>& title) {
    showMessage(message, title, {});
}

void cxBackupRestoreController::dismissMessageController(const Ref<UIBarButtonItem>& sender) {
    const auto completion =
        sender ? attachedValueOf<std::function<void()>>(*sender, completionKey) : std::nullopt;
    dismissViewControllerAnimated(true, completion.value_or(nullptr));
}

void cxBackupRestoreController::dismissWelcomeController(const Ref<NSObject>& /*sender*/) {
    if (dynamicCast<OBWelcomeController>(presentedViewController()))
        dismissViewControllerAnimated(true, {});
}

std::vector<Ref<UIView>> cxBackupRestoreController::findBulletedListItemsInView(const Ref<UIView>& view) {
    std::vector<Ref<UIView>> items;
    if (!view)
        return items;
    for (const auto& subview : view->subviews()) {
        if (NSStringFromClass(*subview).contains(itemClassPart))
            items.push_back(subview);
        std::ranges::move(findBulletedListItemsInView(subview), std::back_inserter(items));
    }
    return items;
}

void cxBackupRestoreController::makeTappable(UIView& item, int tag, std::string_view action) {
    item.setTag(tag);
    item.setUserInteractionEnabled(true);
    item.addGestureRecognizer(UITapGestureRecognizer::initWithTarget(*this, action));
}

void cxBackupRestoreController::handleBulletedListTap(const Ref<UITapGestureRecognizer>& recognizer) {
    const auto item = recognizer ? recognizer->view() : nullptr;
    auto action = item ? attachedValueOf<std::function<void()>>(*item, backupActionKey) : std::nullopt;
    if (action)
        dismissViewControllerAnimated(true, *std::move(action));
}

#include "ObjectiveC/AttachedValues.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UIAlertController.h"
#include "UIKit/UILayoutGuide.h"
#include "UIKit/UITextField.h"
#include "cxBackupRestoreController.h"

namespace {

constexpr auto sheetTitle = "Create Backup";
constexpr auto sheetSymbol = "square.and.arrow.down.fill";
constexpr auto fieldKey = "BackupNameTextField";
constexpr auto fieldMargin = 20.0; ///< points beside the field
constexpr auto fieldHeight = 40.0; ///< points

Ref<UITextField> makeNameField() {
    auto field = make<UITextField>();
    field->setPlaceholder("Backup Name");
    field->setBorderStyle(UITextBorderStyle::RoundedRect);
    field->setTranslatesAutoresizingMaskIntoConstraints(false);
    return field;
}

void appendConstraintsOfField(std::vector<Ref<NSLayoutConstraint>>& constraints, const UITextField& field,
                              const UIView& view) {
    constraints.push_back(field.leadingAnchor()->constraintEqualToAnchor(view.leadingAnchor(), fieldMargin));
    constraints.push_back(
        field.trailingAnchor()->constraintEqualToAnchor(view.trailingAnchor(), -fieldMargin));
    constraints.push_back(
        field.centerYAnchor()->constraintEqualToAnchor(view.safeAreaLayoutGuide()->centerYAnchor()));
    constraints.push_back(field.heightAnchor()->constraintEqualToConstant(fieldHeight));
}

void showThatTheNameIsEmpty(UIViewController& sheet) {
    const auto alert = UIAlertController::alertControllerWithTitle("Error", "Please enter a backup name",
                                                                   UIAlertControllerStyle::Alert);
    alert->addAction(UIAlertAction::actionWithTitle("OK", UIAlertActionStyle::Default, {}));
    sheet.presentViewController(alert, true, {});
}

} // namespace

void cxBackupRestoreController::createBackup() {
    const auto sheet = makeSheet(sheetTitle, "Save your current settings", sheetSymbol);
    if (!sheet)
        return;
    sheet->addBulletedListItemWithTitle("Settings", "All your preferences and configurations",
                                        UIImage::systemImageNamed("gear"), UIColor::systemBlueColor());
    sheet->addBulletedListItemWithTitle("Images", "Custom images and icons",
                                        UIImage::systemImageNamed("photo"), UIColor::systemGreenColor());
    sheet->addBulletedListItemWithTitle("Customizations", "Theme settings and visual preferences",
                                        UIImage::systemImageNamed("paintbrush"),
                                        UIColor::systemOrangeColor());
    installNavigationBar(sheet->view(),
                         makeBarButton("Cancel", UIBarButtonItemStyle::Plain, "dismissWelcomeController:"),
                         makeBarButton("Create Backup", UIBarButtonItemStyle::Done, "showBackupNamePrompt:"));
    presentSheet(sheet);
}

void cxBackupRestoreController::showBackupNamePrompt(const Ref<NSObject>& /*sender*/) {
    dismissViewControllerAnimated(true, [page = retain(this)] { page->presentNamePrompt(); });
}

void cxBackupRestoreController::presentNamePrompt() {
    const auto sheet = makeSheet(sheetTitle, "Enter a name for your backup", sheetSymbol);
    if (!sheet)
        return;
    auto& view = sheet->view();
    const auto bar = addNavigationBar(
        view, makeBarButton("Cancel", UIBarButtonItemStyle::Plain, "dismissWelcomeController:"),
        makeBarButton("Create", UIBarButtonItemStyle::Done, "handleBackupNameSave:"));
    const auto field = makeNameField();
    setAttachedValue(*sheet, fieldKey, field, Retention::RetainNonatomic);
    view.addSubview(field);
    auto constraints = constraintsOfNavigationBar(*bar, view);
    appendConstraintsOfField(constraints, *field, view);
    NSLayoutConstraint::activateConstraints(constraints);
    field->becomeFirstResponder(); // so that the keyboard comes with the sheet
    presentSheet(sheet);
}

void cxBackupRestoreController::handleBackupNameSave(const Ref<NSObject>& /*sender*/) {
    const auto sheet = dynamicCast<OBWelcomeController>(presentedViewController());
    if (!sheet)
        return;
    const auto attached = attachedValueOf<Ref<NSObject>>(*sheet, fieldKey);
    const auto field = attached ? dynamicCast<UITextField>(*attached) : nullptr;
    const auto name = field ? field->text() : std::string();
    if (name.empty()) // a name of spaces is one
        showThatTheNameIsEmpty(*sheet);
    else
        dismissViewControllerAnimated(true, [page = retain(this), name] { page->saveBackupWithName(name); });
}

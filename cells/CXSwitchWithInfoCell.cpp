#include "CXSwitchWithInfoCell.h"

#include "Foundation/NSBundle.h"
#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"
#include "SpecifierText.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UIAlertController.h"
#include "UIKit/UIApplication.h"

namespace {

constexpr auto edgeMargin = 4.0; ///< between the button and the content's right edge
constexpr auto messageInstead = "No information provided for this cell.";
constexpr std::string_view writtenLineBreak = "\\n";

const Class classObject = Class::define<CXSwitchWithInfoCell, PSSwitchTableCell>(
    "CXSwitchWithInfoCell", {method<"infoButton", &CXSwitchWithInfoCell::infoButton>(),
                             method<"infoButtonTapped", &CXSwitchWithInfoCell::infoButtonTapped>()});

std::string withLineBreaks(std::string_view text) {
    const auto lines = componentsSeparatedByString(text, writtenLineBreak);
    auto broken = lines.front();
    for (std::size_t index = 1; index < lines.size(); ++index)
        broken.append("\n").append(lines[index]);
    return broken;
}

/// What the application's window shows; empty when it has none.
Ref<UIViewController> rootViewController() {
    const auto window = MessageTraits<Ref<NSObject>>::unpack(
        UIApplication::sharedApplication()->performSelector("keyWindow"));
    if (!window)
        return nullptr;
    return MessageTraits<Ref<UIViewController>>::unpack(window->performSelector("rootViewController"));
}

} // namespace

bool CXSwitchWithInfoCell::initWithStyle(UITableViewCellStyle style,
                                         const std::optional<std::string>& reuseIdentifier,
                                         PSSpecifier& specifier) {
    if (!PSSwitchTableCell::initWithStyle(style, reuseIdentifier, specifier))
        return false;
    setupInfoButton();
    return true;
}

void CXSwitchWithInfoCell::setupInfoButton() {
    infoButton_ = UIButton::buttonWithType(UIButtonType::InfoDark);
    infoButton_->setTranslatesAutoresizingMaskIntoConstraints(false);
    infoButton_->addTarget(*this, "infoButtonTapped", UIControlEvents::TouchUpInside);
    contentView().addSubview(infoButton_);
    NSLayoutConstraint::activateConstraints(
        {infoButton_->centerYAnchor()->constraintEqualToAnchor(contentView().centerYAnchor()),
         infoButton_->trailingAnchor()->constraintEqualToAnchor(contentView().trailingAnchor(),
                                                                -edgeMargin)});
}

void CXSwitchWithInfoCell::tintColorDidChange() {
    PSSwitchTableCell::tintColorDidChange();
    tintInfoButton();
}

void CXSwitchWithInfoCell::refreshCellContentsWithSpecifier(PSSpecifier& specifier) {
    PSSwitchTableCell::refreshCellContentsWithSpecifier(specifier);
    tintInfoButton();
}

// The framework may do both of them while it readies the cell, when there is no button yet.
void CXSwitchWithInfoCell::tintInfoButton() {
    if (infoButton_)
        infoButton_->setTintColor(tintColor());
}

void CXSwitchWithInfoCell::infoButtonTapped() {
    const auto infoTitle = textOf(specifier(), "infoTitle");
    const auto alert = UIAlertController::alertControllerWithTitle(
        infoTitle ? infoTitle : textOf(specifier(), "label"), message(), UIAlertControllerStyle::Alert);
    alert->addAction(UIAlertAction::actionWithTitle("Cancel", UIAlertActionStyle::Cancel, {}));
    auto presenter = _viewControllerForAncestor();
    if (!presenter)
        presenter = rootViewController();
    if (presenter)
        presenter->presentViewController(alert, true, {});
}

std::string CXSwitchWithInfoCell::message() const {
    const auto key = textOf(specifier(), "infoMessage").value_or(messageInstead);
    return withLineBreaks(
        NSBundle::mainBundle()->localizedStringForKey(key, key, textOf(specifier(), "localizationTable")));
}

#include "RowConfirmation.h"

#include "SystemTexts.h"
#include "UIKit/UIAlertController.h"

#include <string>
#include <utility>

namespace {

constexpr auto question = "confirmation";

/// Nothing for a text that is missing, empty or of another type.
std::optional<std::string> textIn(const PropertyList::Dictionary& texts, const char* key) {
    const auto found = texts.find(key);
    const auto* const text = found != texts.end() ? found->second.getIf<std::string>() : nullptr;
    return text != nullptr && !text->empty() ? std::optional(*text) : std::nullopt;
}

UIAlertAction::Handler handler(std::function<void()> chosen) {
    return [chosen = std::move(chosen)](UIAlertAction& /*action*/) { chosen(); };
}

} // namespace

bool wantsConfirmation(const DesktopSpecifier& row) {
    const auto value = row.propertyForKey(question);
    return value && value->getIf<PropertyList::Dictionary>() != nullptr;
}

void askForConfirmation(UIViewController& page, const DesktopSpecifier& row, std::function<void()> confirmed,
                        std::function<void()> cancelled) {
    const auto value = row.propertyForKey(question);
    const auto* const given = value ? value->getIf<PropertyList::Dictionary>() : nullptr;
    const auto texts = given != nullptr ? *given : PropertyList::Dictionary();
    const auto alert = UIAlertController::alertControllerWithTitle(
        textIn(texts, "title"), textIn(texts, "prompt"), UIAlertControllerStyle::Alert);
    const auto style = row.boolForKey("isDestructive", false) ? UIAlertActionStyle::Destructive
                                                              : UIAlertActionStyle::Default;
    alert->addAction(
        UIAlertAction::actionWithTitle(textIn(texts, "cancelTitle").value_or(systemText("Cancel")),
                                       UIAlertActionStyle::Cancel, handler(std::move(cancelled))));
    alert->addAction(UIAlertAction::actionWithTitle(textIn(texts, "okTitle").value_or("OK"), style,
                                                    handler(std::move(confirmed))));
    page.presentViewController(alert, true, {});
}

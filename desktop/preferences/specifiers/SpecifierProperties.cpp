#include "specifiers/SpecifierProperties.h"

#include "specifiers/DesktopSpecifier.h"

#include <array>
#include <string_view>

namespace {

bool isText(const PropertyList& value) {
    return value.getIf<std::string>() != nullptr;
}

bool isArray(const PropertyList& value) {
    return value.getIf<PropertyList::Array>() != nullptr;
}

bool isDictionary(const PropertyList& value) {
    return value.getIf<PropertyList::Dictionary>() != nullptr;
}

bool isCollection(const PropertyList& value) {
    return isArray(value) || isDictionary(value);
}

bool isNumber(const PropertyList& value) {
    return value.isNumber();
}

/// What a property must be.
struct Rule {
    std::string_view key;
    bool (*holds)(const PropertyList& value);
    std::string_view what;
};

constexpr std::array<Rule, 51> rules{{
    {"PostNotification", isText, "a text"},
    {"action", isText, "a text"},
    {"autoCaps", isText, "a text"},
    {"buttonAction", isText, "a text"},
    {"cancel", isText, "a text"},
    {"cell", isText, "a text"},
    {"cellClass", isText, "a text"},
    {"confirmation", isDictionary, "a dictionary"},
    {"confirmationAction", isText, "a text"},
    {"defaults", isText, "a text"},
    {"detail", isText, "a text"},
    {"enabled", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"footerAlignment", isNumber, "a number"},
    {"footerCellClass", isText, "a text"},
    {"footerText", isText, "a text"},
    {"get", isText, "a text"},
    {"hasIcon", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"headerCellClass", isText, "a text"},
    {"headerDetailText", isText, "a text"},
    {"height", &DesktopSpecifier::isHeight, "a height in points"},
    {"hidesDisclosureIndicator", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"icon", isText, "a text"},
    {"id", isText, "a text"},
    {"isContinuous", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"isDecimalPad", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"isDestructive", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"isIP", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"isNumeric", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"isRadioGroup", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"isSegmented", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"key", isText, "a text"},
    {"keyboard", isText, "a text"},
    {"label", isText, "a text"},
    {"leftImage", isText, "a text"},
    {"max", isNumber, "a number"},
    {"min", isNumber, "a number"},
    {"negate", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"placeholder", isText, "a text"},
    {"prioritizeValueTextDisplay", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"requiredCapabilities", isCollection, "an array or a dictionary"},
    {"rightImage", isText, "a text"},
    {"segmentCount", isNumber, "a number"},
    {"set", isText, "a text"},
    {"shortTitles", isArray, "an array"},
    {"shortTitlesDataSource", isText, "a text"},
    {"showValue", &DesktopSpecifier::isYesOrNo, "a boolean"},
    {"staticTextMessage", isText, "a text"},
    {"titlesDataSource", isText, "a text"},
    {"validTitles", isArray, "an array"},
    {"validValues", isArray, "an array"},
    {"valuesDataSource", isText, "a text"},
}};

} // namespace

std::vector<std::string> mistakesIn(const PropertyList::Dictionary& properties) {
    std::vector<std::string> mistakes;
    for (const auto& rule : rules) {
        const auto found = properties.find(rule.key);
        if (found != properties.end() && !rule.holds(found->second))
            mistakes.push_back("'" + std::string(rule.key) + "' is not " + std::string(rule.what));
    }
    return mistakes;
}

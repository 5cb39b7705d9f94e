#include "AboutPage.h"

#include "Device.h"
#include "Foundation/Format.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"
#include "specifiers/DesktopSpecifier.h"
#include "texts/LanguageNames.h"

#include <array>
#include <string>
#include <utility>

namespace {

const Class classObject = Class::define<AboutPage, PSListController>("AboutPage");

std::string numberText(double number) {
    return PropertyList(static_cast<std::int64_t>(number)).description();
}

std::string kind() {
    return systemText(Screen::current().traits().idiom == Idiom::Phone ? "Phone on a desktop"
                                                                       : "Tablet on a desktop");
}

std::string appearance() {
    return systemText(Screen::current().traits().style == UserInterfaceStyle::Light ? "Light" : "Dark");
}

std::string screen() {
    const auto size = Screen::current().bounds().size;
    return numberText(size.width) + " × " + numberText(size.height) + " @" +
           numberText(Screen::current().traits().displayScale) + "x";
}

std::string language() {
    return nameOfLocale(Device::current().locale());
}

std::string timeZone() {
    return Device::current().timeZone();
}

struct Row {
    const char* label; ///< in English; "" opens a group
    std::string (*value)();
};

constexpr std::array rows{
    Row{"", nullptr}, Row{"Device", kind},       Row{"Screen", screen},     Row{"Appearance", appearance},
    Row{"", nullptr}, Row{"Language", language}, Row{"Time Zone", timeZone}};

} // namespace

AboutPage::AboutPage() {
    peer().setTitle(systemText("About"));
}

PSListController::Specifiers AboutPage::specifiers() {
    if (!cachedSpecifiers().empty())
        return cachedSpecifiers();
    Specifiers specifiers;
    for (const auto& row : rows) {
        const auto label = systemText(row.label);
        specifiers.emplace_back(make<DesktopSpecifier>(
            label.empty() ? PropertyList::Dictionary{{"cell", "PSGroupCell"}}
                          : PropertyList::Dictionary{{"cell", "PSTitleValueCell"}, {"label", label}},
            *this));
    }
    setCachedSpecifiers(specifiers);
    return specifiers;
}

std::optional<PropertyList> AboutPage::readPreferenceValue(PSSpecifier& specifier) {
    const auto label = specifier.propertyForKey("label");
    for (const auto& row : rows) {
        if (row.value != nullptr && label == PropertyList(systemText(row.label)))
            return row.value();
    }
    return std::nullopt;
}

#include "specifiers/SpecifierList.h"

#include "DesktopImage.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "specifiers/DeviceCapabilities.h"
#include "specifiers/SpecifierLocalizer.h"
#include "specifiers/SpecifierProperties.h"

#include <utility>

namespace {

constexpr auto defaultIcon = "icon.png";
constexpr double iconScale = 3; ///< the pixels per point that icons are picked for

/// Reads one list.
class Reader {
public:
    Reader(const DesktopBundle& bundle, std::string_view name, NSObject& target)
        : folder_(bundle.path()),
          path_(stringByAppendingPathComponent(folder_, std::string(name) + ".plist")),
          localizer_(bundle, name),
          target_(target) {}

    [[nodiscard]] SpecifierList read();

private:
    void add(const PropertyList& item, std::size_t number);
    void addImages(DesktopSpecifier& specifier, std::size_t number) const;

    const std::string folder_;
    const std::string path_;
    const SpecifierLocalizer localizer_;
    NSObject& target_;
    SpecifierList list_;
};

template <class T>
const T* valueIn(const PropertyList::Dictionary& dictionary, std::string_view key) {
    const auto found = dictionary.find(key);
    return found != dictionary.end() ? found->second.getIf<T>() : nullptr;
}

SpecifierList Reader::read() {
    const auto root = dictionaryWithContentsOfFile(path_);
    if (!root) {
        NSLog("%@: there is no list of rows, or it is damaged.", path_);
        return {};
    }
    if (const auto* const title = valueIn<std::string>(*root, "title"))
        list_.title = localizer_.localized(*title);
    const auto* const items = valueIn<PropertyList::Array>(*root, "items");
    if (items == nullptr)
        NSLog("%@: there is no array of items.", path_);
    for (std::size_t index = 0; items != nullptr && index < items->size(); ++index)
        add((*items)[index], index + 1);
    return std::move(list_);
}

void Reader::add(const PropertyList& item, std::size_t number) {
    const auto* const properties = item.getIf<PropertyList::Dictionary>();
    if (properties == nullptr) {
        NSLog("%@: item %@ is not a dictionary; it is left out.", path_, std::to_string(number));
        return;
    }
    for (const auto& mistake : mistakesIn(*properties))
        NSLog("%@: item %@: %@; it counts as missing.", path_, std::to_string(number), mistake);
    const auto required = properties->find("requiredCapabilities");
    if (required != properties->end() && !deviceMeets(required->second))
        return;
    auto localized = *properties;
    localizer_.localize(localized);
    const auto specifier = make<DesktopSpecifier>(std::move(localized), target_);
    addImages(*specifier, number);
    if (specifier->kind() == SpecifierKind::Unknown && !specifier->kindName().empty())
        NSLog("%@: item %@: there is no cell '%@'; a plain row stands for it.", path_, std::to_string(number),
              specifier->kindName());
    list_.specifiers.emplace_back(specifier);
}

void Reader::addImages(DesktopSpecifier& specifier, std::size_t number) const {
    for (const auto* const key : {"icon", "leftImage", "rightImage"}) {
        auto name = specifier.textForKey(key);
        if (name.empty() && key == std::string_view("icon") && specifier.boolForKey("hasIcon", false))
            name = defaultIcon;
        if (name.empty())
            continue;
        const auto image = DesktopImage::named(stringByAppendingPathComponent(folder_, name), iconScale);
        if (image)
            specifier.setImage(key, image);
        else
            NSLog("%@: item %@: '%@' names %@, which is no image.", path_, std::to_string(number), key, name);
    }
}

} // namespace

SpecifierList SpecifierList::read(const DesktopBundle& bundle, std::string_view name, NSObject& target) {
    return Reader(bundle, name, target).read();
}

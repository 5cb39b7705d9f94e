#include "PreferenceBundle.h"

#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "LoadedBundles.h"
#include "SystemTexts.h"
#include "objects/LiveObjects.h"

#include <optional>
#include <utility>

namespace {

using Problem = std::unexpected<std::string>;

/// What of a bundle's Info.plist counts here; empty texts where it says nothing.
struct BundleInfo {
    std::string executable;
    std::string principalClass;
};

std::string textIn(const PropertyList::Dictionary& info, std::string_view key) {
    const auto found = info.find(key);
    const auto* const text = found == info.end() ? nullptr : found->second.getIf<std::string>();
    return text == nullptr ? "" : *text;
}

std::expected<BundleInfo, std::string> readInfo(const std::string& bundlePath) {
    const auto path = bundlePath + "/Info.plist";
    if (!NSFileManager::defaultManager().fileExistsAtPath(path))
        return Problem(systemText("There is no %@.", {path}));
    const auto info = dictionaryWithContentsOfFile(path);
    if (!info)
        return Problem(systemText("%@ is damaged: it is no property list.", {path}));
    return BundleInfo{.executable = textIn(*info, "CFBundleExecutable"),
                      .principalClass = textIn(*info, "NSPrincipalClass")};
}

bool isBundleName(std::string_view name) {
    return !name.empty() && !name.starts_with('.') && !name.contains('/');
}

/// The class of that name, if it is one of pages.
std::expected<const Class*, std::string> pageClass(const std::string& name) {
    const auto* const found = NSClassFromString(name);
    if (found == nullptr)
        return Problem(systemText("No class in it is called “%@”.", {name}));
    const auto* const controller = NSClassFromString("UIViewController");
    if (controller == nullptr || !found->isSubclassOf(*controller))
        return Problem(systemText("Its class “%@” is no page.", {name}));
    return found;
}

} // namespace

std::string PreferenceBundle::pathOf(std::string_view name) {
    return std::string(folder).append("/").append(name).append(".bundle");
}

std::expected<PreferenceBundle, std::string> PreferenceBundle::load(std::string_view name) {
    const auto path = pathOf(name);
    auto bundle = isBundleName(name) ? DesktopBundle::withPath(path) : nullptr;
    if (!bundle)
        return Problem(
            systemText("There is no bundle “%@” in %@.", {std::string(name), std::string(folder)}));
    const auto info = readInfo(path);
    if (!info)
        return Problem(info.error());
    if (info->executable.empty() || info->principalClass.empty())
        return Problem(
            systemText(info->executable.empty() ? "%@ names no code." : "%@ names no principal class.",
                       {path + "/Info.plist"}));

    std::expected<BundleCode, std::string> code = Problem("");
    LoadedBundles::shared().addClassesLoadedBy(
        [&] { code = BundleCode::load(path + "/" + info->executable); }, bundle);
    if (!code)
        return Problem(code.error());
    PreferenceBundle loaded(std::move(bundle), std::move(*code), info->principalClass);
    if (const auto page = pageClass(info->principalClass); !page)
        return Problem(page.error());
    return loaded;
}

PreferenceBundle::PreferenceBundle(Ref<DesktopBundle> bundle, BundleCode code, std::string principalClass)
    : bundle_(std::move(bundle)),
      code_(std::move(code)),
      principalClass_(std::move(principalClass)) {}

PreferenceBundle::~PreferenceBundle() {
    if (bundle_)
        LoadedBundles::shared().removeBundle(bundle_->path());
}

std::size_t PreferenceBundle::liveObjects() const {
    std::size_t count = 0;
    for (const auto* const own : LoadedBundles::shared().classesOf(bundle_->path()))
        count += LiveObjects::shared().countOf(*own);
    return count;
}

std::expected<Ref<UIViewController>, std::string>
PreferenceBundle::makePage(const std::string& className) const {
    const auto& name = className.empty() ? principalClass_ : className;
    const auto found = pageClass(name);
    if (!found)
        return Problem(found.error());
    const auto made = (*found)->create();
    auto* const page = dynamic_cast<UIViewController*>(made.get());
    if (page == nullptr)
        return Problem(systemText("A page of its class “%@” cannot be made.", {name}));
    return retain(page);
}

#include "PagesFixture.h"

#include "DesktopBundle.h"
#include "Foundation/NSUserDefaults.h"
#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"

#include <array>

namespace {

constexpr auto bundlePath = "/var/jb/Library/PreferenceBundles/Test.bundle";
constexpr std::array classes{"cxBannerController",    "cxOrganizeController", "cxLabelController",
                             "cxGeneralController",   "cxExtraController",    "cxColorController",
                             "cxBackgroundController"};

std::string text(const std::string& key, const std::string& text) {
    return "<key>" + key + "</key><string>" + text + "</string>";
}

} // namespace

PagesFixture::PagesFixture() {
    device.write(std::string(bundlePath) + "/Info.plist", "{}");
    for (const auto* const name : classes)
        LoadedBundles::shared().addClass(*NSClassFromString(name), DesktopBundle::withPath(bundlePath));
}

PagesFixture::~PagesFixture() {
    LoadedBundles::shared().removeBundle(bundlePath);
}

void PagesFixture::writeList(const std::string& name, const std::vector<std::string>& items) {
    std::string list = R"(<plist version="1.0"><dict><key>items</key><array>)";
    for (const auto& item : items)
        list += "<dict>" + item + "</dict>";
    device.write(std::string(bundlePath) + "/" + name + ".plist", list + "</array></dict></plist>");
}

std::string PagesFixture::row(const std::string& cell, const std::string& id, const std::string& more) {
    return text("cell", cell) + text("id", id) + text("label", id) + more;
}

std::string PagesFixture::switchRow(const std::string& id, const std::string& more) {
    return row("PSSwitchCell", id, text("key", id) + text("defaults", domain) + more);
}

std::string PagesFixture::ruledRow(const std::string& id, const std::string& rule, const std::string& more) {
    return row("PSStaticTextCell", id, text("dynamicRule", rule) + more);
}

void PagesFixture::open(const std::string& className) {
    page = dynamicCast<PSListController>(NSClassFromString(className)->create());
    navigation = make<UINavigationController>();
    navigation->pushViewController(page, false);
    show(navigation);
}

void PagesFixture::store(const PropertyList& value, std::string_view key) {
    const auto suite = NSUserDefaults::initWithSuiteName(domain);
    suite->setObject(value, key);
    suite->synchronize();
}

std::optional<PropertyList> PagesFixture::stored(std::string_view key) {
    return NSUserDefaults::initWithSuiteName(domain)->objectForKey(key);
}

void PagesFixture::flip(const std::string& id) {
    const auto frame = screenFrame(cell(id));
    constexpr auto switchMiddle = 40.0; // from the card's right edge
    tap(CGPoint{CGRectGetMaxX(frame) - switchMiddle, CGRectGetMidY(frame)});
}

CGRect PagesFixture::shownFrame(const std::string& id) const {
    const auto& layer = cell(id).layer().peer();
    const auto position = layer.shownValue(LayerProperty::Position);
    const auto size = layer.shownValue(LayerProperty::BoundsSize);
    return CGRectMake(position[0] - size[0] / 2, position[1] - size[1] / 2, size[0], size[1]);
}

bool PagesFixture::isCutOff(const std::string& id) const {
    return cell(id).layer().peer().masksToBounds;
}

#include "PageFixture.h"

#include "DesktopBundle.h"
#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"

namespace {

const Class listedPageClass = Class::define<ListedPage, PSListController>(
    "ListedPage",
    {method<"tapped:", &ListedPage::tapped>(), method<"tappedPlainly", &ListedPage::tappedPlainly>(),
     method<"choiceValues:", &ListedPage::choiceValues>(),
     method<"choiceTitles:", &ListedPage::choiceTitles>(), method<"ownValue:", &ListedPage::ownValue>(),
     method<"setOwnValue:specifier:", &ListedPage::setOwnValue>()});

std::string identifierOf(const Ref<PSSpecifier>& specifier) {
    return dynamic_cast<DesktopSpecifier&>(*specifier).identifier();
}

} // namespace

PSListController::Specifiers ListedPage::specifiers() {
    if (cachedSpecifiers().empty()) {
        ++loads;
        setCachedSpecifiers(loadSpecifiersFromPlistName("Rows", *this));
    }
    return cachedSpecifiers();
}

double ListedPage::heightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath) {
    heightsAsked.push_back(identifierOf(specifierAtIndexPath(indexPath)));
    const auto own = heights.find(heightsAsked.back());
    return own != heights.end() ? own->second
                                : PSListController::heightForRowAtIndexPath(tableView, indexPath);
}

void ListedPage::tapped(const Ref<PSSpecifier>& specifier) {
    events.push_back("tapped " + identifierOf(specifier));
    tapAction();
}

void ListedPage::tappedPlainly() {
    events.emplace_back("tapped");
}

std::optional<PropertyList> ListedPage::ownValue(const Ref<PSSpecifier>& specifier) {
    return "own value of " + identifierOf(specifier);
}

void ListedPage::setOwnValue(const std::optional<PropertyList>& value, const Ref<PSSpecifier>& specifier) {
    events.push_back("set " + identifierOf(specifier) + " to " + (value ? value->description() : "nothing"));
}

std::optional<PropertyList> ListedPage::choiceValues(const Ref<PSSpecifier>& /*specifier*/) {
    return PropertyList::Array{"one", "two"};
}

std::optional<PropertyList> ListedPage::choiceTitles(const Ref<PSSpecifier>& specifier) {
    return PropertyList::Array{"First of " + identifierOf(specifier), "Second of " + identifierOf(specifier)};
}

PageFixture::PageFixture(const TestDevice::Settings& settings) : Phone({}, settings) {
    device.write(std::string(bundlePath) + "/Info.plist", "{}");
    LoadedBundles::shared().addClass(listedPageClass, DesktopBundle::withPath(bundlePath));
}

PageFixture::~PageFixture() {
    LoadedBundles::shared().removeBundle(bundlePath);
}

void PageFixture::writeList(const std::vector<std::string>& items, const std::string& title) {
    auto list = R"(<plist version="1.0"><dict>)" + text("title", title) + "<key>items</key><array>";
    for (const auto& item : items)
        list += "<dict>" + item + "</dict>";
    device.write(std::string(bundlePath) + "/Rows.plist", list + "</array></dict></plist>");
}

std::string PageFixture::text(const std::string& key, const std::string& text) {
    return value(key, "<string>" + text + "</string>");
}

std::string PageFixture::yes(const std::string& key) {
    return value(key, "<true/>");
}

std::string PageFixture::no(const std::string& key) {
    return value(key, "<false/>");
}

std::string PageFixture::value(const std::string& key, const std::string& xml) {
    return "<key>" + key + "</key>" + xml;
}

std::string PageFixture::row(const std::string& cell, const std::string& id, const std::string& more) {
    return text("cell", cell) + text("id", id) + text("label", "Row " + id) + more;
}

std::string PageFixture::keptRow(const std::string& cell, const std::string& id, const std::string& more) {
    return row(cell, id, text("key", id) + text("defaults", domain) + more);
}

void PageFixture::show() {
    page_ = make<ListedPage>();
    navigation_ = make<UINavigationController>();
    navigation_->pushViewController(page_, false);
    Phone::show(navigation_);
}

void PageFixture::tap(const std::string& id) {
    const auto frame = peer().table().view().peer().convertToScreen(listRow(id).frame);
    const CGPoint middle{CGRectGetMidX(frame), CGRectGetMidY(frame)};
    Phone::tap(middle);
    advance(std::chrono::milliseconds(100));
}

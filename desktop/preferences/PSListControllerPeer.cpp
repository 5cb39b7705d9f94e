#include "PSListControllerPeer.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"
#include "PSListItemsController.h"
#include "RowConfirmation.h"
#include "UIKit/UINavigationController.h"
#include "specifiers/RadioGroup.h"

#include <utility>

namespace {

bool isGroup(const DesktopSpecifier& specifier) {
    return specifier.kind() == SpecifierKind::Group;
}

bool showsValue(const DesktopSpecifier& specifier) {
    return specifier.kind() == SpecifierKind::TitleValue || !specifier.textForKey("key").empty() ||
           !specifier.textForKey("get").empty();
}

template <class T>
bool isPlaceIn(const std::vector<T>& elements, std::int64_t index) {
    return index >= 0 && std::cmp_less(index, elements.size());
}

bool leadsToPage(const DesktopSpecifier& specifier) {
    if (specifier.kind() == SpecifierKind::LinkList)
        return true;
    return specifier.kind() == SpecifierKind::Link && !specifier.textForKey("detail").empty();
}

Ref<UIViewController> makeDetail(const DesktopSpecifier& specifier) {
    const auto name = specifier.textForKey("detail");
    if (name.empty())
        return make<PSListItemsController>();
    const auto* const named = NSClassFromString(name);
    const auto detail = named != nullptr ? dynamicCast<UIViewController>(named->create()) : nullptr;
    if (!detail)
        NSLog("Row %@: 'detail' names %@, which is no class of a page.", specifier.identifier(), name);
    return detail;
}

} // namespace

PSListControllerPeer::~PSListControllerPeer() = default;

PSListController& PSListControllerPeer::page() const {
    return dynamic_cast<PSListController&>(controller());
}

void PSListControllerPeer::setSpecifier(const Ref<DesktopSpecifier>& specifier) {
    specifier_ = specifier;
    if (specifier && !specifier->label().empty())
        setTitle(specifier->label());
}

void PSListControllerPeer::setListTitle(const std::string& title) {
    const auto opened = specifier_ && !specifier_->label().empty();
    if (!opened && !title.empty())
        setTitle(title);
}

Ref<UIView> PSListControllerPeer::makeView() {
    rows_ = std::make_unique<SpecifierTable>(
        SpecifierTable::Page{.sections = [this] { return sectionsOf(page().specifiers()); },
                             .height = [this](IndexPath row) { return heightOf(row); },
                             .select = [this](DesktopSpecifier& specifier) { select(specifier); }});
    return rows_->view();
}

void PSListControllerPeer::viewWillAppear(bool /*animated*/) {
    // The list brings the page's title, which the bar shows from now on.
    static_cast<void>(shownRows().sections());
    shownRows().refreshShown();
}

void PSListControllerPeer::keyboardDidChange() {
    if (rows_)
        rows_->followKeyboard();
}

void PSListControllerPeer::pageReturns(double progress) {
    if (!keepsSelection_)
        table().fadeSelection(progress);
}

void PSListControllerPeer::viewDidAppear(bool /*animated*/) {
    if (!keepsSelection_)
        table().deselectRow(false);
}

SpecifierTable& PSListControllerPeer::shownRows() {
    static_cast<void>(view());
    return *rows_;
}

UITableViewPeer& PSListControllerPeer::table() {
    return shownRows().table();
}

void PSListControllerPeer::reloadSpecifiers() {
    cachedSpecifiers_.clear();
    auto sections = sectionsOf(page().specifiers());
    if (rows_)
        rows_->show(std::move(sections));
}

void PSListControllerPeer::reloadSpecifier(const PSSpecifier& specifier) {
    if (rows_)
        rows_->refresh(specifier);
}

Ref<DesktopSpecifier> PSListControllerPeer::specifierAt(NSIndexPath path) {
    const auto& sections = shownRows().sections();
    if (!isPlaceIn(sections, path.section))
        return nullptr;
    const auto& rows = sections[static_cast<std::size_t>(path.section)].rows;
    return isPlaceIn(rows, path.row) ? rows[static_cast<std::size_t>(path.row)] : nullptr;
}

double PSListControllerPeer::heightOf(IndexPath row) {
    return page().heightForRowAtIndexPath(
        dynamic_cast<UITableView&>(table().view()),
        {.section = static_cast<std::int64_t>(row.section), .row = static_cast<std::int64_t>(row.row)});
}

std::vector<PSListControllerPeer::Place> PSListControllerPeer::places() {
    std::vector<Place> found;
    const auto& sections = shownRows().sections();
    for (std::size_t section = 0; section < sections.size(); ++section) {
        if (sections[section].group)
            found.push_back({sections[section].group, {section, 0}});
        for (std::size_t row = 0; row < sections[section].rows.size(); ++row)
            found.push_back({sections[section].rows[row], {section, row}});
    }
    return found;
}

std::vector<ListRow> PSListControllerPeer::rows() {
    view().peer().layoutIfNeeded();
    std::vector<ListRow> told;
    for (const auto& place : places())
        told.push_back(rowAt(place));
    return told;
}

ListRow PSListControllerPeer::rowAt(const Place& place) {
    auto& specifier = *place.specifier;
    ListRow row;
    row.id = specifier.identifier();
    row.label = specifier.label();
    row.cell = specifier.kindName();
    row.cellClass = specifier.textForKey("cellClass");
    row.key = specifier.textForKey("key");
    row.enabled = specifier.isEnabled();
    if (isChoice(specifier))
        row.value = isChosen(specifier);
    else if (showsValue(specifier))
        row.value = specifier.performGetter();
    if (isGroup(specifier)) {
        row.frame = table().rectForHeader(place.path.section);
        row.view = table().captionView(place.path.section, TableCaptionViews::Edge::Header);
    } else {
        row.frame = table().rectForRow(place.path);
        row.view = table().cellForRow(place.path);
    }
    row.height = row.frame.size.height;
    return row;
}

void PSListControllerPeer::scrollRowIntoView(std::size_t index) {
    view().peer().layoutIfNeeded();
    const auto all = places();
    if (index >= all.size())
        return;
    const auto& place = all[index];
    if (isGroup(*place.specifier))
        table().scrollRectToVisible(table().rectForHeader(place.path.section), false);
    else
        table().scrollRowToVisible(place.path, false);
    view().peer().layoutIfNeeded();
}

void PSListControllerPeer::setValue(DesktopSpecifier& specifier, const std::optional<PropertyList>& value) {
    if (isChoice(specifier) && value && value->boolValue())
        choose(specifier);
    else
        specifier.performSetter(value);
    if (rows_)
        rows_->refreshShown();
}

void PSListControllerPeer::select(DesktopSpecifier& specifier) {
    const auto kept = retain(&controller());
    if (rows_->tapCell(specifier, page())) {
        fadeSelection();
        return;
    }
    if (openDetail(specifier))
        return;
    if (wantsConfirmation(specifier))
        confirm(specifier);
    else
        act(specifier);
}

void PSListControllerPeer::act(DesktopSpecifier& specifier) {
    const auto kept = retain(&controller());
    if (isChoice(specifier)) {
        choose(specifier);
        shownRows().refreshShown();
    }
    specifier.performAction();
    fadeSelection();
}

void PSListControllerPeer::confirm(DesktopSpecifier& specifier) {
    const auto row = retain(&specifier);
    const auto whileThere = [page = Weak<UIViewController>(&controller()), row](auto&& then) {
        return [page, row, then] {
            if (const auto kept = dynamicCast<PSListController>(page.strong()))
                then(peerOf<PSListControllerPeer>(*kept), *row);
        };
    };
    const auto confirmed = [](PSListControllerPeer& peer, DesktopSpecifier& asked) {
        if (asked.textForKey("confirmationAction").empty()) {
            peer.act(asked);
            return;
        }
        asked.performMessage("confirmationAction");
        peer.fadeSelection();
    };
    const auto cancelled = [](PSListControllerPeer& peer, DesktopSpecifier& asked) {
        asked.performMessage("cancel");
        peer.fadeSelection();
    };
    askForConfirmation(controller(), specifier, whileThere(confirmed), whileThere(cancelled));
}

void PSListControllerPeer::fadeSelection() {
    const auto staysInFront = appearance() == Appearance::Appearing || appearance() == Appearance::Appeared;
    if (!keepsSelection_ && staysInFront)
        table().deselectRow(true);
}

bool PSListControllerPeer::openDetail(DesktopSpecifier& specifier) {
    const auto navigation = controller().navigationController();
    if (!navigation || !leadsToPage(specifier))
        return false;
    const auto detail = makeDetail(specifier);
    if (const auto list = dynamicCast<PSListController>(detail))
        peerOf<PSListControllerPeer>(*list).setSpecifier(retain(&specifier));
    if (detail)
        navigation->pushViewController(detail, true);
    return static_cast<bool>(detail);
}

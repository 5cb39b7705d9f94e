#include "RootPageFixture.h"

#include "controllers/UIViewControllerPeer.h"
#include "views/UIViewPeer.h"

namespace {

constexpr auto list =
    R"(<plist version="1.0"><dict><key>title</key><string>Corvex</string><key>items</key><array>
       <dict><key>cell</key><string>PSGroupCell</string></dict>
       <dict><key>cell</key><string>PSSwitchCell</string><key>key</key><string>removeSOS</string>
       <key>defaults</key><string>com.orvel.corvexprefs</string></dict></array></dict></plist>)";

} // namespace

RootPageFixture::RootPageFixture(bool knowsWhatIsNew) : PanePage("cxRootListController", "Root", list) {
    if (knowsWhatIsNew)
        store("3.0.1", "LastVersionPopupShown");
    page = make<cxRootListController>();
}

DesktopNavigationItem& RootPageFixture::item() const {
    return page->peer().navigationItem();
}

Ref<GlintImageSwitch> RootPageFixture::masterSwitch() const {
    return dynamicCast<GlintImageSwitch>(item().titleView());
}

const DesktopBarButtonItem& RootPageFixture::gear() const {
    return dynamic_cast<const DesktopBarButtonItem&>(*item().rightItems().at(0));
}

const DesktopMenu& RootPageFixture::menu() const {
    return dynamic_cast<const DesktopMenu&>(*gear().content().menu);
}

void RootPageFixture::tapMasterSwitch() {
    const auto middle = masterSwitch()->peer().convertToScreen(CGPoint{25, 15});
    tap(middle);
}

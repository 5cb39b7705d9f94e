#pragma once

#include "PanePage.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "cxRootListController.h"
#include "menus/DesktopMenu.h"

#include <cstdint>
#include <vector>

/// The root page on a phone's screen, in a navigation controller.
class RootPageFixture : public PanePage {
protected:
    using Sounds = std::vector<std::uint32_t>;

    /// \param knowsWhatIsNew whether what is new has been shown before
    explicit RootPageFixture(bool knowsWhatIsNew);

    void show() { showPage(page); }

    [[nodiscard]] DesktopNavigationItem& item() const;
    [[nodiscard]] Ref<GlintImageSwitch> masterSwitch() const;
    [[nodiscard]] const DesktopBarButtonItem& gear() const;
    [[nodiscard]] const DesktopMenu& menu() const;

    void tapMasterSwitch();

    Ref<cxRootListController> page;
};

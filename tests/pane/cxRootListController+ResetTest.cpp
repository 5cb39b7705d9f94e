#include "CoreFoundation/CFString.h"
#include "PreferenceKeys.h"
#include "RectGeometry.h"
#include "RootPageFixture.h"
#include "controllers/UIViewControllerPeer.h"
#include "controls/UISwitchPeer.h"
#include "menus/DesktopAction.h"
#include "system/ApplicationSuspension.h"
#include "system/ApplicationTermination.h"
#include "system/DarwinNotifications.h"
#include "system/LibraryFiles.h"
#include "system/SystemSounds.h"
#include "time/MainQueueScheduler.h"
#include "views/UIViewPeer.h"

#include <filesystem>
#include <fstream>
#include <iterator>

/// What the pane exports: where the system's function was found last.
extern "C" {
extern void (*BKSTerminateApplicationForReasonAndReportWithDescription)(CFStringRef, int, bool, CFStringRef);
}

namespace {

using namespace std::chrono_literals;

constexpr auto servicesPath =
    "/System/Library/PrivateFrameworks/BackBoardServices.framework/BackBoardServices";
const std::string preferenceFolder = "/var/jb/var/mobile/Library/Preferences/";

using Requests = std::vector<ApplicationTermination::Request>;

class cxRootListControllerResetTest : public RootPageFixture {
protected:
    cxRootListControllerResetTest() : RootPageFixture(true) {
        Device::current().suspensions().setHandler([this] { ++suspensions; });
        Device::current().terminations().setHandler(
            [this](const auto& request) { requests.push_back(request); });
    }

    /// The library of the system's that ends applications.
    void installServices(const std::string& builtFile) const {
        std::ifstream file(builtFile, std::ios::binary);
        ASSERT_TRUE(file.is_open());
        device.write(servicesPath, std::string(std::istreambuf_iterator<char>(file), {}));
    }

    void writeFiles() const {
        device.write(preferenceFolder + "com.orvel.corvexprefs.plist", "x");
        for (const auto name : ImageFileSet)
            device.write(preferenceFolder + "com.orvel.corvexprefs/" + std::string(name), "x");
    }

    /// The buttons of the alert on the screen.
    [[nodiscard]] std::vector<Presented::Action> buttons() { return screen.presentations().top()->actions(); }

    void choose(const std::string& title) {
        for (const auto& button : buttons()) {
            if (button.title != title)
                continue;
            const CGPoint middle{CGRectGetMidX(button.frame), CGRectGetMidY(button.frame)};
            tap(middle);
            return;
        }
        ADD_FAILURE() << "there is no button " << title;
    }

    int suspensions = 0;
    Requests requests;
};

/// The first switch in a view; empty when there is none.
Ref<UISwitch> rowSwitchIn(const UIView& view) {
    for (const auto& subview : view.peer().subviews()) {
        const auto found = dynamicCast<UISwitch>(subview);
        if (const auto within = found ? found : rowSwitchIn(*subview))
            return within;
    }
    return nullptr;
}

/// Whether the page's switch in a row, as it is laid out, is on.
bool isRowOn(UIViewController& page) {
    page.view().peer().layoutIfNeeded();
    const auto shown = rowSwitchIn(page.view());
    EXPECT_TRUE(shown);
    return shown && peerOf<UISwitchPeer>(*shown).isOn();
}

const Requests settingsEnds{
    {.identifier = "com.apple.Preferences", .reason = 1, .report = false, .description = std::nullopt}};

} // namespace

TEST_F(cxRootListControllerResetTest, AsksFirstWithASoundAndAnAlert) {
    show();
    page->resetSettings();
    EXPECT_EQ(Device::current().sounds().take(), Sounds{1519});
    settle();
    auto* const alert = screen.presentations().top();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->kind(), "alert");
    EXPECT_EQ(alert->title(), "Reset CX Settings");
    EXPECT_EQ(alert->details()->detail, "Do you want to reset settings?");
    ASSERT_EQ(buttons().size(), 2U);
    EXPECT_EQ(buttons()[0].title, "Cancel");
    EXPECT_TRUE(buttons()[0].cancels);
    EXPECT_EQ(buttons()[1].title, "Confirm");
    EXPECT_TRUE(buttons()[1].destructive);
}

TEST_F(cxRootListControllerResetTest, CancelDoesNothingElse) {
    show();
    store(true);
    page->resetSettings();
    settle();
    choose("Cancel");
    settle();
    EXPECT_FALSE(page->presentedViewController());
    EXPECT_EQ(stored("kEnabled"), PropertyList(true));
    EXPECT_EQ(suspensions, 0);
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerResetTest, ConfirmRemovesEverythingAndEndsSettings) {
    installServices(BACKBOARD_SERVICES);
    show();
    store(true);
    store("of nobody we know", "foreignKey");
    writeFiles();
    page->resetSettings();
    settle();
    choose("Confirm");
    settle();
    EXPECT_FALSE(stored("kEnabled"));
    EXPECT_FALSE(stored("foreignKey"));
    EXPECT_FALSE(stored("LastVersionPopupShown"));
    EXPECT_FALSE(std::filesystem::exists(device.hostPath(preferenceFolder + "com.orvel.corvexprefs.plist")));
    EXPECT_TRUE(std::filesystem::is_empty(device.hostPath(preferenceFolder + "com.orvel.corvexprefs")))
        << "the folder stays, its images do not";
    EXPECT_EQ(suspensions, 1);
    EXPECT_EQ(requests, settingsEnds);
    EXPECT_EQ(device.log().take(), Log());
    EXPECT_TRUE(Device::current().notifications().take().empty()) << "the extension is not told";
}

TEST_F(cxRootListControllerResetTest, ConfirmSuspendsOnceEverythingIsGoneAndEndsHalfASecondLater) {
    installServices(BACKBOARD_SERVICES);
    show();
    writeFiles();
    bool isGone = false;
    Device::current().suspensions().setHandler([&] {
        ++suspensions;
        isGone = !stored("LastVersionPopupShown") &&
                 std::filesystem::is_empty(device.hostPath(preferenceFolder + "com.orvel.corvexprefs"));
    });
    page->resetSettings();
    settle();
    choose("Confirm");
    while (suspensions == 0) {
        const auto due = Device::current().mainQueue().nextDue();
        ASSERT_TRUE(due);
        advance(*due - device.clock().uptime());
    }
    EXPECT_TRUE(isGone);
    advance(499999us);
    EXPECT_TRUE(requests.empty());
    advance(1us);
    EXPECT_EQ(requests, settingsEnds);
    EXPECT_EQ(suspensions, 1);
}

TEST_F(cxRootListControllerResetTest, WithNothingToRemoveItLogsFourFailuresAndGoesOn) {
    installServices(BACKBOARD_SERVICES);
    show();
    page->performReset();
    const auto lines = device.log().take();
    ASSERT_EQ(lines.size(), 4U);
    const std::vector<std::string> paths{
        "com.orvel.corvexprefs.plist", "com.orvel.corvexprefs/kCustomImage-IMG",
        "com.orvel.corvexprefs/kCustomIcon-IMG", "com.orvel.corvexprefs/customBackgroundImage-IMG"};
    for (std::size_t index = 0; index < paths.size(); ++index) {
        const auto start = "Error removing file at path " + preferenceFolder + paths[index] + ": ";
        EXPECT_TRUE(lines[index].starts_with(start)) << lines[index];
        EXPECT_GT(lines[index].size(), start.size());
    }
    EXPECT_EQ(suspensions, 1);
    settle();
    EXPECT_EQ(requests, settingsEnds);
}

TEST_F(cxRootListControllerResetTest, AFileThatIsMissingDoesNotKeepTheOthers) {
    show();
    writeFiles();
    std::filesystem::remove(device.hostPath(preferenceFolder + "com.orvel.corvexprefs/kCustomImage-IMG"));
    page->removePreferenceFiles();
    EXPECT_EQ(device.log().take().size(), 1U);
    EXPECT_TRUE(std::filesystem::is_empty(device.hostPath(preferenceFolder + "com.orvel.corvexprefs")));
}

TEST_F(cxRootListControllerResetTest, TheRowsShowWhatIsLeftAfterwards) {
    store(true, "removeSOS");
    show();
    const auto before = page->specifiers();
    ASSERT_TRUE(isRowOn(*page));
    page->performReset();
    EXPECT_NE(page->specifiers(), before) << "the list has been read anew";
    EXPECT_FALSE(isRowOn(*page));
    EXPECT_FALSE(page->readPreferenceValue(*page->specifiers().at(1)));
}

TEST_F(cxRootListControllerResetTest, ClosingSuspendsAtOnceAndEndsHalfASecondLater) {
    installServices(BACKBOARD_SERVICES);
    show();
    page->closeSettings();
    EXPECT_EQ(suspensions, 1);
    advance(499999us);
    EXPECT_TRUE(requests.empty());
    advance(1us);
    EXPECT_EQ(requests, settingsEnds);
}

TEST_F(cxRootListControllerResetTest, TheMenusRowsDoTheSame) {
    installServices(BACKBOARD_SERVICES);
    show();
    menu().actions()[1]->perform();
    settle();
    EXPECT_EQ(screen.presentations().top()->title(), "Reset CX Settings");
    EXPECT_EQ(suspensions, 0);
    choose("Cancel");
    settle();
    menu().actions()[0]->perform();
    EXPECT_EQ(suspensions, 1);
    settle();
    EXPECT_EQ(requests, settingsEnds);
}

TEST_F(cxRootListControllerResetTest, AnyDelayIsTakenInSeconds) {
    installServices(BACKBOARD_SERVICES);
    for (const auto& [delay, wait] : std::vector<std::pair<double, std::chrono::nanoseconds>>{
             {0, 0ns}, {0.25, 250ms}, {2, 2s}, {-1, 0ns}}) {
        requests.clear();
        page->terminateSettingsAfterDelay(delay);
        if (wait > 1ms) {
            advance(wait - 1ms);
            EXPECT_TRUE(requests.empty()) << delay;
            advance(1ms);
        } else {
            EXPECT_TRUE(requests.empty()) << "never before it returns";
            advance(0s);
        }
        EXPECT_EQ(requests, settingsEnds) << delay;
    }
}

TEST_F(cxRootListControllerResetTest, WithoutTheServiceNothingEnds) {
    show();
    page->closeSettings();
    settle();
    EXPECT_EQ(suspensions, 1);
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerResetTest, WithoutItsFunctionNothingEnds) {
    installServices(BACKBOARD_SERVICES);
    page->terminateSettingsUsingBKS();
    EXPECT_NE(BKSTerminateApplicationForReasonAndReportWithDescription, nullptr);
    installServices(OTHER_SERVICES);
    requests.clear();
    page->terminateSettingsUsingBKS();
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(BKSTerminateApplicationForReasonAndReportWithDescription, nullptr);
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerResetTest, TheServiceIsClosedAgain) {
    for (const auto* const services : {BACKBOARD_SERVICES, OTHER_SERVICES}) {
        installServices(services);
        page->terminateSettingsUsingBKS();
        std::ifstream maps("/proc/self/maps");
        const std::string loaded(std::istreambuf_iterator<char>(maps), {});
        EXPECT_FALSE(loaded.contains(device.hostPath(servicesPath))) << services;
    }
}

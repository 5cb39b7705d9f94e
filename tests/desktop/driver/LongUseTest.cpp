// What is opened and closed over and over leaves nothing behind.

#include "KnownTexts.h"
#include "ObjectiveC/Weak.h"
#include "WholeProgram.h"
#include "navigation/UINavigationControllerPeer.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

constexpr auto rounds = 200;

/// What the address sanitizer keeps of each static object that is to end, also of those whose code is
/// unloaded: a record of 32 bytes, for each time that the pane is loaded.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t recordsOfEnds = 200'000;
#else
constexpr std::size_t recordsOfEnds = 0;
#endif

/// Bytes; a view kept in each round takes more.
constexpr std::size_t allowance = 20'000 + recordsOfEnds;

/// Has the texts that are kept be others, always the same ones: those of the time of day go on changing.
void replaceKnownTexts() {
    for (std::size_t number = 0; number < KnownTexts::capacity; ++number)
        static_cast<void>(KnownTexts::shared().lines(std::to_string(number), FontStyle(), {}));
}

/// Has the allocator keep nothing of what was freed for each thread, which it would count as used.
constexpr std::string_view withoutCaches = "glibc.malloc.tcache_count=0";

bool countsWhatIsUsedAlone() {
#ifdef __SANITIZE_ADDRESS__
    return true;
#else
    const auto* const tunables = std::getenv("GLIBC_TUNABLES");
    return tunables != nullptr && tunables == withoutCaches;
#endif
}

/// What the process has allocated and not freed.
std::size_t bytesInUse() {
    replaceKnownTexts();
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto memory = mallinfo2();
    return memory.uordblks + memory.hblkhd;
#endif
}

class LongUseTest : public testing::Test {
protected:
    /// Opens the pane, reads what is new, opens the menu, turns the switch and goes on while things still
    /// move.
    void useOnce(int round) {
        program.done("open");
        program.done(round % 3 == 0 ? "advance 0.2" : "settle");
        if (program.screen().presentations().top() != nullptr)
            readWhatIsNew();
        program.done("tap gear.badge");
        program.done(round % 5 == 0 ? "advance 0.1" : "settle");
        watch();
        program.done("touch down 195 69");
        program.done("touch up 195 69");
        program.done(round % 2 == 0 ? "settle" : "advance 0.05");
        for (const auto* const events : {"log", "notifications", "sounds"})
            program.done(events);
    }

    void readWhatIsNew() {
        program.done("settle");
        EXPECT_TRUE(program.done("swipe-down").value("dismissed").toBool());
        program.done("settle");
    }

    /// Wipes everything, which ends the application.
    void reset() {
        program.done("settle");
        for (const auto* const line : {"tap gear.badge", "tap \"Reset Settings\"", "tap Confirm"}) {
            program.done(line);
            program.done("settle");
        }
        EXPECT_EQ(program.shell().settings(), nullptr);
        EXPECT_FALSE(program.done("live cxRootListController").value("known").toBool(true));
    }

    /// Ends or leaves the application, one way or another.
    void leave(int round) {
        if (round % 2 == 1) {
            reset();
        } else if (round % 4 == 0) {
            program.shell().goHome();
            program.done(round % 8 == 0 ? "settle" : "advance 0.1");
        }
        program.done("relaunch");
    }

    /// Remembers every view and every page that there is now, in place of those before.
    void watch() {
        views.clear();
        pages.clear();
        for (const auto& window : program.screen().windows())
            watchViews(*window);
        for (const auto& page :
             peerOf<UINavigationControllerPeer>(*program.shell().settings()->pages()).stack())
            pages.emplace_back(page);
    }

    void watchViews(UIView& view) {
        views.emplace_back(&view);
        for (const auto& subview : view.peer().subviews())
            watchViews(*subview);
    }

    template <class T>
    [[nodiscard]] static std::size_t alive(const std::vector<Weak<T>>& watched) {
        return static_cast<std::size_t>(std::ranges::count_if(
            watched, [](const Weak<T>& object) { return static_cast<bool>(object.strong()); }));
    }

    [[nodiscard]] std::size_t viewsInWindows() {
        views.clear();
        for (const auto& window : program.screen().windows())
            watchViews(*window);
        return views.size();
    }

    WholeProgram program{{.idiom = Idiom::Phone, .style = UserInterfaceStyle::Light, .scale = 1, .size = {}}};
    std::vector<Weak<UIView>> views;
    std::vector<Weak<UIViewController>> pages;
};

} // namespace

TEST_F(LongUseTest, NoViewAndNoPageOutlivesTheApplication) {
    program.done("settle");
    const auto before = viewsInWindows();
    for (auto round = 0; round < 20; ++round) {
        useOnce(round);
        EXPECT_GT(alive(views), 50U);
        EXPECT_EQ(alive(pages), 2U);
        program.shell().terminateSettings();
        program.done("settle");
        EXPECT_EQ(alive(views), before) << "the home screen alone, round " << round;
        EXPECT_EQ(alive(pages), 0U) << round;
    }
    EXPECT_EQ(viewsInWindows(), before);
}

TEST_F(LongUseTest, MemoryStaysLevel) {
    if (!countsWhatIsUsedAlone())
        GTEST_SKIP() << "needs GLIBC_TUNABLES=" << withoutCaches;
    std::size_t early = 0;
    for (auto round = 0; round < rounds; ++round) {
        useOnce(round);
        leave(round);
        if (round == rounds / 4)
            early = bytesInUse();
    }
    EXPECT_GT(early, 0U);
    EXPECT_LT(bytesInUse(), early + allowance);
}

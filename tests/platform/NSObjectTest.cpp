#include "ObjectiveC/Class.h"
#include "system/LogRecorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class Page : public NSObject {
public:
    void refresh() { ++refreshes; }

    void open(const Ref<NSObject>& sender) { lastSender = sender; }

    int refreshes = 0;
    Ref<NSObject> lastSender;
};

class QuietPage : public Page {};

class NeverReady : public NSObject {
public:
    [[nodiscard]] bool init() override { return false; }
};

const Class pageClass =
    Class::define<Page>("TestPage", {method<"refresh", &Page::refresh>(), method<"open:", &Page::open>()});

} // namespace

TEST(NSObject, IsOfTheClassThatTheTableStates) {
    EXPECT_EQ(&make<Page>()->isa(), &pageClass);
}

TEST(NSObject, OfAClassThatIsNotInTheTableIsOfTheNearestOne) {
    EXPECT_EQ(make<QuietPage>()->isa().name(), "TestPage");
    EXPECT_EQ(make<NeverReady>(), nullptr);
}

TEST(NSObject, DescribesItselfByClassAndAddress) {
    const auto page = make<Page>();
    const auto text = page->description();
    EXPECT_TRUE(text.starts_with("<TestPage: 0x")) << text;
    EXPECT_TRUE(text.ends_with(">")) << text;
    EXPECT_NE(text, make<Page>()->description());
}

TEST(NSObject, RespondsToTheSelectorsOfItsClassAndItsBases) {
    const auto page = make<QuietPage>();
    EXPECT_TRUE(page->respondsToSelector("refresh"));
    EXPECT_TRUE(page->respondsToSelector("open:"));
    EXPECT_FALSE(page->respondsToSelector("open"));
    EXPECT_FALSE(page->respondsToSelector(""));
}

TEST(NSObject, PerformsASelectorWithItsArgument) {
    const auto page = make<Page>();
    const Ref<NSObject> sender = make<Page>();
    page->performSelector("open:", {sender});
    EXPECT_EQ(page->lastSender, sender);
    page->lastSender = nullptr;
}

TEST(NSObject, ArgumentsBeyondTheSelectorsAreIgnored) {
    const auto page = make<Page>();
    page->performSelector("refresh", {Ref<NSObject>(make<Page>()), PropertyList(1)});
    EXPECT_EQ(page->refreshes, 1);
}

TEST(NSObject, AMissingArgumentArrivesAsNull) {
    const auto page = make<Page>();
    page->lastSender = make<Page>();
    page->performSelector("open:");
    EXPECT_EQ(page->lastSender, nullptr);
}

TEST(NSObject, AnUnknownSelectorIsLoggedAndAnsweredWithNothing) {
    LogRecorder log;
    const auto page = make<Page>();
    const auto answer = page->performSelector("explode:");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(answer));
    EXPECT_EQ(log.take(), (std::vector<std::string>{"-[TestPage explode:]: unrecognized selector sent to " +
                                                    page->description()}));
}

TEST(NSObject, AnObjectWhoseInitRefusesComesToNothing) {
    EXPECT_EQ(make<NeverReady>(), nullptr);
}

#include "OnBoardingKit/OBWelcomeController.h"

#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"
#include "WelcomeFixture.h"

namespace {

class OBWelcomeControllerTest : public WelcomeFixture {};

TEST_F(OBWelcomeControllerTest, IsFoundByItsName) {
    const auto* const found = NSClassFromString("OBWelcomeController");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(&show()->isa(), found);
    EXPECT_EQ(found->superclass()->name(), "UIViewController");
}

TEST_F(OBWelcomeControllerTest, ShowsATitleADetailAndAnIcon) {
    const auto icon = picture(60, 60);
    show(OBWelcomeController::initWithTitle("New", "Version 3", icon));
    EXPECT_EQ(peer().sheetTitle(), "New");
    EXPECT_EQ(peer().sheetDetail(), "Version 3");
    EXPECT_EQ(peer().sheetSymbol(), "");
    EXPECT_EQ(headerImage().image(), icon);
}

TEST_F(OBWelcomeControllerTest, ShowsASymbolByItsName) {
    show(OBWelcomeController::initWithTitle("New", std::nullopt, "gear"));
    EXPECT_EQ(peer().sheetSymbol(), "gear");
    EXPECT_EQ(peer().sheetDetail(), "");
    ASSERT_TRUE(headerImage().image());
}

TEST_F(OBWelcomeControllerTest, ShowsNoImageWhenThereIsNone) {
    for (const auto& page : {OBWelcomeController::initWithTitle("New", "Version 3", Ref<UIImage>()),
                             OBWelcomeController::initWithTitle("New", "Version 3", "no.such.symbol")}) {
        show(page);
        EXPECT_FALSE(headerImage().image());
        EXPECT_EQ(headerLabels()[0]->frame().origin.y, 65);
    }
}

TEST_F(OBWelcomeControllerTest, TintsItsSymbolWithTheViewsTint) {
    const auto& page = show(OBWelcomeController::initWithTitle("New", std::nullopt, "gear"));
    EXPECT_TRUE(hasColor(headerImage(), QColor(0, 122, 255)));
    page->view().setTintColor(DesktopColor::fixed(red));
    EXPECT_TRUE(hasColor(headerImage(), Qt::red));
    EXPECT_FALSE(hasColor(headerImage(), QColor(0, 122, 255)));
}

TEST_F(OBWelcomeControllerTest, KeepsItsItemsInTheirOrder) {
    const auto& page = show();
    addItems({"one", "two", "three"});
    page->addBulletedListItemWithTitle("four", "", nullptr, DesktopColor::fixed(red));
    EXPECT_EQ(itemTitles(), (std::vector<std::string>{"one", "two", "three", "four"}));
    EXPECT_EQ(list().subviews().size(), 4U);
    for (std::size_t index = 0; index < 4; ++index)
        EXPECT_EQ(list().subviews()[index], items()[index]);
}

TEST_F(OBWelcomeControllerTest, NamesItemsAndNothingElseBulletedListItems) {
    show(OBWelcomeController::initWithTitle("New", "Version 3", "gear"));
    addItems({"one", "two", "three"});
    std::vector<const UIView*> named;
    forEachView(page()->view(), [&](const UIView& view) {
        if (view.isa().name().contains("BulletedListItem"))
            named.push_back(&view);
    });
    ASSERT_EQ(named.size(), 3U);
    for (std::size_t index = 0; index < 3; ++index)
        EXPECT_EQ(named[index], items()[index].get());
}

TEST_F(OBWelcomeControllerTest, TintsAnItemWithItsOwnTintOrElseTheViews) {
    const auto& page = show();
    page->view().setTintColor(DesktopColor::fixed(blue));
    page->addBulletedListItemWithTitle("own", "", symbol("gear"), DesktopColor::fixed(red));
    page->addBulletedListItemWithTitle("none", "", symbol("gear"));
    page->addBulletedListItemWithTitle("empty", "", symbol("gear"), nullptr);
    const std::vector<QColor> expected{Qt::red, Qt::blue, Qt::blue};
    for (std::size_t index = 0; index < 3; ++index) {
        for (const QColor color : {Qt::red, Qt::blue})
            EXPECT_EQ(hasColor(image(index), color), color == expected[index]) << index;
    }
}

TEST_F(OBWelcomeControllerTest, LeavesPicturesTheirColours) {
    const auto& page = show();
    page->addBulletedListItemWithTitle("picture", "", picture(30, 30), DesktopColor::fixed(red));
    EXPECT_TRUE(hasColor(image(0), Qt::green));
    EXPECT_FALSE(hasColor(image(0), Qt::red));
}

TEST_F(OBWelcomeControllerTest, TellsOfItsItems) {
    const auto& page = show();
    page->addBulletedListItemWithTitle("plain", "text", symbol("gear"));
    page->addBulletedListItemWithTitle("red", "", picture(9, 9), DesktopColor::fixed(red));
    page->addBulletedListItemWithTitle("tapped", "", nullptr);
    items()[2]->peer().addGestureRecognizer(make<TapGestureRecognizer>());
    const auto told = peer().sheetItems();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0].title, "plain");
    EXPECT_EQ(told[0].description, "text");
    EXPECT_EQ(told[0].symbol, "gear");
    EXPECT_FALSE(told[0].tint);
    EXPECT_EQ(told[1].symbol, "");
    EXPECT_EQ(DesktopColor::resolve(told[1].tint, Traits()), red);
    for (std::size_t index = 0; index < 3; ++index)
        EXPECT_EQ(told[index].tappable, index == 2) << index;
}

TEST_F(OBWelcomeControllerTest, EndsWithItsLastOwner) {
    auto page = OBWelcomeController::initWithTitle("New", "Version 3", "gear");
    page->addBulletedListItemWithTitle("one", "text", symbol("gear"), DesktopColor::fixed(red));
    const Weak<UIView> view(&page->view());
    const Weak<OBWelcomeController> watched(page.get());
    const Weak<UIView> item(peerOf<OBWelcomeControllerPeer>(*page).welcomeView().list().items()[0].get());
    page = nullptr;
    EXPECT_FALSE(watched.strong());
    EXPECT_FALSE(view.strong());
    EXPECT_FALSE(item.strong());
}

} // namespace

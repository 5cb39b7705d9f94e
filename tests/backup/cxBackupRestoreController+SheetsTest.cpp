#include "BackupPageFixture.h"
#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/AttachedValues.h"
#include "ObjectiveC/Class.h"
#include "UIKit/_UIBackdropView.h"
#include "controllers/DesktopNavigationItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "views/UIViewPeer.h"

namespace {

using Block = std::function<void()>;

/// A list item that holds another one.
class OuterItem final : public UIView {};

class InnerItem final : public UIView {};

class OtherView final : public UIView {};

const Class outerClass = Class::define<OuterItem, UIView>("MyBulletedListItemView");
const Class innerClass = Class::define<InnerItem, UIView>("BulletedListItem");
const Class otherClass = Class::define<OtherView, UIView>("bulletedListItem");

class cxBackupRestoreControllerSheetsTest : public BackupPageFixture {
protected:
    cxBackupRestoreControllerSheetsTest() { show(); }

    [[nodiscard]] Ref<OBWelcomeController> build() {
        return page->createWelcomeControllerWithTitle("Title", "Detail", "gear", 2);
    }

    /// Presented, with one item in its list. \returns the item
    [[nodiscard]] Ref<UIView> presentItem() {
        const auto built = build();
        built->addBulletedListItemWithTitle("Item", "", nullptr, nullptr);
        page->presentViewController(built, false, {});
        settle();
        const auto items = page->findBulletedListItemsInView(built->bulletedList());
        EXPECT_EQ(items.size(), 1U);
        return items.front();
    }

    void watchTaps(UIView& view) {
        view.addGestureRecognizer(UITapGestureRecognizer::initWithTarget(*page, "handleBulletedListTap:"));
    }
};

} // namespace

TEST_F(cxBackupRestoreControllerSheetsTest, ASheetIsBuiltOverABlurAndNotYetPresented) {
    const auto built = build();
    auto& view = built->view();
    const auto beneath = dynamicCast<_UIBackdropView>(view.peer().subviews().at(0));
    ASSERT_TRUE(beneath);
    EXPECT_TRUE(beneath->layer().peer().masksToBounds);
    EXPECT_TRUE(beneath->layer().peer().backdrop);
    EXPECT_EQ(beneath->frame(), view.bounds());
    EXPECT_EQ(DesktopColor::resolve(view.peer().backgroundColor(), Traits()).alpha, 0);
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerSheetsTest, ASheetIsBuiltAsAPageSheetWhichItsPresentersReplace) {
    page->presentViewController(build(), true, {});
    settle();
    EXPECT_EQ(details().style, "pageSheet");
    EXPECT_TRUE(details().swipeDismissable);
    EXPECT_EQ(presented().title(), "Title");
    EXPECT_EQ(details().detail, "Detail");
    EXPECT_EQ(details().symbol, "gear");
}

TEST_F(cxBackupRestoreControllerSheetsTest, ASheetIsBuiltByItsSelectorToo) {
    const auto answer =
        page->performSelector("createWelcomeControllerWithTitle:detailText:symbolName:backdropStyle:",
                              {PropertyList("T"), PropertyList("D"), PropertyList("gear"), PropertyList(2)});
    EXPECT_TRUE(dynamicCast<OBWelcomeController>(std::get<Ref<NSObject>>(answer)));
}

TEST_F(cxBackupRestoreControllerSheetsTest, WithoutSuchABackdropASheetHasNone) {
    const auto built = page->createWelcomeControllerWithTitle("Title", std::nullopt, "no such symbol", 4711);
    const auto beneath = dynamicCast<_UIBackdropView>(built->view().peer().subviews().at(0));
    EXPECT_TRUE(!beneath || !beneath->layer().peer().backdrop);
}

TEST_F(cxBackupRestoreControllerSheetsTest, AMessageHasItsTextsAndOneButton) {
    page->showMessage("Text", "Title");
    settle();
    EXPECT_EQ(message(), (Message{"Title", "Text"}));
    EXPECT_EQ(presented().kind(), "sheet");
    EXPECT_EQ(details().style, "formSheet");
    EXPECT_FALSE(details().swipeDismissable);
    EXPECT_TRUE(details().items.empty());
    EXPECT_FALSE(leftButton());
    ASSERT_TRUE(rightButton());
    EXPECT_EQ(rightButton()->content().title, "OK");
    EXPECT_TRUE(rightButton()->content().emphasised);
}

TEST_F(cxBackupRestoreControllerSheetsTest, ItsButtonClosesAMessage) {
    page->showMessage("Text", "Title");
    settle();
    tapOn("OK");
    EXPECT_FALSE(isPresenting());
    EXPECT_FALSE(page->presentedViewController());
}

TEST_F(cxBackupRestoreControllerSheetsTest, TheCompletionRunsOnceTheMessageHasGone) {
    int calls = 0;
    bool wasGone = false;
    page->showMessage("Text", "Title", [&] {
        ++calls;
        wasGone = !page->presentedViewController();
    });
    settle();
    page->dismissMessageController(rightButton());
    EXPECT_EQ(calls, 0) << "it is still on its way out";
    settle();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(wasGone);
}

TEST_F(cxBackupRestoreControllerSheetsTest, TheNextMessageCanComeFromTheCompletion) {
    page->showMessage("First", "1", [this] { page->showMessage("Second", "2"); });
    settle();
    tapOn("OK");
    EXPECT_EQ(message(), (Message{"2", "Second"}));
    EXPECT_EQ(screen.presentations().all().size(), 1U);
}

TEST_F(cxBackupRestoreControllerSheetsTest, TheCompletionIsAttachedToTheButton) {
    page->showMessage("Text", "Title", [] {});
    settle();
    EXPECT_TRUE(attachedValueOf<Block>(*rightButton(), "CompletionBlock"));
    tapOn("OK");
    page->showMessage("Text", "Title");
    settle();
    EXPECT_EQ(attachedValue(*rightButton(), "CompletionBlock").index(), 0U);
}

TEST_F(cxBackupRestoreControllerSheetsTest, AMessageIsShownByItsSelectorsToo) {
    int calls = 0;
    page->performSelector(
        "showMessage:withTitle:completion:",
        {PropertyList("Text"), PropertyList("Title"), std::make_shared<const Block>([&calls] { ++calls; })});
    settle();
    EXPECT_EQ(message(), (Message{"Title", "Text"}));
    tapOn("OK");
    EXPECT_EQ(calls, 1);
    page->performSelector("showMessage:withTitle:", {PropertyList("Other"), PropertyList("Title")});
    settle();
    EXPECT_EQ(message(), (Message{"Title", "Other"}));
}

TEST_F(cxBackupRestoreControllerSheetsTest, AMessageWithoutATextHasItsTitle) {
    page->showMessage(std::nullopt, "Error");
    settle();
    EXPECT_EQ(message(), (Message{"Error", ""}));
}

TEST_F(cxBackupRestoreControllerSheetsTest, AButtonWithoutACompletionClosesTheMessageAllTheSame) {
    page->showMessage("Text", "Title");
    settle();
    page->dismissMessageController(nullptr);
    settle();
    EXPECT_FALSE(isPresenting());
}

TEST_F(cxBackupRestoreControllerSheetsTest, MessagesAreNotQueued) {
    page->showMessage("First", "1");
    page->showMessage("Second", "2");
    settle();
    EXPECT_EQ(message(), (Message{"1", "First"}));
    EXPECT_EQ(screen.presentations().all().size(), 1U);
}

TEST_F(cxBackupRestoreControllerSheetsTest, OnlyASheetIsDismissed) {
    page->dismissWelcomeController(nullptr);
    settle();
    const auto other = make<UIViewController>();
    page->presentViewController(other, false, {});
    page->dismissWelcomeController(nullptr);
    settle();
    EXPECT_EQ(page->presentedViewController(), other);
    page->dismissViewControllerAnimated(false, {});
    page->presentViewController(build(), false, {});
    page->dismissWelcomeController(page);
    EXPECT_TRUE(page->presentedViewController()) << "animated";
    settle();
    EXPECT_FALSE(page->presentedViewController());
}

TEST_F(cxBackupRestoreControllerSheetsTest, ItemsAreFoundWithThoseWithinThemInOrder) {
    const auto root = make<OuterItem>();
    const auto first = make<OuterItem>();
    const auto inner = make<InnerItem>();
    const auto plain = make<UIView>();
    const auto deep = make<InnerItem>();
    const auto other = make<OtherView>();
    first->addSubview(inner);
    plain->addSubview(deep);
    root->addSubview(first);
    root->addSubview(other);
    root->addSubview(plain);
    EXPECT_EQ(page->findBulletedListItemsInView(root), (std::vector<Ref<UIView>>{first, inner, deep}))
        << "neither the view itself nor a class of other case";
    EXPECT_TRUE(page->findBulletedListItemsInView(make<UIView>()).empty());
    EXPECT_TRUE(page->findBulletedListItemsInView(nullptr).empty());
}

TEST_F(cxBackupRestoreControllerSheetsTest, ASheetsItemsAreFoundInTheOrderInWhichTheyWereAdded) {
    const auto built = build();
    for (const auto* const title : {"a", "b", "c"})
        built->addBulletedListItemWithTitle(title, "", nullptr, nullptr);
    const auto items = page->findBulletedListItemsInView(built->bulletedList());
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items, built->bulletedList()->subviews());
}

TEST_F(cxBackupRestoreControllerSheetsTest, ATapOnAnItemClosesTheSheetAndThenDoesWhatItIsFor) {
    int calls = 0;
    bool wasGone = false;
    const auto item = presentItem();
    watchTaps(*item);
    setAttachedValue(*item, "BackupAction", Block([&] {
        ++calls;
        wasGone = !page->presentedViewController();
    }),
                     Retention::Retain);
    tap(*item);
    EXPECT_EQ(calls, 0);
    settle();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(wasGone);
}

TEST_F(cxBackupRestoreControllerSheetsTest, ATapOnAnItemWithoutAnActionDoesNothing) {
    const auto item = presentItem();
    watchTaps(*item);
    tap(*item);
    settle();
    EXPECT_TRUE(isPresenting());
    page->handleBulletedListTap(nullptr);
    page->handleBulletedListTap(UITapGestureRecognizer::initWithTarget(*page, "handleBulletedListTap:"));
    settle();
    EXPECT_TRUE(isPresenting());
}

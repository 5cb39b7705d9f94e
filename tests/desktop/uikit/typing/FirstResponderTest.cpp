#include "CALayerPeer.h"
#include "PresentedStandIn.h"
#include "text/TextFieldFixture.h"

#include <optional>

namespace {

using std::chrono::milliseconds;

class FirstResponderTest : public TextFieldFixture {
protected:
    int changes_ = 0;
    FirstResponder responder_{[this] { ++changes_; }};
};

TEST_F(FirstResponderTest, IsNobodyAtFirst) {
    EXPECT_EQ(responder_.input(), nullptr);
    EXPECT_EQ(responder_.untilBlink(), std::nullopt);
    responder_.clear();
    responder_.remove(peer());
    responder_.followTime();
    EXPECT_EQ(changes_, 0);
}

TEST_F(FirstResponderTest, IsOneAtATime) {
    const auto other = addField();
    responder_.set(peer());
    responder_.set(peer());
    EXPECT_EQ(changes_, 1);
    EXPECT_TRUE(peer().fieldIsFirstResponder());
    responder_.set(peerOf<UITextFieldPeer>(*other));
    EXPECT_EQ(changes_, 2);
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    responder_.remove(peer());
    EXPECT_EQ(responder_.input(), &peerOf<UITextFieldPeer>(*other));
    responder_.clear();
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*other).fieldIsFirstResponder());
    EXPECT_EQ(changes_, 3);
}

TEST_F(FirstResponderTest, KeepsNothingAlive) {
    Weak<UITextField> weak;
    {
        const auto loose = make<UITextField>();
        weak = loose;
        responder_.set(peerOf<UITextFieldPeer>(*loose));
        EXPECT_NE(responder_.input(), nullptr);
    }
    EXPECT_EQ(weak.strong(), nullptr);
    EXPECT_EQ(responder_.input(), nullptr);
}

TEST_F(FirstResponderTest, IsNoMoreWithWhatItIsIn) {
    const auto other = addField();
    responder_.set(peer());
    responder_.removeIn(*other);
    EXPECT_EQ(responder_.input(), &peer());
    responder_.removeIn(*window);
    EXPECT_EQ(responder_.input(), nullptr);
}

TEST_F(FirstResponderTest, IsNoMoreWhenWhatIsPresentedWithItIsOnItsWayOut) {
    const auto sheet = make<PresentedStandIn>();
    window->addSubview(sheet);
    const auto other = addField();
    sheet->addSubview(other);
    screen.presentations().add(*sheet, *sheet);
    other->becomeFirstResponder();
    screen.presentations().remove(*sheet);
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*other).fieldIsFirstResponder());
    other->becomeFirstResponder();
    screen.presentations().remove(*sheet);
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*other).fieldIsFirstResponder());
}

TEST_F(FirstResponderTest, CountsBlinksFromTheLastEdit) {
    responder_.set(peer());
    EXPECT_EQ(responder_.untilBlink(), milliseconds(500));
    advance(milliseconds(700));
    EXPECT_EQ(responder_.untilBlink(), milliseconds(300));
    responder_.followTime();
    EXPECT_EQ(peer().caretView().layer().peer().number(LayerProperty::Opacity), 0);
    responder_.noteEdit();
    responder_.followTime();
    EXPECT_EQ(peer().caretView().layer().peer().number(LayerProperty::Opacity), 1);
    EXPECT_EQ(responder_.untilBlink(), milliseconds(500));
    responder_.clear();
}

} // namespace

#include "keyboard/KeyBalloon.h"

#include "CALayerPeer.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "TextLayout.h"
#include "keyboard/KeyPalette.h"
#include "views/UIViewPeer.h"

#include <QPainter>
#include <algorithm>

namespace {

const Class classObject = Class::define<KeyBalloon, UIView>("KeyBalloon");

constexpr double wider = 13;      ///< than the key, at each side
constexpr double higher = 59;     ///< than the key
constexpr double headHeight = 49; ///< of the part that has the letter
constexpr double neckHeight = 14; ///< from there to where it is as wide as the key
constexpr double headCorner = 9;  ///< their radii
constexpr double keyCorner = 5;
constexpr double neckBend = 0.55;   ///< how soft it is, as a part of the neck
constexpr double letterMiddle = 27; ///< from the upper edge
constexpr double letterGrowth = 1.45;
constexpr double shadowOpacity = 0.3;
constexpr double shadowRadius = 3;

void addCorner(QPainterPath& path, QPointF center, double radius, double angle) {
    constexpr double quarter = -90; // clockwise
    path.arcTo(QRectF(center - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), angle, quarter);
}

/// Between the head and the key, from one end to the other.
void addNeck(QPainterPath& path, QPointF from, QPointF to) {
    const auto bend = neckBend * (to.y() - from.y());
    path.cubicTo(from + QPointF(0, bend), to - QPointF(0, bend), to);
}

QPainterPath outline(const QRectF& head, const QRectF& key) {
    const auto neckTop = head.bottom();
    const auto neckBottom = head.bottom() + neckHeight;
    QPainterPath path;
    path.moveTo(head.left(), neckTop);
    addCorner(path, head.topLeft() + QPointF(headCorner, headCorner), headCorner, 180);
    addCorner(path, head.topRight() + QPointF(-headCorner, headCorner), headCorner, 90);
    path.lineTo(head.right(), neckTop);
    addNeck(path, {head.right(), neckTop}, {key.right(), neckBottom});
    addCorner(path, key.bottomRight() - QPointF(keyCorner, keyCorner), keyCorner, 0);
    addCorner(path, key.bottomLeft() + QPointF(keyCorner, -keyCorner), keyCorner, 270);
    path.lineTo(key.left(), neckBottom);
    addNeck(path, {key.left(), neckBottom}, {head.left(), neckTop});
    path.closeSubpath();
    return path;
}

class KeyBalloonPeer final : public UIViewPeer {
public:
    KeyBalloonPeer(double middle, const QPainterPath& shape, std::string text, double textSize)
        : middle_(middle),
          shape_(shape),
          text_(std::move(text)),
          textSize_(textSize) {}

    [[nodiscard]] const QPainterPath& shape() const { return shape_; }

    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& /*bounds*/, const Traits& traits) override {
        const auto palette = KeyPalette::forStyle(traits.style);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(shape_, palette.letterKey);
        const TextLayout letter(text_, FontStyle{.size = textSize_}, {.pixelScale = traits.displayScale});
        const auto size = letter.size();
        letter.paint(painter, {middle_ - size.width() / 2, letterMiddle - size.height() / 2}, palette.text);
    }

private:
    double middle_; ///< of the head, across
    QPainterPath shape_;
    std::string text_;
    double textSize_;
};

std::unique_ptr<UIViewPeer> makePeer(const CGRect& cap, const CGRect& frame, std::string text,
                                     double textSize) {
    const QRectF head(0, 0, frame.size.width, headHeight);
    const QRectF key(cap.origin.x - frame.origin.x, higher, cap.size.width, cap.size.height);
    return std::make_unique<KeyBalloonPeer>(head.center().x(), outline(head, key), std::move(text),
                                            letterGrowth * textSize);
}

} // namespace

KeyBalloon::KeyBalloon(const CGRect& cap, const CGRect& frame, std::string text, double textSize)
    : UIView(makePeer(cap, frame, std::move(text), textSize)) {
    setUserInteractionEnabled(false);
    layer().peer().shadowPath = peerOf<KeyBalloonPeer>(*this).shape();
    layer().setShadowOpacity(shadowOpacity);
    layer().setShadowRadius(shadowRadius);
    layer().setShadowOffset({0, 0});
}

CGRect KeyBalloon::frameFor(const CGRect& cap, const CGRect& room) {
    const auto width = cap.size.width + 2 * wider;
    const auto rightmost = std::max(room.origin.x, CGRectGetMaxX(room) - width);
    return CGRectMake(std::clamp(cap.origin.x - wider, room.origin.x, rightmost), cap.origin.y - higher,
                      width, higher + cap.size.height);
}

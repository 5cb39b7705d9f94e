#include "keyboard/KeyboardKey.h"

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "TextLayout.h"
#include "controls/UIControlPeer.h"
#include "keyboard/KeyPalette.h"

#include <QPainter>

namespace {

using Action = KeyboardLayout::Action;

const Class classObject = Class::define<KeyboardKey, UIControl>("KeyboardKey");

constexpr double cornerRadius = 5;
constexpr double shadowHeight = 1;
constexpr double letterSize = 25;
constexpr double capitalSize = 22.5;
constexpr double caselessSize = 20; ///< of letters that are neither small nor large, whose keys are narrow
constexpr double wordSize = 16;
constexpr double symbolSize = 19;
constexpr double bareSymbolSize = 24; ///< without a cap around it

bool isWide(const KeyboardLayout::Key& key) {
    return key.action != Action::Type || key.text == " ";
}

/// What is written on a key.
std::string labelOf(const KeyboardKey& key) {
    const auto& text = key.key().text;
    if (!key.key().word.empty())
        return key.key().word;
    return key.isShifted() && !isWide(key.key()) ? QString::fromStdString(text).toUpper().toStdString()
                                                 : text;
}

std::string symbolOf(const KeyboardKey& key) {
    switch (key.key().action) {
    case Action::Shift:
        return key.isShifted() ? "shift.fill" : "shift";
    case Action::Delete:
        return "delete.left";
    case Action::Return:
        return key.key().word.empty() ? "return" : "";
    case Action::ChangeLanguage:
        return "globe";
    default:
        return {};
    }
}

double textSizeOf(const KeyboardKey& key) {
    if (isWide(key.key()))
        return wordSize;
    const auto text = QString::fromStdString(key.key().text);
    if (text.front().category() == QChar::Letter_Other)
        return caselessSize;
    return key.isShifted() ? capitalSize : letterSize;
}

/// What is drawn of a key.
CGRect capIn(const CGRect& bounds, Idiom idiom) {
    const auto [across, down] = KeyboardLayout::gap(idiom);
    return UIEdgeInsetsInsetRect(bounds, {.top = down, .left = across, .bottom = down, .right = across});
}

class KeyPeer final : public UIControlPeer {
public:
    // UIControlPeer:
    void stateDidChange() override {
        setNeedsDisplay();
        key().fingerDidChange(isHighlighted());
    }

    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override {
        const auto cap = capIn(bounds, traits.idiom);
        const QRectF shape(cap.origin.x, cap.origin.y, cap.size.width, cap.size.height);
        const auto palette = KeyPalette::forStyle(traits.style);
        painter.setRenderHint(QPainter::Antialiasing);
        if (hasCap(traits))
            drawCap(painter, shape, palette);
        drawLabel(painter, shape, palette.text, traits);
    }

private:
    [[nodiscard]] KeyboardKey& key() const { return dynamic_cast<KeyboardKey&>(control()); }

    /// Keys that type are bright; a finger turns that round, which a balloon covers.
    [[nodiscard]] bool isBright() const {
        const auto action = key().key().action;
        const auto bright = action == Action::Type || (action == Action::Shift && key().isShifted());
        return bright != isHighlighted();
    }

    /// A phone's key below the rows is its symbol alone.
    [[nodiscard]] bool hasCap(const Traits& traits) const {
        return traits.idiom != Idiom::Phone || key().key().action != Action::ChangeLanguage;
    }

    void drawCap(QPainter& painter, const QRectF& shape, const KeyPalette& palette) const {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.shadow);
        painter.drawRoundedRect(shape.translated(0, shadowHeight), cornerRadius, cornerRadius);
        painter.setBrush(isBright() ? palette.letterKey : palette.otherKey);
        painter.drawRoundedRect(shape, cornerRadius, cornerRadius);
    }

    void drawLabel(QPainter& painter, const QRectF& shape, const QColor& color, const Traits& traits) const {
        if (const auto symbol =
                DesktopImage::symbol(symbolOf(key()), hasCap(traits) ? symbolSize : bareSymbolSize)) {
            const auto size = symbol->size();
            symbol->draw(painter,
                         CGRectMake(shape.center().x() - size.width / 2, shape.center().y() - size.height / 2,
                                    size.width, size.height),
                         {color.redF(), color.greenF(), color.blueF(), color.alphaF()});
            return;
        }
        const TextLayout label(labelOf(key()), FontStyle{.size = textSizeOf(key())},
                               {.pixelScale = traits.displayScale});
        const auto size = label.size();
        label.paint(painter, shape.center() - QPointF(size.width() / 2, size.height() / 2), color);
    }
};

} // namespace

KeyboardKey::KeyboardKey(const KeyboardLayout::Key& key, Pressed pressed)
    : UIControl(std::make_unique<KeyPeer>()),
      key_(key),
      pressed_(std::move(pressed)) {
    const auto event =
        key.action == Action::Delete ? UIControlEvents::TouchDown : UIControlEvents::TouchUpInside;
    peerOf<UIControlPeer>(*this).addHandler(event, [this] { pressed_(key_); });
    peer().setAccessibility(
        {.label = labelOf(*this), .value = {}, .role = AccessibilityRole::Button, .isElement = true});
}

void KeyboardKey::setShifted(bool shifted) {
    isShifted_ = shifted;
    peer().setNeedsDisplay();
}

bool KeyboardKey::mayHaveBalloon() const {
    return peer().traits().idiom == Idiom::Phone && !isWide(key_);
}

void KeyboardKey::fingerDidChange(bool isOn) {
    if (balloon_)
        std::exchange(balloon_, nullptr)->peer().removeFromSuperview();
    auto* const keyboard = peer().superview();
    if (!isOn || !mayHaveBalloon() || keyboard == nullptr)
        return;
    const auto idiom = peer().traits().idiom;
    const auto cap = capIn(bounds(), idiom);
    const auto gap = KeyboardLayout::gap(idiom).across;
    const auto room = CGRectMake(gap - frame().origin.x, 0, keyboard->bounds().size.width - 2 * gap, 0);
    const auto place = KeyBalloon::frameFor(cap, room);
    balloon_ = make<KeyBalloon>(cap, place, labelOf(*this), textSizeOf(*this));
    balloon_->setFrame(place);
    addSubview(balloon_);
    keyboard->peer().bringSubviewToFront(*this); // so that it is in front of other keys
}

#include "keyboard/KeyboardView.h"

#include "AnimationGroup.h"
#include "Device.h"
#include "ObjectiveC/Class.h"
#include "screen/Screen.h"
#include "typing/TextInput.h"
#include "views/UIViewPeer.h"

#include <QPainter>
#include <functional>

namespace {

using Action = KeyboardLayout::Action;
using Page = KeyboardLayout::Page;

const Class classObject = Class::define<KeyboardView, UIView>("KeyboardView");

constexpr double homeStrip = 20; ///< at the screen's lower edge, where a finger draws applications away

void edit(const std::function<void(EditedText&)>& change) {
    if (auto* const input = Screen::current().firstResponder().input())
        input->edit(change);
}

/// Whether the letter that is typed next is to be a large one.
bool beginsLarge(const TextInput& input) {
    const auto& text = input.editedText();
    const auto before = text.string().left(text.selection().begin);
    const auto afterSpace = before.isEmpty() || before.back().isSpace();
    const auto words = before.trimmed();
    switch (input.textInputTraits().capitals) {
    case TextInputTraits::Capitals::None:
        return false;
    case TextInputTraits::Capitals::Words:
        return afterSpace;
    case TextInputTraits::Capitals::Sentences:
        return afterSpace && (words.isEmpty() || QStringView(u".!?").contains(words.back()));
    case TextInputTraits::Capitals::All:
        return true;
    }
    return false;
}

/// Paints what is behind the keys, and takes touches that miss them.
class KeyboardViewPeer final : public UIViewPeer {
public:
    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override {
        const auto isDark = traits.style == UserInterfaceStyle::Dark;
        painter.fillRect(QRectF(0, 0, bounds.size.width, bounds.size.height),
                         isDark ? QColor(43, 43, 43) : QColor(209, 211, 217));
    }

    [[nodiscard]] bool pointInside(CGPoint point) const override {
        return UIViewPeer::pointInside(point) && point.y < view().bounds().size.height - homeStrip;
    }
};

} // namespace

KeyboardView::KeyboardView()
    : UIView(std::make_unique<KeyboardViewPeer>()),
      languages_(KeyboardLanguage::forLocale(Device::current().locale())) {}

void KeyboardView::reset() {
    const auto* const input = Screen::current().firstResponder().input();
    const auto numbers = input != nullptr && input->textInputTraits().keys == TextInputTraits::Keys::Numbers;
    showPage(numbers ? Page::Numbers : Page::Letters);
    shiftForText();
}

void KeyboardView::layoutSubviews() {
    UIView::layoutSubviews();
    if (!std::equal_to()(laidOutWidth_, bounds().size.width))
        showPage(page_);
}

void KeyboardView::showPage(Page page) {
    page_ = page;
    laidOutWidth_ = bounds().size.width;
    AnimationGroup::runWithoutAnimation([this] {
        for (const auto& key : std::exchange(keys_, {}))
            key->peer().removeFromSuperview();
        for (const auto& key :
             KeyboardLayout::keys(page_, peer().traits().idiom, laidOutWidth_, language())) {
            keys_.push_back(make<KeyboardKey>(key, [this](const auto& pressed) { press(pressed); }));
            keys_.back()->setFrame(key.frame);
            addSubview(keys_.back());
        }
    });
    setShifted(isShifted_);
}

void KeyboardView::showNextLanguage() {
    language_ = (language_ + 1) % languages_.size();
    showPage(Page::Letters);
    shiftForText();
}

void KeyboardView::shiftForText() {
    const auto* const input = Screen::current().firstResponder().input();
    setShifted(input != nullptr && beginsLarge(*input));
}

void KeyboardView::setShifted(bool shifted) {
    isShifted_ = shifted && language().hasCapitals;
    for (const auto& key : keys_)
        key->setShifted(isShifted_ && page_ == Page::Letters);
}

void KeyboardView::press(const KeyboardLayout::Key& key) {
    const auto kept = retain(this);
    switch (key.action) {
    case Action::Type:
        type(key.text);
        break;
    case Action::Shift:
        setShifted(!isShifted_);
        break;
    case Action::Delete:
        edit([](EditedText& text) { text.deleteBackward(); });
        break;
    case Action::Return:
        if (auto* const input = Screen::current().firstResponder().input())
            input->returnPressed();
        break;
    case Action::ShowLetters:
        showPage(Page::Letters);
        break;
    case Action::ShowNumbers:
        showPage(Page::Numbers);
        break;
    case Action::ShowSymbols:
        showPage(Page::Symbols);
        break;
    case Action::ChangeLanguage:
        showNextLanguage();
        break;
    }
}

void KeyboardView::type(const std::string& text) {
    const auto typed = QString::fromStdString(text);
    edit([written = isShifted_ && page_ == Page::Letters ? typed.toUpper() : typed](EditedText& edited) {
        edited.endComposing();
        edited.insert(written);
    });
    shiftForText();
}

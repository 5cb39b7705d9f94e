#include "text/TextFieldFixture.h"

#include "RectGeometry.h"

TextFieldFixture::TextFieldFixture(const TestDevice::Settings& settings)
    : TouchFixture(Screen::Options(), settings) {
    field->setFrame(frame);
    field->setBorderStyle(UITextBorderStyle::RoundedRect);
    field->setPlaceholder("Backup Name");
    window->addSubview(field);
    screen.layoutIfNeeded();
}

Ref<UITextField> TextFieldFixture::addField() const {
    auto other = make<UITextField>();
    other->setFrame(CGRectMake(10, 200, 200, 40));
    window->addSubview(other);
    return other;
}

void TextFieldFixture::tapAt(qsizetype position) {
    const auto caret = peer().convertToScreen(peer().caretRect(position));
    tap(caret.origin.x, CGRectGetMidY(caret));
}

void TextFieldFixture::type(const QString& text) const {
    peer().edit([&text](EditedText& edited) { edited.insert(text); });
}

std::string TextFieldFixture::shown() const {
    auto string = peer().editedText().string();
    const auto [begin, end] = peer().editedText().selection();
    if (begin == end)
        return string.insert(begin, '|').toStdString();
    return string.insert(end, ']').insert(begin, '[').toStdString();
}

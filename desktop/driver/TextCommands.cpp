#include "TextCommands.h"

#include "screen/Screen.h"
#include "typing/TextInput.h"

#include <QJsonObject>

namespace {

constexpr auto noInput = "nothing on the screen takes text";

Answer edit(const std::function<void(EditedText&)>& change) {
    auto* const input = Screen::current().firstResponder().input();
    if (input == nullptr)
        return std::unexpected(noInput);
    input->edit(change);
    return QJsonObject();
}

Answer type(const CommandTable::Arguments& arguments) {
    return edit([text = QString::fromStdString(arguments[0].text)](EditedText& edited) {
        edited.endComposing();
        edited.insert(text);
    });
}

Answer press(const CommandTable::Arguments& arguments) {
    const auto& key = arguments[0].text;
    if (key != "return" && key != "backspace")
        return std::unexpected("a key is return or backspace");
    if (key == "backspace")
        return edit([](EditedText& text) {
            text.endComposing();
            text.deleteBackward();
        });
    auto* const input = Screen::current().firstResponder().input();
    if (input == nullptr)
        return std::unexpected(noInput);
    input->returnPressed();
    return QJsonObject();
}

} // namespace

void addTextCommands(CommandTable& table) {
    table.add({.usage = "type TEXT", .fewest = 1, .most = 1, .lastIsRest = true, .run = type});
    table.add({.usage = "key return|backspace", .fewest = 1, .most = 1, .run = press});
}

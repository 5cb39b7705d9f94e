#include "PickerCommands.h"

#include "screen/FilePicker.h"
#include "screen/Screen.h"

#include <QJsonObject>
#include <string>
#include <vector>

namespace {

constexpr auto noPicker = "no picker is presented";

FilePicker* pickerInFront() {
    const auto* const presented = Screen::current().presentations().top();
    return presented != nullptr ? presented->filePicker() : nullptr;
}

Answer pick(const CommandTable::Arguments& arguments) {
    auto* const picker = pickerInFront();
    if (picker == nullptr)
        return std::unexpected(noPicker);
    std::vector<std::string> paths;
    for (const auto& argument : arguments)
        paths.push_back(argument.text);
    if (const auto outcome = picker->pickFiles(paths); !outcome)
        return std::unexpected(outcome.error());
    return QJsonObject();
}

Answer cancel(const CommandTable::Arguments& /*arguments*/) {
    auto* const picker = pickerInFront();
    if (picker == nullptr)
        return std::unexpected(noPicker);
    picker->cancelPicking();
    return QJsonObject();
}

} // namespace

void addPickerCommands(CommandTable& table) {
    table.add({.usage = "pick PATH...", .fewest = 1, .most = CommandTable::unlimited, .run = pick});
    table.add({.usage = "pick-cancel", .run = cancel});
}

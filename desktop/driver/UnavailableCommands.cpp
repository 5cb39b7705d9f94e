#include "UnavailableCommands.h"

namespace {

/// A command that answers with a reason.
std::function<Answer(const CommandTable::Arguments&)> refusal(const char* reason) {
    return [reason](const auto&) -> Answer { return std::unexpected(reason); };
}

} // namespace

void addUnavailableCommands(CommandTable& table) {
    const auto noKeyboard = refusal("nothing on the screen takes text");
    const auto noPicker = refusal("no picker is presented");
    table.add({.usage = "type TEXT", .fewest = 1, .most = 1, .lastIsRest = true, .run = noKeyboard});
    table.add({.usage = "key return|backspace", .fewest = 1, .most = 1, .run = noKeyboard});
    table.add({.usage = "pick PATH...", .fewest = 1, .most = CommandTable::unlimited, .run = noPicker});
    table.add({.usage = "pick-cancel", .run = noPicker});
    table.add({.usage = "swipe-down", .run = refusal("no sheet is presented")});
}

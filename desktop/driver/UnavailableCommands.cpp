#include "UnavailableCommands.h"

namespace {

/// A command that answers with a reason.
std::function<Answer(const CommandTable::Arguments&)> refusal(const char* reason) {
    return [reason](const auto&) -> Answer { return std::unexpected(reason); };
}

} // namespace

void addUnavailableCommands(CommandTable& table) {
    const auto noPicker = refusal("no picker is presented");
    table.add({.usage = "pick PATH...", .fewest = 1, .most = CommandTable::unlimited, .run = noPicker});
    table.add({.usage = "pick-cancel", .run = noPicker});
}

#include "CommandTable.h"

#include "Foundation/NSString.h"

#include <algorithm>
#include <expected>
#include <utility>

namespace {

using Arguments = CommandTable::Arguments;

constexpr std::size_t longestEcho = 80; // bytes of somebody's text in an error

/// The beginning of a text, cut between characters.
std::string shortened(std::string_view text) {
    if (text.size() <= longestEcho)
        return std::string(text);
    auto length = longestEcho;
    while ((static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        --length;
    return std::string(text.substr(0, length)) + "...";
}

std::expected<Arguments, std::string> argumentsOf(const CommandTable::Command& command, CommandLine& line) {
    Arguments arguments;
    const auto words = command.lastIsRest ? command.most - 1 : command.most;
    while (arguments.size() < words) {
        auto word = line.next();
        if (!word)
            return std::unexpected(word.error());
        if (!*word)
            break;
        arguments.push_back(std::move(**word));
    }
    if (command.lastIsRest && !line.rest().empty())
        arguments.push_back({.text = std::string(line.rest()), .quoted = false});
    const auto leftOver = !command.lastIsRest && !line.rest().empty();
    if (leftOver || arguments.size() < command.fewest)
        return std::unexpected("usage: " + command.usage);
    return arguments;
}

} // namespace

void CommandTable::add(Command command) {
    const auto name = command.usage.substr(0, command.usage.find(' '));
    commands_.insert_or_assign(name, std::move(command));
}

Answer CommandTable::run(std::string_view line) const {
    if (!isValidUTF8(line) || line.contains('\0'))
        return std::unexpected("the line is not text in UTF-8");
    CommandLine rest(line);
    const auto name = rest.next();
    if (!name)
        return std::unexpected(name.error());
    if (!*name)
        return std::unexpected("the line holds no command");
    const auto command = commands_.find((*name)->text);
    if (command == commands_.end())
        return std::unexpected("there is no command " + shortened((*name)->text));
    const auto arguments = argumentsOf(command->second, rest);
    if (!arguments)
        return std::unexpected(arguments.error());
    return command->second.run(*arguments);
}

#include "LinkMap.h"

#include "Refusal.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string_view>

namespace {

constexpr std::string_view filesHeading = "# Object files:";
constexpr std::string_view symbolsHeading = "# Symbols:";
constexpr std::string_view strippedHeading = "# Dead Stripped Symbols:";

/// A number that stands after `prefix`; nothing when there is none.
template <class T>
std::optional<T> numberAfter(std::string_view text, std::string_view prefix, int base) {
    T number = 0;
    const auto place = text.find(prefix);
    if (place == std::string_view::npos)
        return std::nullopt;
    auto digits = text.substr(place + prefix.size());
    digits.remove_prefix(std::min(digits.find_first_not_of(' '), digits.size()));
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// What stands behind "[ 12] ".
std::string_view afterBracket(std::string_view line) {
    const auto end = line.find("] ");
    return end == std::string_view::npos ? std::string_view() : line.substr(end + 2);
}

} // namespace

LinkMap::LinkMap(const std::string& path) : path_(path) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        readLine(line);
    if (objects_.empty() || addresses_.empty())
        throw Refusal(path + ": no map of a link, for it names no objects or no symbols");
}

std::optional<std::uint64_t> LinkMap::address(std::size_t object, const std::string& symbol) const {
    const auto found = addresses_.find({object, symbol});
    return found == addresses_.end() ? std::nullopt : std::optional(found->second);
}

bool LinkMap::isStripped(std::size_t object, const std::string& symbol) const {
    return stripped_.contains({object, symbol});
}

std::optional<std::uint64_t> LinkMap::addressInAny(const std::string& symbol) const {
    const auto found = addressesInAny_.find(symbol);
    return found == addressesInAny_.end() ? std::nullopt : std::optional(found->second);
}

void LinkMap::readLine(const std::string& line) {
    if (line.starts_with("# ")) {
        if (line.ends_with(':'))
            heading_ = line;
    } else if (line.starts_with('#')) {
        return;
    } else if (heading_ == filesHeading) {
        readFile(line);
    } else if (heading_ == symbolsHeading || heading_ == strippedHeading) {
        readSymbol(line);
    }
}

// File 0 is the linker itself; objects come before the link stubs.
void LinkMap::readFile(const std::string& line) {
    if (const auto name = afterBracket(line); name.ends_with(".o"))
        objects_.emplace_back(name);
}

void LinkMap::readSymbol(const std::string& line) {
    const auto file = numberAfter<std::size_t>(line, "[", 10);
    if (!file)
        throw Refusal(path_ + ": the line \"" + line + "\" names no file");
    if (*file == 0)
        return;
    const Key key(*file - 1, afterBracket(line));
    if (heading_ == strippedHeading) {
        stripped_.insert(key);
        return;
    }
    const auto address = numberAfter<std::uint64_t>(line, "0x", 16);
    if (!address)
        throw Refusal(path_ + ": the line \"" + line + "\" has no address");
    addresses_.emplace(key, *address);
    addressesInAny_.emplace(key.second, *address);
}

#include "CommandLine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

namespace {

constexpr std::string_view blanks = " \t";

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Where the quote stands that ends a text which begins with one.
std::optional<std::size_t> closingQuote(std::string_view text) {
    for (std::size_t index = 1; index < text.size(); ++index) {
        if (text[index] == '"')
            return index;
        if (text[index] == '\\')
            ++index;
    }
    return std::nullopt;
}

/// \param literal with its quotes
std::optional<std::string> jsonText(std::string_view literal) {
    const auto array = '[' + std::string(literal) + ']';
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(array));
    const auto value = document.array().at(0);
    if (!value.isString())
        return std::nullopt;
    return value.toString().toStdString();
}

} // namespace

CommandLine::CommandLine(std::string_view line) : rest_(withoutBlanks(line)) {}

std::expected<std::optional<CommandLine::Word>, std::string> CommandLine::next() {
    if (rest_.empty())
        return std::nullopt;
    if (rest_.front() == '"')
        return nextQuoted();
    const auto length = std::min(rest_.find_first_of(blanks), rest_.size());
    Word word{.text = std::string(rest_.substr(0, length)), .quoted = false};
    rest_ = withoutBlanks(rest_.substr(length));
    return word;
}

std::expected<std::optional<CommandLine::Word>, std::string> CommandLine::nextQuoted() {
    const auto end = closingQuote(rest_);
    if (!end)
        return std::unexpected("a quoted word has no closing quote");
    const auto after = rest_.substr(*end + 1);
    if (!after.empty() && !blanks.contains(after.front()))
        return std::unexpected("a quoted word must be followed by a space");
    auto text = jsonText(rest_.substr(0, *end + 1));
    if (!text)
        return std::unexpected("a quoted word holds a damaged escape");
    rest_ = withoutBlanks(after);
    return Word{.text = std::move(*text), .quoted = true};
}

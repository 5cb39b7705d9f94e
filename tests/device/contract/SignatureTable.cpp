#include "SignatureTable.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

namespace {

std::string comparable(std::string types) {
    std::erase_if(types,
                  [](char character) { return std::isdigit(static_cast<unsigned char>(character)) != 0; });
    std::ranges::replace(types, 'C', 'B'); // GNU's BOOL; but not within a structure's name
    types = std::regex_replace(types, std::regex("BG"), "CG");
    types = std::regex_replace(types, std::regex(R"(\^\{[A-Za-z]*=[^}]*\})"), "^v");
    types = std::regex_replace(types, std::regex(R"(@\?)"), "^v");
    return std::regex_replace(types, std::regex(R"(r\^v|\^rv)"), "^v");
}

/// How many arguments types have besides the receiver and the selector.
long argumentCount(const std::string& types) {
    static const std::regex one(R"(r?\^?(\{(?:[^{}]|\{[^{}]*\})*\}|[a-zA-Z@#:*]))");
    const auto text = comparable(types);
    return std::distance(std::sregex_iterator(text.begin(), text.end(), one), std::sregex_iterator()) - 3;
}

std::string counted(long arguments) {
    return std::to_string(arguments) + (arguments == 1 ? " argument" : " arguments");
}

} // namespace

std::string classIn(std::string_view message) {
    return std::string(message.substr(2, message.find(' ') - 2));
}

std::string selectorIn(std::string_view message) {
    const auto space = message.find(' ');
    return std::string(message.substr(space + 1, message.size() - space - 2));
}

SignatureTable::SignatureTable(std::string_view text) {
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);)
        read(line);
}

SignatureTable SignatureTable::fromFile(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return SignatureTable(text.str());
}

void SignatureTable::read(const std::string& line) {
    static const std::regex base(R"((\w+)(?: : (\w+))?)");
    static const std::regex method(R"( {4}([-+]\[\w+ [\w:]+\]) (\S+))");
    std::smatch match;
    if (line.empty() || line.starts_with('#'))
        return;
    if (std::regex_match(line, match, base))
        bases_[match[1]] = match[2];
    else if (std::regex_match(line, match, method))
        types_[match[1]] = match[2];
    else
        faults_.push_back("The table's line is not understood: " + line);
}

std::vector<std::string> SignatureTable::mismatches(const std::vector<Signature>& methods) {
    auto all = faults_;
    for (const auto& method : methods) {
        if (auto text = mismatch(method); !text.empty())
            all.push_back(std::move(text));
    }
    return all;
}

std::vector<std::string> SignatureTable::undeclared(const std::vector<std::string>& selectors) {
    std::vector<std::string> all;
    for (const auto& selector : selectors) {
        bool isDeclared = false;
        for (const auto& [message, types] : types_) {
            if (selectorIn(message) != selector)
                continue;
            used_.insert(message);
            isDeclared = true;
        }
        if (!isDeclared)
            all.push_back(selector + " is declared by no class");
    }
    return all;
}

std::string SignatureTable::mismatch(const Signature& method) {
    const auto declaration = declarationOf(method.message);
    if (declaration.empty())
        return method.message + " is not declared" + similarTo(method.message);
    used_.insert(declaration);
    const auto& declared = types_.at(declaration);
    if (comparable(method.types) == comparable(declared))
        return {};
    const auto has = argumentCount(method.types);
    const auto wanted = argumentCount(declared);
    if (has != wanted)
        return method.message + " has " + counted(has) + ", but is declared with " + std::to_string(wanted);
    return method.message + " has the types " + method.types + ", but is declared with " + declared;
}

std::string SignatureTable::declarationOf(const std::string& message) const {
    for (auto name = classIn(message); !name.empty(); name = baseOf(name)) {
        auto candidate = message.substr(0, 2) + name + " " + selectorIn(message) + "]";
        if (types_.contains(candidate))
            return candidate;
    }
    return {};
}

std::string SignatureTable::similarTo(const std::string& message) const {
    const auto opposite = (message.starts_with('-') ? "+" : "-") + message.substr(1);
    return declarationOf(opposite).empty() ? "" : ", but " + opposite + " is";
}

std::vector<std::string> SignatureTable::unused() const {
    std::vector<std::string> messages;
    for (const auto& [message, types] : types_) {
        if (!used_.contains(message))
            messages.push_back(message);
    }
    return messages;
}

std::string SignatureTable::baseOf(const std::string& className) const {
    const auto found = bases_.find(className);
    return found != bases_.end() ? found->second : "";
}

std::vector<Signature> SignatureTable::all() const {
    std::vector<Signature> signatures;
    signatures.reserve(types_.size());
    for (const auto& [message, types] : types_)
        signatures.push_back({message, types});
    return signatures;
}

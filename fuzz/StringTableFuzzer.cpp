#include "Foundation/NSString.h"
#include "texts/StringTable.h"

#include <unicode/unistr.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// The text in quotes, with only those characters escaped that must be.
std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            result += '\\';
        if (character == '\0')
            result += "\\000"; // a zero at the file's start means UTF-16
        else
            result += character;
    }
    return result + "\"";
}

/// The text in quotes, with every character escaped.
std::string escaped(std::string_view text) {
    const auto units = icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
    std::string result = "'";
    for (int32_t i = 0; i < units.length(); ++i) {
        std::array<char, 8> escape{};
        std::snprintf(escape.data(), escape.size(), "\\U%04X", static_cast<unsigned>(units[i]));
        result += escape.data();
    }
    return result + "'";
}

using Quote = std::string (*)(std::string_view);

std::string serialised(const StringTable::Texts& texts, Quote quote) {
    std::string bytes;
    for (const auto& [key, text] : texts)
        bytes += quote(key) + " = " + quote(text) + ";\n";
    return bytes;
}

std::string inUTF16(std::string_view text) {
    const auto units = icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
    std::string bytes = "\xFE\xFF";
    for (int32_t i = 0; i < units.length(); ++i) {
        bytes += static_cast<char>(units[i] >> 8U);
        bytes += static_cast<char>(units[i] & 0xFFU);
    }
    return bytes;
}

bool readsBack(const std::string& bytes, const StringTable::Texts& texts) {
    const auto table = StringTable::parse(bytes);
    return table && table->texts() == texts;
}

} // namespace

/// Whatever is a table holds valid UTF-8 only, and written in any way reads as the same table again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto table = StringTable::parse({reinterpret_cast<const char*>(bytes), size});
    if (!table)
        return 0;
    const auto& texts = table->texts();
    for (const auto& [key, text] : texts) {
        if (!isValidUTF8(key) || !isValidUTF8(text))
            std::abort();
    }
    const auto plain = serialised(texts, quoted);
    if (!readsBack(plain, texts) || !readsBack(inUTF16(plain), texts) ||
        !readsBack(serialised(texts, escaped), texts))
        std::abort();
    return 0;
}

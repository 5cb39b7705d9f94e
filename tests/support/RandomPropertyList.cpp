#include "RandomPropertyList.h"

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <string_view>

PropertyList RandomPropertyList::value(unsigned depth) {
    switch (below(depth == 0 ? 6 : 9)) {
    case 0:
        return below(2) == 1;
    case 1:
        return integer();
    case 2:
        return real();
    case 3:
        return text();
    case 4:
        return data();
    case 5:
        return NSDate{real()};
    case 6:
        return array(depth - 1);
    default:
        return dictionary(depth - 1);
    }
}

std::string RandomPropertyList::text() {
    constexpr std::array<std::string_view, 20> pieces{"a",
                                                      "Z",
                                                      " ",
                                                      "<",
                                                      "&",
                                                      "\x01",
                                                      "\x7F",
                                                      "\r\n",
                                                      "\"",
                                                      "]]>",
                                                      "\xC2\x80",
                                                      "e\xCC\x81",
                                                      "\xE2\x82\xAC",
                                                      "\xED\x9F\xBF",
                                                      "\xEE\x80\x80",
                                                      "\xEF\xBF\xBD",
                                                      "\xEF\xBF\xBF",
                                                      "\xF0\x90\x80\x80",
                                                      "\xF0\x9F\x98\x80",
                                                      "\xF4\x8F\xBF\xBF"};
    std::string result;
    for (auto count = below(8) == 0 ? below(400) : below(8); count > 0; --count)
        result += pieces[below(pieces.size())];
    return result;
}

PropertyList RandomPropertyList::integer() {
    const auto bits = random_() >> below(64);
    switch (below(4)) {
    case 0:
        return static_cast<std::int64_t>(bits);
    case 1:
        return -static_cast<std::int64_t>(bits >> 1U);
    case 2:
        return (std::uint64_t{1} << below(64)) - below(2);
    default:
        return std::numeric_limits<std::int64_t>::min() + static_cast<std::int64_t>(below(2));
    }
}

double RandomPropertyList::real() {
    constexpr std::array awkward{0.0,
                                 -0.0,
                                 0.1,
                                 -1.5,
                                 std::numeric_limits<double>::infinity(),
                                 -std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::denorm_min(),
                                 std::numeric_limits<double>::max()};
    return below(2) == 0 ? awkward[below(awkward.size())] : std::bit_cast<double>(random_());
}

NSData RandomPropertyList::data() {
    NSData result;
    for (auto count = below(40); count > 0; --count)
        result.bytes.push_back(static_cast<std::byte>(below(256)));
    return result;
}

PropertyList::Array RandomPropertyList::array(unsigned depth) {
    PropertyList::Array result;
    for (auto count = below(20) == 0 ? below(300) : below(6); count > 0; --count)
        result.push_back(value(static_cast<unsigned>(below(depth + 1))));
    return result;
}

PropertyList::Dictionary RandomPropertyList::dictionary(unsigned depth) {
    PropertyList::Dictionary result;
    for (auto count = below(6); count > 0; --count)
        result.insert_or_assign(below(9) == 0 ? "CF$UID" : text(),
                                value(static_cast<unsigned>(below(depth + 1))));
    return result;
}

#include "propertylists/PropertyListCoding.h"

#include "Foundation/NSString.h"
#include "propertylists/BinaryPropertyListScan.h"
#include "propertylists/CNumericLocale.h"
#include "propertylists/PlistScalar.h"
#include "propertylists/PropertyListBudget.h"
#include "propertylists/XmlPropertyListScan.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <type_traits>

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); } // NOLINT(*-no-malloc): libplist's
};

using CText = std::unique_ptr<char, Free>;

bool textCanBeKept(std::string_view text) {
    return !text.contains('\0') && isValidUTF8(text);
}

bool valueCanBeKept(const PropertyList& value, PropertyListBudget& budget, std::size_t nesting);

bool keyCanBeKept(std::string_view key, PropertyListBudget& budget) {
    return textCanBeKept(key) && budget.take(PropertyListBudget::weightOfValue + key.size());
}

bool itemsCanBeKept(const PropertyList::Array& array, PropertyListBudget& budget, std::size_t nesting) {
    return std::ranges::all_of(array,
                               [&](const auto& item) { return valueCanBeKept(item, budget, nesting); });
}

bool itemsCanBeKept(const PropertyList::Dictionary& dictionary, PropertyListBudget& budget,
                    std::size_t nesting) {
    return std::ranges::all_of(dictionary, [&](const auto& item) {
        return keyCanBeKept(item.first, budget) && valueCanBeKept(item.second, budget, nesting);
    });
}

/// \param nesting the arrays and dictionaries around the value
bool valueCanBeKept(const PropertyList& value, PropertyListBudget& budget, std::size_t nesting) {
    return budget.take(PropertyListBudget::weightOfValue) && value.visit([&](const auto& held) {
        using Held = std::remove_cvref_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::string>)
            return textCanBeKept(held) && budget.take(held.size());
        else if constexpr (std::is_same_v<Held, NSData>)
            return budget.take(held.bytes.size());
        else if constexpr (std::is_same_v<Held, PropertyList::Array> ||
                           std::is_same_v<Held, PropertyList::Dictionary>)
            return nesting < PropertyListBudget::maximumNesting && itemsCanBeKept(held, budget, nesting + 1);
        else
            return true;
    });
}

bool wholeCanBeKept(const PropertyList& value) {
    PropertyListBudget budget;
    return valueCanBeKept(value, budget, 0);
}

/// Whether XML has all characters of a text: it has no way to write most control characters.
bool fitsXML(std::string_view text) {
    constexpr std::array<std::string_view, 2> notCharacters{"\xEF\xBF\xBE", "\xEF\xBF\xBF"};
    return std::ranges::none_of(text,
                                [](char character) {
                                    return static_cast<unsigned char>(character) < 0x20 &&
                                           character != '\t' && character != '\n' && character != '\r';
                                }) &&
           std::ranges::none_of(notCharacters, [&](auto character) { return text.contains(character); });
}

/// Whether XML has a text for the moment, which is for the years 1 to 9999.
bool fitsXML(const NSDate& date) {
    constexpr double startOfYear1 = -63113904000;
    constexpr double startOfYear10000 = 252423993600;
    return date.timeIntervalSinceReferenceDate >= startOfYear1 &&
           date.timeIntervalSinceReferenceDate < startOfYear10000;
}

bool fitsXML(const PropertyList& value) {
    if (const auto* const date = value.getIf<NSDate>())
        return fitsXML(*date);
    if (const auto* const text = value.getIf<std::string>())
        return fitsXML(std::string_view(*text));
    if (const auto* const array = value.getIf<PropertyList::Array>())
        return std::ranges::all_of(*array, [](const auto& item) { return fitsXML(item); });
    if (const auto* const dictionary = value.getIf<PropertyList::Dictionary>())
        return std::ranges::all_of(*dictionary, [](const auto& item) {
            return fitsXML(std::string_view(item.first)) && fitsXML(item.second);
        });
    return true;
}

/// Makes libplist's nodes for one format.
class NodeMaker {
public:
    explicit NodeMaker(PropertyListFormat format) : format_(format) {}

    [[nodiscard]] PlistNode operator()(bool value) const { return PlistNode(plist_new_bool(value ? 1 : 0)); }

    [[nodiscard]] PlistNode operator()(std::int64_t value) const {
        return PlistNode(plist_new_uint(static_cast<std::uint64_t>(value)));
    }

    [[nodiscard]] PlistNode operator()(std::uint64_t value) const {
        return PlistScalar{.marker = PlistScalar::unsignedMarker, .bits = value}.makeNode();
    }

    [[nodiscard]] PlistNode operator()(double value) const { return PlistNode(plist_new_real(value)); }

    [[nodiscard]] PlistNode operator()(const std::string& value) const {
        return PlistNode(plist_new_string(value.c_str()));
    }

    [[nodiscard]] PlistNode operator()(const NSData& value) const {
        const auto bytes = value.view();
        return PlistNode(plist_new_data(bytes.empty() ? "" : bytes.data(), bytes.size()));
    }

    [[nodiscard]] PlistNode operator()(const NSDate& value) const {
        double seconds = value.timeIntervalSinceReferenceDate;
        if (format_ == PropertyListFormat::XML)
            seconds = std::floor(seconds); // libplist cuts toward 2001
        return PlistScalar{.marker = PlistScalar::dateMarker, .bits = std::bit_cast<std::uint64_t>(seconds)}
            .makeNode();
    }

    [[nodiscard]] PlistNode operator()(const PropertyList::Array& value) const {
        PlistNode node(plist_new_array());
        for (const auto& item : value)
            plist_array_append_item(node.get(), item.visit(*this).release());
        return node;
    }

    [[nodiscard]] PlistNode operator()(const PropertyList::Dictionary& value) const {
        PlistNode node(plist_new_dict());
        for (const auto& [key, item] : value)
            plist_dict_set_item(node.get(), key.c_str(), item.visit(*this).release());
        return node;
    }

private:
    PropertyListFormat format_;
};

std::optional<PropertyList> valueOfNode(plist_t node);

PropertyList integerOfNode(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    const bool isSmall = value <= std::numeric_limits<std::int64_t>::max();
    if (isSmall || PlistScalar::ofNode(node).marker == PlistScalar::unsignedMarker)
        return value;
    return static_cast<std::int64_t>(value);
}

PropertyList dateOfNode(plist_t node) {
    return NSDate{.timeIntervalSinceReferenceDate = std::bit_cast<double>(PlistScalar::ofNode(node).bits)};
}

PropertyList dataOfNode(plist_t node) {
    std::uint64_t size = 0;
    const char* const bytes = plist_get_data_ptr(node, &size);
    return NSData::dataWithBytes(size == 0 ? std::string_view() : std::string_view(bytes, size));
}

PropertyList textOfNode(plist_t node) {
    std::uint64_t size = 0;
    const char* const text = plist_get_string_ptr(node, &size);
    return std::string(text, size);
}

std::optional<PropertyList> arrayOfNode(plist_t node) {
    PropertyList::Array array;
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(node, &iterator);
    const std::unique_ptr<void, Free> iteratorOwner(iterator);
    plist_t item = nullptr;
    while (plist_array_next_item(node, iterator, &item), item != nullptr) {
        auto value = valueOfNode(item);
        if (!value)
            return std::nullopt;
        array.push_back(std::move(*value));
    }
    return array;
}

std::optional<PropertyList> dictionaryOfNode(plist_t node) {
    PropertyList::Dictionary dictionary;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const std::unique_ptr<void, Free> iteratorOwner(iterator);
    while (true) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator, &key, &item);
        const CText keyOwner(key);
        if (item == nullptr)
            return dictionary;
        auto value = valueOfNode(item);
        if (!value)
            return std::nullopt;
        dictionary.insert_or_assign(key, std::move(*value));
    }
}

std::optional<PropertyList> valueOfNode(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return plist_bool_val_is_true(node) != 0;
    case PLIST_UINT:
        return integerOfNode(node);
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING:
        return textOfNode(node);
    case PLIST_DATE:
        return dateOfNode(node);
    case PLIST_DATA:
        return dataOfNode(node);
    case PLIST_ARRAY:
        return arrayOfNode(node);
    case PLIST_DICT:
        return dictionaryOfNode(node);
    default:
        return std::nullopt;
    }
}

PlistNode readSoundFile(std::string_view bytes) {
    plist_t node = nullptr;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (bytes.starts_with("bplist")) {
        if (BinaryPropertyListScan(bytes).isSound())
            plist_from_bin(std::to_address(bytes.begin()), size, &node);
    } else if (XmlPropertyListScan(bytes).isSound()) {
        const CNumericLocale locale;
        plist_from_xml(std::to_address(bytes.begin()), size, &node);
    }
    return PlistNode(node);
}

} // namespace

bool canBeKept(std::string_view key, const PropertyList& value) {
    PropertyListBudget budget;
    return budget.take(PropertyListBudget::weightOfValue) && keyCanBeKept(key, budget) &&
           valueCanBeKept(value, budget, 1);
}

std::optional<std::string> encodePropertyList(const PropertyList& value, PropertyListFormat format) {
    const bool isXML = format == PropertyListFormat::XML;
    if (!wholeCanBeKept(value) || (isXML && !fitsXML(value)))
        return std::nullopt;
    const PlistNode node = value.visit(NodeMaker(format));
    char* bytes = nullptr;
    std::uint32_t size = 0;
    const CNumericLocale locale;
    (isXML ? plist_to_xml : plist_to_bin)(node.get(), &bytes, &size);
    const CText owner(bytes);
    if (bytes == nullptr || size > PropertyListBudget::maximumFileSize)
        return std::nullopt;
    return std::string(bytes, size);
}

std::optional<PropertyList> decodePropertyList(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    const auto node = readSoundFile(bytes);
    auto value = node ? valueOfNode(node.get()) : std::nullopt;
    if (!value || !wholeCanBeKept(*value))
        return std::nullopt;
    return value;
}

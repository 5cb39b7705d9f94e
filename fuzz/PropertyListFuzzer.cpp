#include "ExactPropertyList.h"
#include "propertylists/PropertyListCoding.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Whatever decodes must encode, and decode to the same again; XML, which keeps less, to what gives the same
/// XML again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto value = decodePropertyList({reinterpret_cast<const char*>(bytes), size});
    if (!value)
        return 0;
    const auto encoded = encodePropertyList(*value, PropertyListFormat::Binary);
    const auto again = encoded ? decodePropertyList(*encoded) : std::nullopt;
    if (!again || !isExactlyEqual(*value, *again))
        std::abort();
    const auto xml = encodePropertyList(*value, PropertyListFormat::XML);
    const auto fromXML = xml ? decodePropertyList(*xml) : std::nullopt;
    if (xml && (!fromXML || encodePropertyList(*fromXML, PropertyListFormat::XML) != xml))
        std::abort();
    return 0;
}

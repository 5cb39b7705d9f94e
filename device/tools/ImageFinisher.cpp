#include "ImageFinisher.h"

#include "AdHocSignature.h"
#include "LinkEdit.h"
#include "MachOFormat.h"
#include "Refusal.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t arm64eWithPointerSigning =
    0x80000002; ///< the sub-type with the version of its signing, 0

} // namespace

ImageFinisher::ImageFinisher(MachOFile linked, std::string identifier)
    : image_(std::move(linked)),
      identifier_(std::move(identifier)) {}

FileBytes ImageFinisher::finished() && {
    refuseExceptions();
    const auto schemas = markedSchemas();
    const auto fixups = ChainSigner(image_, schemas).sign();
    LinkEdit(image_).rewrite(fixups);
    image_.bytes().write(MachOFormat::subtypeField, arm64eWithPointerSigning);
    AdHocSignature(identifier_).addTo(image_);
    return std::move(image_.bytes());
}

// The unwinder expects a signed pointer to the personality routine, in a table that the linker writes by
// itself.
void ImageFinisher::refuseExceptions() const {
    const auto isPersonality = [](const MachOFile::Symbol& symbol) {
        return symbol.name.ends_with("_personality_v0");
    };
    if (const auto found = std::ranges::find_if(image_.symbols(), isPersonality);
        found != image_.symbols().end())
        image_.bytes().refuse("uses " + found->name + ": code with exceptions is not handled");
}

ChainSigner::Schemas ImageFinisher::markedSchemas() const {
    ChainSigner::Schemas schemas;
    for (const auto& symbol : image_.symbols())
        if (const auto schema = PointerSchema::ofMarker(symbol.name))
            if (const auto [place, isNew] = schemas.emplace(symbol.value, *schema);
                !isNew && place->second != *schema)
                image_.bytes().refuse("is to sign the pointer at " + hexadecimal(symbol.value) +
                                      " in two ways, " + place->second.description() + " and " +
                                      schema->description());
    return schemas;
}

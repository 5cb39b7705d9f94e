#include "propertylists/BinaryPropertyListScan.h"

#include <algorithm>

namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;

/// The upper half of a marker.
enum Kind : unsigned {
    Simple = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    Ascii = 0x5,
    Utf16 = 0x6
};

enum CollectionKind : unsigned { Array = 0xA, Dictionary = 0xD };

bool isSizeOfNumber(std::uint64_t size) {
    return (size >= 1 && size <= 4) || size == 8;
}

bool isLeadSurrogate(std::uint64_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isTrailSurrogate(std::uint64_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

bool BinaryPropertyListScan::isSound() {
    return readTrailer() && visit(topObject_) && followReferences();
}

bool BinaryPropertyListScan::readTrailer() {
    if (!bytes_.starts_with("bplist0") || bytes_.size() < headerSize + trailerSize ||
        bytes_.size() > PropertyListBudget::maximumFileSize)
        return false;
    const std::size_t trailer = bytes_.size() - trailerSize;
    offsetSize_ = byteAt(trailer + 6);
    referenceSize_ = byteAt(trailer + 7);
    const auto objectCount = integerAt(trailer + 8, 8);
    topObject_ = integerAt(trailer + 16, 8);
    offsetTable_ = integerAt(trailer + 24, 8);
    if (!isSizeOfNumber(offsetSize_) || !isSizeOfNumber(referenceSize_) || offsetTable_ <= headerSize ||
        offsetTable_ > trailer || objectCount > (trailer - offsetTable_) / offsetSize_)
        return false;
    if (objectCount > PropertyListBudget::maximumWeight / PropertyListBudget::weightOfValue)
        return false;
    objects_.resize(objectCount);
    return true;
}

bool BinaryPropertyListScan::followReferences() {
    while (!open_.empty()) {
        auto& collection = open_.back();
        if (collection.next == collection.count) {
            if (!leave())
                return false;
            continue;
        }
        const bool isKey = collection.next < collection.keyCount;
        const auto index =
            integerAt(collection.references + collection.next * referenceSize_, referenceSize_);
        ++collection.next;
        if (!visit(index) || (isKey && !objects_[index].isText))
            return false;
    }
    return true;
}

bool BinaryPropertyListScan::visit(std::size_t index) {
    if (index >= objects_.size())
        return false;
    switch (objects_[index].state) {
    case State::Unseen:
        return visitNew(index);
    case State::Open:
        return false; // it contains itself
    case State::Done:
        return addToCollection(objects_[index]);
    }
    return false;
}

bool BinaryPropertyListScan::visitNew(std::size_t index) {
    const auto header = headerAt(integerAt(offsetTable_ + index * offsetSize_, offsetSize_));
    if (!header)
        return false;
    auto& object = objects_[index];
    constexpr std::size_t falseMarker = 8;
    constexpr std::size_t trueMarker = 9;
    switch (header->kind) {
    case Simple:
        return (header->count == falseMarker || header->count == trueMarker) && visitValue(object, 0);
    case Integer:
        return visitInteger(object, *header);
    case Real:
        return (header->count == 2 || header->count == 3) && hasPayload(*header, 1) && visitValue(object, 0);
    case Date:
        return header->count == 3 && hasPayload(*header, 1) && visitValue(object, 0);
    case Data:
        return hasPayload(*header, 1) && visitValue(object, header->count);
    case Ascii:
    case Utf16:
        return visitText(object, *header);
    case Array:
    case Dictionary:
        return enter(index, *header);
    default:
        return false;
    }
}

bool BinaryPropertyListScan::visitValue(Object& object, std::size_t size) {
    object.state = State::Done;
    object.weight = PropertyListBudget::weightOfValue + size;
    return work_.take(size) && addToCollection(object);
}

bool BinaryPropertyListScan::visitText(Object& object, const Header& header) {
    const std::size_t unitSize = header.kind == Utf16 ? 2 : 1;
    if (!hasPayload(header, unitSize))
        return false;
    bool trailIsDue = false;
    for (std::size_t i = 0; i < header.count; ++i) {
        const auto unit = integerAt(header.payload + i * unitSize, unitSize);
        if (unit == 0 || (unitSize == 1 && unit > 0x7F) || isTrailSurrogate(unit) != trailIsDue)
            return false;
        trailIsDue = isLeadSurrogate(unit);
    }
    object.isText = true;
    return !trailIsDue && visitValue(object, header.count);
}

bool BinaryPropertyListScan::visitInteger(Object& object, const Header& header) {
    constexpr std::size_t sixteenBytes = 4;
    if (header.count > sixteenBytes || !hasPayload(header, 1))
        return false;
    // Of the larger integers those that fit 64 bits without a sign are all that there is.
    return (header.count < sixteenBytes || integerAt(header.payload, 8) == 0) && visitValue(object, 0);
}

bool BinaryPropertyListScan::enter(std::size_t index, const Header& header) {
    const std::size_t referencesOfItem = header.kind == Dictionary ? 2 : 1;
    if (!hasPayload(header, referencesOfItem * referenceSize_) ||
        open_.size() == PropertyListBudget::maximumNesting)
        return false;
    const auto count = header.count * referencesOfItem;
    objects_[index].state = State::Open;
    objects_[index].weight = PropertyListBudget::weightOfValue;
    open_.push_back({.object = index,
                     .references = header.payload,
                     .keyCount = header.kind == Dictionary ? header.count : 0,
                     .count = count});
    return work_.take(count * PropertyListBudget::weightOfValue);
}

bool BinaryPropertyListScan::leave() {
    auto& object = objects_[open_.back().object];
    open_.pop_back();
    object.state = State::Done;
    ++object.nesting;
    return object.nesting <= PropertyListBudget::maximumNesting && addToCollection(object);
}

bool BinaryPropertyListScan::addToCollection(const Object& object) {
    if (open_.empty())
        return object.weight <= PropertyListBudget::maximumWeight;
    auto& collection = objects_[open_.back().object];
    collection.nesting = std::max(collection.nesting, object.nesting);
    collection.weight += object.weight;
    return collection.weight <= PropertyListBudget::maximumWeight;
}

std::optional<BinaryPropertyListScan::Header> BinaryPropertyListScan::headerAt(std::size_t position) const {
    if (position < headerSize || position >= offsetTable_)
        return std::nullopt;
    const unsigned marker = byteAt(position);
    Header header{.kind = marker >> 4U, .count = marker & 0xFU, .payload = position + 1};
    constexpr std::size_t countFollows = 0xF;
    const bool hasCount = header.kind >= Data && header.kind <= Dictionary;
    if (!hasCount || header.count != countFollows)
        return header;
    if (header.payload >= offsetTable_ || byteAt(header.payload) >> 4U != Integer)
        return std::nullopt;
    const std::size_t sizeExponent = byteAt(header.payload) & 0xFU;
    const std::size_t size = std::size_t{1} << sizeExponent;
    if (sizeExponent > 3 || size > offsetTable_ - header.payload - 1)
        return std::nullopt;
    header.count = integerAt(header.payload + 1, size);
    header.payload += 1 + size;
    return header;
}

bool BinaryPropertyListScan::hasPayload(const Header& header, std::size_t unitSize) const {
    const bool countIsExponent = header.kind < Data;
    const auto count = countIsExponent ? std::size_t{1} << header.count : header.count;
    return count <= (offsetTable_ - header.payload) / unitSize;
}

std::uint8_t BinaryPropertyListScan::byteAt(std::size_t position) const {
    return static_cast<std::uint8_t>(bytes_[position]);
}

std::uint64_t BinaryPropertyListScan::integerAt(std::size_t position, std::size_t size) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = value << 8U | byteAt(position + i);
    return value;
}

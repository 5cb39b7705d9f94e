#pragma once

#include "propertylists/PropertyListBudget.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// Looks through a binary property list before libplist reads it, since libplist follows references as deep
/// as they go, copies a shared object at every reference to it, and mends or stops at text that is no text.
/// One object for one file; what it says is about the tree that hangs from the file's top object.
class BinaryPropertyListScan {
public:
    explicit BinaryPropertyListScan(std::string_view bytes) : bytes_(bytes) {}

    /// Whether the tree is whole, has no loop, holds nothing but what a PropertyList can, and fits a budget.
    /// To be asked once.
    [[nodiscard]] bool isSound();

private:
    enum class State : std::uint8_t { Unseen, Open, Done };

    struct Object {
        State state = State::Unseen;
        bool isText = false;
        std::size_t nesting = 0; ///< arrays and dictionaries within each other, itself included
        std::size_t weight = 0;  ///< of the whole tree below it, shared objects as often as they occur
    };

    /// An array or dictionary whose references are being followed: a dictionary's keys, then its values.
    struct Collection {
        std::size_t object = 0;
        std::size_t references = 0; ///< position of the first
        std::size_t keyCount = 0;
        std::size_t count = 0;
        std::size_t next = 0;
    };

    /// What follows an object's marker.
    struct Header {
        unsigned kind;
        std::size_t count;
        std::size_t payload; ///< position
    };

    [[nodiscard]] bool readTrailer();
    [[nodiscard]] bool followReferences();
    [[nodiscard]] bool visit(std::size_t index);
    [[nodiscard]] bool visitNew(std::size_t index);
    [[nodiscard]] bool visitValue(Object& object, std::size_t size);
    [[nodiscard]] bool visitText(Object& object, const Header& header);
    [[nodiscard]] bool visitInteger(Object& object, const Header& header);
    [[nodiscard]] bool enter(std::size_t index, const Header& header);
    [[nodiscard]] bool leave();
    [[nodiscard]] bool addToCollection(const Object& object);

    [[nodiscard]] std::optional<Header> headerAt(std::size_t position) const;
    [[nodiscard]] bool hasPayload(const Header& header, std::size_t unitSize) const;
    [[nodiscard]] std::uint8_t byteAt(std::size_t position) const;
    [[nodiscard]] std::uint64_t integerAt(std::size_t position, std::size_t size) const;

    std::string_view bytes_;
    std::size_t offsetSize_ = 0;
    std::size_t referenceSize_ = 0;
    std::size_t topObject_ = 0;
    std::size_t offsetTable_ = 0; ///< position, and the end of the objects
    std::vector<Object> objects_;
    std::vector<Collection> open_;
    PropertyListBudget work_; ///< for each object once; never more than the tree weighs
};

#pragma once

#include "propertylists/PropertyListBudget.h"

#include <optional>
#include <string_view>
#include <vector>

/// Looks through an XML property list before libplist reads it, since libplist takes it apart by recursion as
/// deep as it is nested, and reads much that is damaged as 0, as empty or not at all. One object for one
/// file.
class XmlPropertyListScan {
public:
    explicit XmlPropertyListScan(std::string_view text) : rest_(text) {}

    /// Whether the text is a "plist" element around one whole value, and fits a budget. References to
    /// characters are left to libplist; a document type that declares anything is refused. To be asked once.
    [[nodiscard]] bool isSound();

private:
    /// "<name>", "</name>" or "<name/>".
    struct Tag {
        std::string_view name;
        bool closes = false;
        bool isEmpty = false;
    };

    struct Collection {
        bool isDictionary = false;
        bool hasKey = false; ///< the value of the key is due
    };

    [[nodiscard]] bool scanValue();
    [[nodiscard]] bool scanTop(const Tag& tag);
    [[nodiscard]] bool scanInside(const Tag& tag);
    [[nodiscard]] bool scanElement(const Tag& tag);
    [[nodiscard]] bool scanBoolean(const Tag& tag);
    [[nodiscard]] bool openCollection(const Tag& tag);
    [[nodiscard]] bool closeCollection(const Tag& tag);
    [[nodiscard]] bool closeNext(std::string_view name);
    [[nodiscard]] std::optional<Tag> nextTag();
    /// What stands before the end tag of that name, which is passed.
    [[nodiscard]] std::optional<std::string_view> contentUntilEnd(std::string_view name);

    [[nodiscard]] bool skipMiscellany();
    void skipSpace();
    [[nodiscard]] bool skip(std::string_view prefix);
    [[nodiscard]] bool skipPast(std::string_view end);

    std::string_view rest_;
    std::vector<Collection> open_;
    PropertyListBudget budget_;
};

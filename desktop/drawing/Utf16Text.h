#pragma once

#include <QString>
#include <cstddef>
#include <string_view>
#include <vector>

/// A UTF-8 text as Qt wants it, and which index of one belongs to which of the other. What is no UTF-8
/// becomes replacement characters.
class Utf16Text {
public:
    explicit Utf16Text(std::string_view utf8);

    [[nodiscard]] const QString& string() const { return string_; }

    /// The UTF-8 index of the character that has a UTF-16 unit; the end for positions past it.
    [[nodiscard]] std::size_t byteIndex(qsizetype position) const;

    /// The first UTF-16 unit of the character that has a byte; the end for indexes past it.
    [[nodiscard]] qsizetype position(std::size_t byteIndex) const;

private:
    QString string_;
    std::vector<std::size_t> byteIndexes_; ///< of each UTF-16 unit, then of the end
};

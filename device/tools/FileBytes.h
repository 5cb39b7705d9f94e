#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The bytes of one file, read and changed as little-endian numbers and texts at their offsets. Reading or
/// writing outside of them is a `Refusal` that names the file.
class FileBytes {
public:
    /// \param name what refusals call the file
    FileBytes(std::string name, std::vector<std::uint8_t> bytes);

    [[nodiscard]] static FileBytes load(const std::string& path);
    void save(const std::string& path) const;

    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }

    template <std::unsigned_integral T>
    [[nodiscard]] T read(std::uint64_t offset) const {
        T value = 0;
        const auto bytes = range(offset, sizeof(T));
        for (std::size_t i = sizeof(T); i-- > 0;)
            value = static_cast<T>(static_cast<std::uint64_t>(value) << 8U | bytes[i]);
        return value;
    }

    template <std::unsigned_integral T>
    void write(std::uint64_t offset, T value) {
        require(offset, sizeof(T));
        for (std::size_t i = 0; i < sizeof(T); ++i)
            bytes_[offset + i] = static_cast<std::uint8_t>(static_cast<std::uint64_t>(value) >> (8 * i));
    }

    template <std::unsigned_integral T>
    void append(T value) {
        bytes_.resize(bytes_.size() + sizeof(T));
        write(bytes_.size() - sizeof(T), value);
    }

    void append(std::span<const std::uint8_t> bytes);

    /// Adds the text and its terminator. \returns where it begins
    std::size_t appendText(std::string_view text);

    /// Adds zeros until the size is a multiple.
    void padTo(std::size_t multiple);

    /// Cuts everything off from `size` on.
    void truncate(std::size_t size);

    [[nodiscard]] std::span<const std::uint8_t> range(std::uint64_t offset, std::uint64_t size) const;

    [[nodiscard]] std::span<const std::uint8_t> all() const { return bytes_; }

    /// A text that ends with a zero.
    [[nodiscard]] std::string text(std::uint64_t offset) const;

    /// A text that ends with a zero, or fills all of its field.
    [[nodiscard]] std::string fieldText(std::uint64_t offset, std::size_t fieldSize) const;

    /// Throws a `Refusal` that begins with the file's name.
    [[noreturn]] void refuse(const std::string& reason) const;

private:
    void require(std::uint64_t offset, std::uint64_t size) const;

    std::string name_;
    std::vector<std::uint8_t> bytes_;
};

#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// The linker's own account of where it put what: its files, and each file's symbols with their addresses.
class LinkMap {
public:
    /// Reads a map from a file. Refuses one of another shape.
    explicit LinkMap(const std::string& path);

    /// The objects that were linked, in their order.
    [[nodiscard]] const std::vector<std::string>& objects() const { return objects_; }

    /// Where a symbol of an object is in the image; nothing when it was left out. `object` counts from 0.
    [[nodiscard]] std::optional<std::uint64_t> address(std::size_t object, const std::string& symbol) const;

    /// Whether the linker left the symbol out because nothing refers to it.
    [[nodiscard]] bool isStripped(std::size_t object, const std::string& symbol) const;

    /// Where a symbol is that some object contributed; nothing when none did.
    [[nodiscard]] std::optional<std::uint64_t> addressInAny(const std::string& symbol) const;

private:
    using Key = std::pair<std::size_t, std::string>;

    void readLine(const std::string& line);
    void readFile(const std::string& line);
    void readSymbol(const std::string& line);

    std::string path_;
    std::string heading_;
    std::vector<std::string> objects_;
    std::map<Key, std::uint64_t> addresses_;
    std::map<std::string, std::uint64_t> addressesInAny_;
    std::set<Key> stripped_;
};

#include "FileBytes.h"

#include "Refusal.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

FileBytes::FileBytes(std::string name, std::vector<std::uint8_t> bytes)
    : name_(std::move(name)),
      bytes_(std::move(bytes)) {}

FileBytes FileBytes::load(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw Refusal(path + ": cannot be read");
    std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(file), {}};
    return {path, std::move(bytes)};
}

void FileBytes::save(const std::string& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes_.data()), static_cast<std::streamsize>(bytes_.size()));
    file.close();
    if (!file)
        throw Refusal(path + ": cannot be written");
}

void FileBytes::append(std::span<const std::uint8_t> bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

std::size_t FileBytes::appendText(std::string_view text) {
    const auto begin = bytes_.size();
    bytes_.insert(bytes_.end(), text.begin(), text.end());
    bytes_.push_back(0);
    return begin;
}

void FileBytes::padTo(std::size_t multiple) {
    bytes_.resize((bytes_.size() + multiple - 1) / multiple * multiple);
}

void FileBytes::truncate(std::size_t size) {
    require(0, size);
    bytes_.resize(size);
}

std::span<const std::uint8_t> FileBytes::range(std::uint64_t offset, std::uint64_t size) const {
    require(offset, size);
    return all().subspan(offset, size);
}

std::string FileBytes::text(std::uint64_t offset) const {
    require(offset, 1);
    const auto rest = all().subspan(offset);
    const auto end = std::ranges::find(rest, 0);
    if (end == rest.end())
        refuse("the text at " + hexadecimal(offset) + " has no end");
    return {rest.begin(), end};
}

std::string FileBytes::fieldText(std::uint64_t offset, std::size_t fieldSize) const {
    const auto field = range(offset, fieldSize);
    return {field.begin(), std::ranges::find(field, 0)};
}

void FileBytes::refuse(const std::string& reason) const {
    throw Refusal(name_ + ": " + reason);
}

void FileBytes::require(std::uint64_t offset, std::uint64_t size) const {
    if (offset > bytes_.size() || size > bytes_.size() - offset)
        refuse("ends at " + hexadecimal(bytes_.size()) + ", before the " + std::to_string(size) +
               " bytes at " + hexadecimal(offset));
}

#include "TarBytes.h"

#include <cstdio>
#include <numeric>

namespace {

/// A header's bytes, and where its fields are.
class Header {
public:
    Header(char type, std::string_view name, std::size_t size, std::string_view linkTarget) {
        set(0, name);
        setNumber(100, 7, 0644);
        setNumber(108, 7, 0);
        setNumber(116, 7, 0);
        setNumber(124, 11, size);
        setNumber(136, 11, 0);
        set(148, "        ");
        bytes_[156] = type;
        set(157, linkTarget);
        set(257, std::string_view("ustar\00000", 8));
        setNumber(148, 6, checksum());
    }

    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    void set(std::size_t at, std::string_view text) { text.copy(bytes_.data() + at, text.size()); }

    void setNumber(std::size_t at, int digits, std::size_t number) {
        std::string text(static_cast<std::size_t>(digits) + 1, '\0');
        std::snprintf(text.data(), text.size(), "%0*zo", digits, number);
        set(at, text);
    }

    [[nodiscard]] std::size_t checksum() const {
        return std::accumulate(bytes_.begin(), bytes_.end(), std::size_t{0}, [](std::size_t sum, char byte) {
            return sum + static_cast<unsigned char>(byte);
        });
    }

    std::string bytes_ = std::string(TarBytes::blockSize, '\0');
};

/// "LENGTH KEY=VALUE\n", in which the length counts its own digits too.
std::string recordOf(std::string_view key, std::string_view value) {
    const auto rest = " " + std::string(key) + "=" + std::string(value) + "\n";
    auto length = rest.size();
    while (rest.size() + std::to_string(length).size() != length)
        length = rest.size() + std::to_string(length).size();
    return std::to_string(length) + rest;
}

} // namespace

TarBytes& TarBytes::file(std::string_view name, std::string_view content) {
    return entry('0', name, content);
}

TarBytes& TarBytes::entry(char type, std::string_view name, std::string_view content,
                          std::string_view linkTarget) {
    bytes_ += Header(type, name, content.size(), linkTarget).bytes();
    bytes_ += content;
    bytes_.resize((bytes_.size() + blockSize - 1) / blockSize * blockSize);
    return *this;
}

TarBytes& TarBytes::extended(std::string_view key, std::string_view value) {
    return entry('x', "PaxHeader", recordOf(key, value));
}

std::string TarBytes::ended() const {
    return bytes_ + std::string(2 * blockSize, '\0');
}

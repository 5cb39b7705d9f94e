#pragma once

#include <string>
#include <string_view>

/// A tar file that is put together by hand, so that it may say what no program would write.
class TarBytes {
public:
    /// A regular file.
    TarBytes& file(std::string_view name, std::string_view content);

    /// An entry of any type, the type being the character that stands for it.
    /// \param name at most 100 bytes
    TarBytes& entry(char type, std::string_view name, std::string_view content = {},
                    std::string_view linkTarget = {});

    /// Further facts of the next entry, which replace what its own header says: "path", "size", ...
    TarBytes& extended(std::string_view key, std::string_view value);

    /// What there is up to now, without an end.
    [[nodiscard]] const std::string& unended() const { return bytes_; }

    /// With the two blocks of zeros that end a tar file.
    [[nodiscard]] std::string ended() const;

    static constexpr std::size_t blockSize = 512;

private:
    std::string bytes_;
};

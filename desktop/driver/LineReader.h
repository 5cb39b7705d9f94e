#pragma once

#include <cstdio>
#include <optional>
#include <string>

/// Reads lines of any length from a stream, keeping no more of one than is of use. Made by the driver's
/// session; the stream is somebody else's.
class LineReader {
public:
    /// The longest line that is kept, in bytes.
    static constexpr std::size_t longestLine = 1024UZ * 1024;

    struct Line {
        std::string text;     ///< without its end ("\n" or "\r\n")
        bool tooLong = false; ///< `text` is only the beginning
    };

    explicit LineReader(std::FILE* stream) : stream_(stream) {}

    /// The next line, waiting for it; the last one may lack its end. Nothing at the end of the stream.
    [[nodiscard]] std::optional<Line> next();

private:
    std::FILE* stream_;
};

#include "LineReader.h"

std::optional<LineReader::Line> LineReader::next() {
    Line line;
    auto character = std::getc(stream_);
    if (character == EOF)
        return std::nullopt;
    for (; character != EOF && character != '\n'; character = std::getc(stream_)) {
        if (line.text.size() < longestLine)
            line.text += static_cast<char>(character);
        else
            line.tooLong = true;
    }
    if (line.text.ends_with('\r'))
        line.text.pop_back();
    return line;
}

#include "DriverSession.h"

#include <utility>

namespace {

bool write(const Answer& answer, std::FILE* output) {
    const auto text = lineOf(answer) + '\n';
    return std::fwrite(text.data(), 1, text.size(), output) == text.size() && std::fflush(output) == 0;
}

} // namespace

DriverSession::DriverSession(CommandTable& commands, std::function<void()> afterEach)
    : commands_(commands),
      afterEach_(std::move(afterEach)) {
    commands_.add({.usage = "quit", .run = [this](const auto&) {
                       quit_ = true;
                       return Answer();
                   }});
}

bool DriverSession::run(std::FILE* input, std::FILE* output) {
    LineReader lines(input);
    while (!quit_) {
        const auto line = lines.next();
        if (!line)
            break;
        if (!write(answerTo(*line), output))
            return false;
    }
    return true;
}

Answer DriverSession::answerTo(const LineReader::Line& line) {
    if (line.tooLong)
        return std::unexpected("the line is longer than 1 MiB");
    auto answer = commands_.run(line.text);
    afterEach_();
    return answer;
}

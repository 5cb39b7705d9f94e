#include "WholeProgram.h"

#include "AllCommands.h"
#include "DeviceInstaller.h"
#include "time/MainQueueScheduler.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

struct FileEnd {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileEnd>;

/// A stream whose text is in memory.
class MemoryStream {
public:
    MemoryStream() : file_(open_memstream(&bytes_, &size_)) {}

    ~MemoryStream() {
        file_.reset();
        std::free(bytes_); // NOLINT(*-no-malloc): as its maker asks
    }

    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

    [[nodiscard]] std::FILE* file() const { return file_.get(); }

    [[nodiscard]] std::string text() const {
        std::fflush(file_.get());
        return {bytes_, size_};
    }

private:
    char* bytes_ = nullptr;
    std::size_t size_ = 0;
    File file_;
};

} // namespace

WholeProgram::Running::Running(TestDevice& device, const Screen::Options& options)
    : screen(options),
      session(commands, [&device] { Device::current().mainQueue().advance(device.clock(), {}); }) {
    addAllCommands(commands, {.application = application,
                              .touches = touches,
                              .compositor = compositor,
                              .clock = device.clock(),
                              .log = device.log()});
}

WholeProgram::WholeProgram(const Screen::Options& screen, const TestDevice::Settings& settings)
    : device_(settings) {
    const auto installed = DeviceInstaller(DEVICE_TREE).install(Device::current().root());
    EXPECT_TRUE(installed) << installed.error();
    running_ = std::make_unique<Running>(device_, screen);
}

WholeProgram::~WholeProgram() = default;

std::string WholeProgram::outputFor(const std::string& line) {
    auto text = line + '\n';
    const File input(fmemopen(text.data(), text.size(), "r"));
    const MemoryStream output;
    EXPECT_TRUE(running_->session.run(input.get(), output.file()));
    return output.text();
}

QJsonObject WholeProgram::ask(const std::string& line) {
    const auto output = outputFor(line);
    EXPECT_EQ(std::ranges::count(output, '\n'), 1) << output;
    EXPECT_TRUE(output.ends_with('\n')) << output;
    QJsonParseError error{};
    const auto answer = QJsonDocument::fromJson(QByteArray::fromStdString(output), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << output;
    EXPECT_TRUE(answer.value("ok").isBool()) << output;
    return answer;
}

QJsonObject WholeProgram::done(const std::string& line) {
    auto answer = ask(line);
    EXPECT_TRUE(answer.value("ok").toBool())
        << line << ": " << answer.value("error").toString().toStdString();
    return answer;
}

void WholeProgram::openPane() {
    for (const auto* const line : {"open", "settle", "swipe-down", "settle"})
        done(line);
}

bool WholeProgram::waits() {
    return Device::current().mainQueue().nextDue().has_value();
}

void WholeProgram::restart(const Screen::Options& screen) {
    running_.reset();
    running_ = std::make_unique<Running>(device_, screen);
}

#include "system/LogRecorder.h"

#include <mutex>
#include <utility>

namespace {

/// The recorders that live. Never destroyed: code that is unloaded at exit may still write lines.
struct Recorders {
    std::mutex mutex;
    std::vector<LogRecorder*> all;

    static Recorders& shared() {
        static auto* recorders = new Recorders;
        return *recorders;
    }
};

} // namespace

LogRecorder::LogRecorder() {
    auto& recorders = Recorders::shared();
    const std::scoped_lock lock(recorders.mutex);
    recorders.all.push_back(this);
}

LogRecorder::~LogRecorder() {
    auto& recorders = Recorders::shared();
    const std::scoped_lock lock(recorders.mutex);
    std::erase(recorders.all, this);
}

std::vector<std::string> LogRecorder::take() {
    const std::scoped_lock lock(Recorders::shared().mutex);
    return std::exchange(lines_, {});
}

void LogRecorder::recordLine(std::string_view line) {
    auto& recorders = Recorders::shared();
    const std::scoped_lock lock(recorders.mutex);
    for (auto* recorder : recorders.all)
        recorder->lines_.emplace_back(line);
}

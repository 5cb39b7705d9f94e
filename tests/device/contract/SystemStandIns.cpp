// The system's C functions as the tests have them: each call is told to the journal, and what is to run later
// waits until a test runs it.

#include "SystemStandIns.h"

#include "Journal.h"

#include <deque>
#include <string_view>
#include <utility>

namespace {

struct Work {
    void* context;
    void (*run)(void* context);
};

std::deque<Work>& waiting() {
    static std::deque<Work> all;
    return all;
}

std::string& librarySetAside() {
    static std::string path;
    return path;
}

void tell(const std::string& line) {
    addToJournal(line.c_str());
}

} // namespace

std::size_t runWaitingWork() {
    std::size_t count = 0;
    for (; !waiting().empty(); ++count) {
        const auto work = waiting().front();
        waiting().pop_front();
        work.run(work.context);
    }
    return count;
}

extern "C" {
const char* textOfString(id string);

void setServicesLibrary(const char* path) {
    librarySetAside() = path != nullptr ? path : "";
}

const char* servicesLibrary() {
    return SERVICES_LIBRARY;
}

DispatchQueue _dispatch_main_q;

void dispatch_async_f(DispatchQueue* queue, void* context, void (*work)(void* context)) {
    tell(queue == &_dispatch_main_q ? "main queue: async" : "another queue");
    waiting().push_back({context, work});
}

std::uint64_t dispatch_time(std::uint64_t base, std::int64_t nanoseconds) {
    return base + static_cast<std::uint64_t>(nanoseconds);
}

void dispatch_after_f(std::uint64_t when, DispatchQueue* queue, void* context, void (*work)(void* context)) {
    tell((queue == &_dispatch_main_q ? "main queue: after " : "another queue: after ") +
         std::to_string(when));
    waiting().push_back({context, work});
}

NotificationCenterObject* CFNotificationCenterGetDarwinNotifyCenter() {
    static NotificationCenterObject center;
    return &center;
}

void CFNotificationCenterPostNotification(NotificationCenterObject* center, id name, const void* object,
                                          const void* userInfo, bool deliverImmediately) {
    const bool isAsMeant = center == CFNotificationCenterGetDarwinNotifyCenter() && object == nullptr &&
                           userInfo == nullptr && deliverImmediately;
    tell((isAsMeant ? "Darwin notification " : "another notification ") + std::string(textOfString(name)));
}

void AudioServicesPlaySystemSound(std::uint32_t sound) {
    tell("sound " + std::to_string(sound));
}

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names for what stands in the place of the
// loader's functions
void* __real_dlopen(const char* path, int mode);
int __real_dlclose(void* library);

void* __wrap_dlopen(const char* path, int mode) {
    tell("dlopen " + std::string(path) + " " + std::to_string(mode));
    const bool isServices = std::string_view(path).ends_with("/BackBoardServices");
    return isServices && !librarySetAside().empty() ? __real_dlopen(librarySetAside().c_str(), mode)
                                                    : nullptr;
}

int __wrap_dlclose(void* library) {
    tell("dlclose");
    return __real_dlclose(library);
}

// NOLINTEND(bugprone-reserved-identifier)
}

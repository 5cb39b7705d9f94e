/// Another process that uses the preferences of a device root: one command a line, one answer a line.
#include "Device.h"
#include "Foundation/NSUserDefaults.h"
#include "system/LogRecorder.h"
#include "time/RealClock.h"

#include <sys/resource.h>

#include <csignal>
#include <iostream>
#include <sstream>
#include <string>

namespace {

/// Writes beyond that many bytes of a file fail with EFBIG from now on.
void limitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{.rlim_cur = bytes, .rlim_max = RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

std::string perform(const std::string& line, LogRecorder& log) {
    std::istringstream words(line);
    std::string command;
    std::string suite;
    std::string key;
    std::string value;
    words >> command >> suite >> key >> value;
    if (command == "limit")
        return limitFileSize(std::stoul(suite)), "ok";
    if (command == "log")
        return std::to_string(log.take().size());
    const auto defaults = NSUserDefaults::initWithSuiteName(suite);
    if (command == "get")
        return defaults->stringForKey(key).value_or("(nothing)");
    if (command == "sync")
        return defaults->synchronize() ? "true" : "false";
    if (command == "set")
        return defaults->setObject(value, key), "ok";
    if (command == "fill")
        return defaults->setObject(std::string(std::stoul(value), 'x'), key), "ok";
    if (command == "remove")
        return defaults->removeObjectForKey(key), "ok";
    if (command == "clear")
        return defaults->removePersistentDomainForName(suite), "ok";
    return "unknown command";
}

} // namespace

int main(int, char** arguments) {
    auto root = DeviceRoot::open(arguments[1]);
    if (!root)
        return 1;
    const Device device({.root = std::move(*root), .clock = std::make_unique<RealClock>()});
    LogRecorder log;
    for (std::string line; std::getline(std::cin, line);)
        std::cout << perform(line, log) << '\n' << std::flush;
    return 0;
}

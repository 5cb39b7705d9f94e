// RootPrefixProbe ROOT QUERY...: answers queries to the resolver of a fresh process whose device is in the
// host's folder ROOT, one line each. A query is an accessor's name, with ":" and an argument where it takes
// one.

#include "Device.h"
#include "RootPrefixResolver.h"
#include "time/RealClock.h"

#include <dlfcn.h>

#include <array>
#include <barrier>
#include <cstdio>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

std::string shown(const char* text) {
    return text != nullptr ? text : "(null)";
}

/// What all threads were answered, each asking another accessor first.
std::string askFromThreads() {
    constexpr int count = 16;
    std::barrier start(count);
    std::array<std::string, count> answers;
    {
        std::vector<std::jthread> threads;
        threads.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            threads.emplace_back([&start, &answer = answers.at(i), i] {
                std::array<char, 1024> buffer{};
                start.arrive_and_wait();
                if (i % 2 == 0)
                    answer = shown(RootPrefixResolver::libroot_jbrootpath("/a", buffer.data())) + ' ';
                answer += shown(RootPrefixResolver::libroot_get_root_prefix());
                if (i % 2 != 0)
                    answer.insert(0,
                                  shown(RootPrefixResolver::libroot_jbrootpath("/a", buffer.data())) + ' ');
            });
        }
    }
    const std::set<std::string> distinct(answers.begin(), answers.end());
    return distinct.size() == 1 ? *distinct.begin() : "threads disagree";
}

/// How often the loader was asked to open the library: closes it until it is gone. Ends the resolver's use.
std::string countOpens(const std::string& symbol) {
    Dl_info library{};
    dladdr(RootPrefixResolver::libroot_get_root_prefix(), &library);
    const std::string name = shown(library.dli_fname);
    void* const handle = dlopen(name.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle == nullptr || dlsym(handle, symbol.c_str()) == nullptr)
        return "not loaded";
    dlclose(handle); // its own
    int opens = 0;
    while (opens < 100 && dlopen(name.c_str(), RTLD_LAZY | RTLD_NOLOAD) != nullptr) {
        dlclose(handle); // the one just made
        dlclose(handle); // one of the resolver's
        ++opens;
    }
    return std::to_string(opens);
}

std::string answer(const std::string& query) {
    const auto colon = query.find(':');
    const auto name = query.substr(0, colon);
    const auto argument = colon != std::string::npos ? query.substr(colon + 1) : std::string();
    std::array<char, 1024> buffer{};
    if (name == "libroot_get_root_prefix")
        return shown(RootPrefixResolver::libroot_get_root_prefix());
    if (name == "libroot_get_jbroot_prefix")
        return shown(RootPrefixResolver::libroot_get_jbroot_prefix());
    if (name == "libroot_get_boot_uuid")
        return shown(RootPrefixResolver::libroot_get_boot_uuid());
    if (name == "libroot_jbrootpath")
        return shown(RootPrefixResolver::libroot_jbrootpath(argument.c_str(), buffer.data()));
    if (name == "libroot_rootfspath")
        return shown(RootPrefixResolver::libroot_rootfspath(argument.c_str(), buffer.data()));
    if (name == "jailbreakRootPath")
        return RootPrefixResolver::jailbreakRootPath(argument).value_or("(nothing)");
    if (name == "threads")
        return askFromThreads();
    if (name == "opens")
        return countOpens("libroot_get_root_prefix");
    return "unknown query";
}

} // namespace

int main(int count, char** values) {
    const std::span arguments(values, static_cast<std::size_t>(count));
    if (arguments.size() < 2)
        return 2;
    auto root = DeviceRoot::open(arguments[1]);
    if (!root)
        return 2;
    const Device device({.root = std::move(*root), .clock = std::make_unique<RealClock>()});
    for (const auto* const query : arguments.subspan(2))
        std::puts(answer(query).c_str());
    std::fflush(stdout);
    std::_Exit(0); // the library may have been closed under the resolver, which would close it again at exit
}

#include "BundleUnderTest.h"

#include "ClassRecords.h"
#include "CodePointers.h"
#include "CodeUnderTest.h"
#include "Failure.h"
#include "ImportTable.h"

#include <cstdio>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace {

BundleUnderTest::Call called;
std::optional<Image> loaded;

constexpr std::string_view keyOption = "--disturb-key=";
constexpr std::string_view slotOption = "--disturb-slot=";
constexpr std::string_view symbolOption = "--unsigned-symbols";
constexpr std::string_view placeOption = "--tell-place";

void readOption(std::string_view argument, BundleUnderTest::Call& call) {
    if (argument.starts_with(keyOption))
        call.disturbance.key =
            static_cast<unsigned>(std::stoul(std::string(argument.substr(keyOption.size()))));
    else if (argument.starts_with(slotOption))
        call.disturbance.slot = std::stoul(std::string(argument.substr(slotOption.size())));
    else if (argument == symbolOption)
        call.leavesSymbolsUnsigned = true;
    else if (argument == placeOption)
        call.tellsPlace = true;
}

void requireKnownImports() {
    std::string symbols;
    for (const auto& symbol : ImportTable::unknown())
        symbols.append(" ").append(symbol);
    if (!symbols.empty())
        fail("nothing stands for what the bundle imports:", symbols.c_str());
}

} // namespace

BundleUnderTest::Call BundleUnderTest::readArguments(int count, char** arguments) {
    const std::span all(arguments, static_cast<std::size_t>(count));
    if (all.size() < 3 || (all[2] != std::string_view("arm64") && all[2] != std::string_view("arm64e")))
        fail("called without a bundle and arm64 or arm64e");
    Call call{.path = std::filesystem::absolute(all[1]),
              .architecture =
                  all[2] == std::string_view("arm64e") ? Architecture::Arm64e : Architecture::Arm64,
              .disturbance = {},
              .leavesSymbolsUnsigned = false,
              .tellsPlace = false};
    for (const std::string_view argument : all.subspan(3))
        readOption(argument, call);
    return call;
}

void BundleUnderTest::load(const Call& call) {
    called = call;
    CodePointers::areSigned(call.architecture == Architecture::Arm64e);
    loaded.emplace(call.path.c_str(), call.architecture, ImportTable::address, call.disturbance);
    requireKnownImports();
    if (call.tellsPlace)
        std::fprintf(stderr, "loaded at %p\n", static_cast<const void*>(loaded->memory()));
    ClassRecords::publish(*loaded);
    loaded->runInitialisers();
}

const Image* BundleUnderTest::image() {
    return loaded ? &*loaded : nullptr;
}

const char* BundleUnderTest::path() {
    return called.path.c_str();
}

bool BundleUnderTest::leavesSymbolsUnsigned() {
    return called.leavesSymbolsUnsigned;
}

std::string folderOfCode() {
    return called.path.substr(0, called.path.rfind('/'));
}

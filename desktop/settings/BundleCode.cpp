#include "BundleCode.h"

#include "Device.h"
#include "LibraryImage.h"
#include "SystemTexts.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <fcntl.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

/// A symbol as its source has it, where it is one of C++.
std::string readable(const std::string& symbol) {
    struct Free {
        void operator()(char* text) const { std::free(text); } // NOLINT(*-no-malloc): as its maker asks
    };

    int status = 0;
    const std::unique_ptr<char, Free> name(abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status));
    return status == 0 ? name.get() : symbol;
}

/// The loader's words without the name that it was led to the file by, and with symbols readable.
std::string reasonIn(std::string_view loaderText) {
    constexpr std::string_view separator = ": ";
    constexpr std::string_view missing = "undefined symbol: ";
    if (const auto end = loaderText.find(separator); end != std::string_view::npos)
        loaderText.remove_prefix(end + separator.size());
    if (!loaderText.starts_with(missing))
        return std::string(loaderText);
    return systemText("nothing defines “%@”", {readable(std::string(loaderText.substr(missing.size())))});
}

} // namespace

std::expected<BundleCode, std::string> BundleCode::load(const std::string& devicePath) {
    auto file = RegularFile::open(Device::current().root(), devicePath, O_RDONLY);
    if (!file && file.error() == ENOENT)
        return std::unexpected(systemText("There is no code at %@.", {devicePath}));
    if (!file)
        return std::unexpected(systemText("%@ cannot be read: %@.",
                                          {devicePath, std::generic_category().message(file.error())}));
    if (const auto image = LibraryImage::check(*file); !image)
        return std::unexpected(systemText("%@ " + image.error() + ".", {devicePath}));
    auto handle = LibraryFiles::shared().load(std::move(*file), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        return std::unexpected(
            systemText("%@ cannot be loaded: %@.", {devicePath, reasonIn(handle.error())}));
    return BundleCode(std::move(*handle));
}

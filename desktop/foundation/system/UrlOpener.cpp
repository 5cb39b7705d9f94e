#include "system/UrlOpener.h"

#include <algorithm>
#include <utility>

namespace {

/// What stands before the first colon, in lower case; "" for what is no URL.
std::string schemeOf(std::string_view url) {
    const auto end = url.find(':');
    if (end == std::string_view::npos)
        return "";
    std::string scheme(url.substr(0, end));
    std::ranges::transform(scheme, scheme.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return scheme;
}

} // namespace

void UrlOpener::setHandler(std::string_view scheme, Handler handler) {
    handlers_.insert_or_assign(schemeOf(std::string(scheme) + ":"), handler);
}

const UrlOpener::Handler* UrlOpener::handlerOf(std::string_view url) const {
    const auto found = handlers_.find(schemeOf(url));
    return found != handlers_.end() ? &found->second : nullptr;
}

bool UrlOpener::canOpen(std::string_view url) const {
    if (const auto* const handler = handlerOf(url))
        return *handler != Handler::None;
    return desktop_ != nullptr && !schemeOf(url).empty();
}

bool UrlOpener::open(const std::string& url) {
    const bool isOpened = handOver(url);
    if (isOpened)
        opened_.push_back(url);
    return isOpened;
}

bool UrlOpener::handOver(const std::string& url) const {
    if (const auto* const handler = handlerOf(url))
        return *handler == Handler::Works;
    return desktop_ && !schemeOf(url).empty() && desktop_(url);
}

std::vector<std::string> UrlOpener::take() {
    return std::exchange(opened_, {});
}

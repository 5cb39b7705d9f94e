#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Opens URLs in other applications, and keeps those that were opened for whoever asks. Owned by the device.
/// Main thread only.
class UrlOpener {
public:
    /// How it goes when a URL of a scheme is opened.
    enum class Handler {
        Works,
        Fails, ///< there is an application, but it does not open the URL
        None   ///< no application knows the scheme
    };

    /// Answers for a scheme in place of the desktop.
    void setHandler(std::string_view scheme, Handler handler);

    /// Hands a URL to the desktop. \returns whether an application took it
    using Desktop = std::function<bool(const std::string& url)>;

    /// Asked for the schemes that no handler is set for; empty for nobody, and then there is no application.
    void setDesktop(Desktop desktop) { desktop_ = std::move(desktop); }

    /// Whether there is an application for the URL's scheme.
    [[nodiscard]] bool canOpen(std::string_view url) const;

    /// \returns whether an application opened the URL
    bool open(const std::string& url);

    /// The URLs opened since the last call, in order.
    [[nodiscard]] std::vector<std::string> take();

private:
    [[nodiscard]] const Handler* handlerOf(std::string_view url) const;
    [[nodiscard]] bool handOver(const std::string& url) const;

    std::map<std::string, Handler, std::less<>> handlers_; ///< by scheme in lower case
    Desktop desktop_;
    std::vector<std::string> opened_;
};

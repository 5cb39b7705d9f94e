#pragma once

#include <functional>
#include <optional>
#include <string>

/// Where the device's services hand in that an application is to be ended. Owned by the device. Main
/// thread only.
class ApplicationTermination {
public:
    struct Request {
        std::string identifier; ///< of the application's bundle
        int reason = 0;
        bool report = false; ///< whether to write a crash report
        std::optional<std::string> description = std::nullopt;

        bool operator==(const Request&) const = default;
    };

    using Handler = std::function<void(const Request&)>;

    /// Who ends applications; empty for nobody.
    void setHandler(Handler handler) { handler_ = std::move(handler); }

    /// Passes a request on. Without a handler nothing happens.
    void request(const Request& request) const;

private:
    Handler handler_;
};

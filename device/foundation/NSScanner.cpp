#include "Foundation/NSScanner.h"

#include "FrameworkClass.h"

namespace {

class SystemScanner final : public NSScanner {
public:
    [[nodiscard]] std::optional<std::uint32_t> scanHexInt() override {
        std::uint32_t value = 0;
        const bool isRead = send<"-[NSScanner scanHexInt:]", bool>(*this, &value);
        return isRead ? std::optional(value) : std::nullopt;
    }
};

const FrameworkClassOf<SystemScanner> frameworkClass("NSScanner");

} // namespace

Ref<NSScanner> NSScanner::scannerWithString(std::string_view text) {
    const AutoreleasePool pool;
    return sendToClass<"+[NSScanner scannerWithString:]", Ref<NSScanner>>(text);
}

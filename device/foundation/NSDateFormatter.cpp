#include "Foundation/NSDateFormatter.h"

#include "FrameworkClass.h"

namespace {

class SystemDateFormatter final : public NSDateFormatter {
public:
    void setDateFormat(std::string_view pattern) override {
        const AutoreleasePool pool;
        send<"-[NSDateFormatter setDateFormat:]", void>(*this, pattern);
    }

    void setDateStyle(NSDateFormatterStyle style) override {
        send<"-[NSDateFormatter setDateStyle:]", void>(*this, style);
    }

    void setTimeStyle(NSDateFormatterStyle style) override {
        send<"-[NSDateFormatter setTimeStyle:]", void>(*this, style);
    }

    [[nodiscard]] std::string stringFromDate(NSDate date) const override {
        const AutoreleasePool pool;
        return send<"-[NSDateFormatter stringFromDate:]", std::string>(*this, PropertyList(date));
    }
};

const FrameworkClassOf<SystemDateFormatter> frameworkClass("NSDateFormatter");

} // namespace

Ref<NSDateFormatter> NSDateFormatter::dateFormatter() {
    return makeObject<"-[NSDateFormatter init]", NSDateFormatter>();
}

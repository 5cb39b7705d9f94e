#include "alerts/DesktopAlertAction.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIAlertAction>("UIAlertAction");

} // namespace

Ref<UIAlertAction> UIAlertAction::actionWithTitle(std::string_view title, UIAlertActionStyle style,
                                                  Handler handler) {
    return make<DesktopAlertAction>(std::string(title), style, std::move(handler));
}

void DesktopAlertAction::perform() {
    const auto kept = retain(this);
    if (handler_)
        handler_(*this);
}

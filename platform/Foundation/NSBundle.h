#pragma once

#include "ObjectiveC/NSObject.h"

#include <optional>
#include <string>
#include <string_view>

/// A folder of code and resources on the device.
class NSBundle : public NSObject {
public:
    /// The bundle of the running application.
    [[nodiscard]] static Ref<NSBundle> mainBundle();

    /// The bundle whose code states the class; the main bundle when none is known to.
    [[nodiscard]] static Ref<NSBundle> bundleForClass(const Class& stated);

    /// Looks a text up in a string table, in the first of the user's languages that the bundle has.
    /// \param value the answer when the table or the key is missing; the key itself when this is absent or ""
    /// \param table the table's name; "Localizable" when it is absent or ""
    [[nodiscard]] virtual std::string localizedStringForKey(std::string_view key,
                                                            std::optional<std::string> value,
                                                            std::optional<std::string> table) const = 0;
};

#pragma once

#include "Foundation/NSUserDefaults.h"

/// The settings as the operations of several pages need them, all on the suite that `open` gives.
class PreferenceStore {
public:
    PreferenceStore() = delete;

    /// The suite of the extension's settings.
    [[nodiscard]] static Ref<NSUserDefaults> open();

    /// The keys of the catalogue that have a value, with it. Other keys are left out.
    [[nodiscard]] static PropertyList::Dictionary catalogueValues(const NSUserDefaults& preferences);

    /// Empties the domain, then stores every key of `values`, whether or not it is in the catalogue.
    static void replaceAll(NSUserDefaults& preferences, const PropertyList::Dictionary& values);

    /// Removes every key that the domain holds, whether or not it is in the catalogue.
    static void removeAll(NSUserDefaults& preferences);
};

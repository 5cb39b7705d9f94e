#pragma once

#include "PaneEntry.h"
#include "PreferenceBundle.h"

#include <expected>
#include <functional>
#include <map>
#include <string>

/// Makes the pages that entries lead to, and keeps the bundles that it has loaded for that, as a process
/// does: until its end. Made by the shell, which ends it after all pages.
class PaneLoader {
public:
    /// A new page of the entry's pane, titled by the entry.
    /// \returns or why there is none, as sentences for the user
    [[nodiscard]] std::expected<Ref<UIViewController>, std::string> makePage(const PaneEntry& entry);

    /// Unloads the bundles, as the end of the process does that they were loaded into. One that has left
    /// objects behind stays, and is logged.
    void unloadBundles();

private:
    [[nodiscard]] std::expected<Ref<UIViewController>, std::string> makeBundlePage(const PaneEntry& entry);

    std::map<std::string, PreferenceBundle, std::less<>> bundles_; ///< by name
};

#pragma once

#include "BundleCode.h"
#include "DesktopBundle.h"
#include "ObjectiveC/Class.h"
#include "UIKit/UIViewController.h"

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>

/// A preference bundle of the current device whose code is loaded: its classes are in the class table for as
/// long as the object lives, and know the bundle as their own. Made and owned by the Settings application,
/// which lets go of it after everything that the code has made.
class PreferenceBundle {
public:
    static constexpr std::string_view folder = "/var/jb/Library/PreferenceBundles";

    /// Where the bundle of that name is.
    [[nodiscard]] static std::string pathOf(std::string_view name);

    /// Loads the bundle of that name.
    /// \returns or why that cannot be done, as sentences for the user
    [[nodiscard]] static std::expected<PreferenceBundle, std::string> load(std::string_view name);

    PreferenceBundle(PreferenceBundle&& other) noexcept = default;
    PreferenceBundle& operator=(PreferenceBundle&& other) = delete;
    ~PreferenceBundle();

    [[nodiscard]] const Ref<DesktopBundle>& bundle() const { return bundle_; }

    /// How many objects of its classes are alive; while there are any, its code must stay.
    [[nodiscard]] std::size_t liveObjects() const;

    /// A new page.
    /// \param className of a class of pages; "" for the class that the bundle itself names
    /// \returns or why there is none, as a sentence
    [[nodiscard]] std::expected<Ref<UIViewController>, std::string>
    makePage(const std::string& className = "") const;

private:
    PreferenceBundle(Ref<DesktopBundle> bundle, BundleCode code, std::string principalClass);

    Ref<DesktopBundle> bundle_; ///< empty once moved from
    BundleCode code_;
    std::string principalClass_; ///< its name
};

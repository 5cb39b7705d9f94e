#pragma once

#include "DesktopBundle.h"
#include "ObjectiveC/Class.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Which bundle each class that a bundle's code states came from. Whoever loads bundles fills it; pages find
/// their resources through it. Main thread only.
class LoadedBundles {
public:
    /// The process's registry.
    [[nodiscard]] static LoadedBundles& shared();

    /// Runs `load`, and notes the classes that have come into the class table meanwhile as the bundle's own.
    /// Of bundles loaded within `load`, each keeps its own.
    void addClassesLoadedBy(const std::function<void()>& load, const Ref<DesktopBundle>& bundle);

    /// Notes one class as the bundle's own, in place of what was noted of it before.
    void addClass(const Class& added, const Ref<DesktopBundle>& bundle);

    /// Forgets the classes of the bundle at that path.
    void removeBundle(std::string_view path);

    /// The classes that are noted as the bundle's own.
    [[nodiscard]] std::vector<const Class*> classesOf(std::string_view path) const;

    /// The bundle of the class, or of the nearest class it derives from that has one; the main bundle when
    /// none has.
    [[nodiscard]] Ref<DesktopBundle> bundleOf(const Class& asked) const;

private:
    LoadedBundles() = default;

    std::map<std::string, Ref<DesktopBundle>, std::less<>> bundles_; ///< by the class's name
};

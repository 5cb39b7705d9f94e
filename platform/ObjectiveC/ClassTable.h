#pragma once

#include "ObjectiveC/Class.h"

#include <functional>
#include <map>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <vector>

/// Every class that loaded code states, found by runtime name, by C++ class or by instance. For the platforms
/// and their tools; the pane asks through `Class`, `NSObject` and `NSClassFromString`. Any thread.
class ClassTable {
public:
    [[nodiscard]] static ClassTable& shared();

    /// Takes a class in. \returns false, having changed nothing, when the name or the C++ class is taken
    [[nodiscard]] bool add(const Class& added);

    /// Forgets a class; one that was refused is not forgotten in the other's place.
    void remove(const Class& removed);

    /// Null when there is none.
    [[nodiscard]] const Class* named(std::string_view name) const;

    /// The class of that C++ class, by its mangled name. Null when there is none.
    [[nodiscard]] const Class* ofType(std::string_view type) const;

    /// The most derived class that the object is an instance of.
    [[nodiscard]] const Class& ofInstance(const NSObject& object) const;

    /// All classes, by name.
    [[nodiscard]] std::vector<const Class*> all() const;

private:
    using Index = std::map<std::string, const Class*, std::less<>>;

    ClassTable() = default;

    [[nodiscard]] const Class* findOfType(std::string_view type) const;
    [[nodiscard]] const Class& nearestTo(const NSObject& object) const;

    mutable std::shared_mutex mutex_;
    Index byName_;
    Index byType_;
    mutable Index nearest_; ///< what `nearestTo` found, by the mangled name of the instance's C++ class
};

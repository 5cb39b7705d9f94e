#pragma once

#include "ObjectiveC/Method.h"
#include "ObjectiveC/NSObject.h"

#include <concepts>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

/// One class of the class table: what a framework needs to create an object by name and to send it messages
/// by selector. On the device the table's classes are published as Objective-C classes.
///
/// A class is stated once, as a constant beside its definition, and is in the table for as long as that
/// constant lives: from the load of the code that holds it to its unload.
///
///     static const Class classObject = Class::define<cxRootListController, PSListController>(
///         "cxRootListController", {method<"switchChanged:", &cxRootListController::switchChanged>()});
///
/// The table may be read from any thread.
class Class {
public:
    /// \tparam T the class stated; \tparam Base the nearest of its bases that is in the table too
    /// \param name the runtime name. A name or a C++ class that the table already holds is refused: the
    /// refusal
    ///     is logged with the name, the earlier class stays, and this one is never found.
    /// \param methods the selectors that `T` adds to those of `Base`
    template <std::derived_from<NSObject> T, std::derived_from<NSObject> Base = NSObject>
        requires std::derived_from<T, Base>
    [[nodiscard]] static Class define(std::string_view name, std::initializer_list<Method> methods = {}) {
        return Class(name, typeid(T).name(), typeid(Base).name(), constructorOf<T>(), &isInstanceOf<T>,
                     methods);
    }

    ~Class();
    Class(const Class&) = delete;
    Class& operator=(const Class&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    /// Null for `NSObject`, and while the base's code is not loaded.
    [[nodiscard]] const Class* superclass() const;

    /// Whether this class is `other` or derives from it.
    [[nodiscard]] bool isSubclassOf(const Class& other) const;

    /// The method behind a selector, the class's own or the nearest inherited one; null when there is none.
    [[nodiscard]] const Method* instanceMethod(std::string_view selector) const;

    /// The selectors that the class itself adds.
    [[nodiscard]] std::span<const Method> methods() const { return methods_; }

    /// A new object that is still to be readied with one of its initialisers. Empty when the class cannot be
    /// made plainly.
    [[nodiscard]] Ref<NSObject> allocate() const;

    /// A new object, readied with `init`. Empty when `init` refused or when the class cannot be made plainly.
    [[nodiscard]] Ref<NSObject> create() const;

private:
    friend class ClassTable;

    using Constructor = NSObject* (*)();
    using InstanceTest = bool (*)(const NSObject&);

    Class(std::string_view name, const char* type, const char* baseType, Constructor construct,
          InstanceTest isInstance, std::initializer_list<Method> methods);

    template <class T>
    static constexpr Constructor constructorOf() {
        if constexpr (requires { new T; })
            return [] -> NSObject* { return new T; };
        else
            return nullptr;
    }

    template <class T>
    static bool isInstanceOf(const NSObject& object) {
        if constexpr (std::same_as<T, NSObject>)
            return true;
        else
            return dynamic_cast<const T*>(&object) != nullptr;
    }

    std::string name_;
    std::string type_;     ///< the C++ class, by its mangled name: it stays comparable across loaded code
    std::string baseType_; ///< likewise
    Constructor construct_;
    InstanceTest isInstance_;
    std::vector<Method> methods_;
};

/// The runtime name of the object's own class, whether or not the class table knows that one.
[[nodiscard]] std::string NSStringFromClass(const NSObject& instance);

/// The class of that name, or null when no loaded code defines one.
[[nodiscard]] const Class* NSClassFromString(std::string_view name);

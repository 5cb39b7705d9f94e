#pragma once

#include "ObjectiveC/MessageValue.h"
#include "ObjectiveC/Ref.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

class Class;

/// The platform's half of an object: on the desktop its counts, on the device the Objective-C object.
/// Each platform defines it.
struct ObjectPeer;

/// The root of every class of the platform. Objects are made by `make` or by their `Class`, owned by `Ref`s,
/// watched by `Weak`s, and destroyed with their last owner.
///
/// Creation has two steps, as on the platform: the constructor stands for `alloc` and cannot fail; `init`, or
/// another initialiser that a class declares, may refuse, and then nothing comes of it.
class NSObject {
public:
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;

    /// Readies a new object. An override calls its base first and gives up when that answers false.
    /// \returns false when there is to be no object
    [[nodiscard]] virtual bool init();

    /// What "%@" prints, such as "<cxRootListController: 0x55d0c8a7f2b0>".
    [[nodiscard]] virtual std::string description() const;

    /// The object's class: the most derived class of the class table that it is an instance of.
    [[nodiscard]] const Class& isa() const;

    /// Whether the object's class, or one it derives from, lists the selector.
    [[nodiscard]] bool respondsToSelector(std::string_view selector) const;

    /// Sends the message by its selector's text. Arguments beyond those that the selector takes are ignored;
    /// missing ones, and ones of another kind than the method's, arrive as null, false or 0.
    /// A selector that the object does not respond to is logged and answered with nothing.
    /// \returns the method's result; nothing (`std::monostate`) for a method without one
    MessageValue performSelector(std::string_view selector,
                                 std::initializer_list<MessageValue> arguments = {});

protected:
    NSObject();
    /// Weak references read null before the most derived destructor runs; attached values are released after
    /// the last one has. An object that is retained while its end goes on is not saved by it.
    virtual ~NSObject();

private:
    friend struct ObjectPeer;

    ObjectPeer* const peer_;
};

/// Makes a `T`: constructs it with the arguments and initialises it with `init`.
/// \returns an empty Ref when `init` refused
template <std::derived_from<NSObject> T, class... Arguments>
[[nodiscard]] Ref<T> make(Arguments&&... arguments) {
    auto object = adopt(new T(std::forward<Arguments>(arguments)...));
    return object->init() ? object : nullptr;
}

/// Makes a `T` and initialises it with another initialiser than `init`:
/// `makeWith<UILabel>(&UILabel::initWithFrame, frame)`.
/// \returns an empty Ref when the initialiser refused
template <std::derived_from<NSObject> T, class Base, class... Parameters, class... Arguments>
    requires std::derived_from<T, Base>
[[nodiscard]] Ref<T> makeWith(bool (Base::*initialiser)(Parameters...), Arguments&&... arguments) {
    auto object = adopt(new T);
    return ((*object).*initialiser)(std::forward<Arguments>(arguments)...) ? object : nullptr;
}

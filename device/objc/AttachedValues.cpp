#include "ObjectiveC/AttachedValues.h"

#include "Box.h"
#include "Foundation/NSLog.h"
#include "Message.h"
#include "ObjectPeer.h"

#include <mutex>
#include <set>

namespace {

/// A block of the contract, which objects of other makes are not to call.
struct AttachedBlock final : BoxContent {
    explicit AttachedBlock(std::function<void()> held) : block(std::move(held)) {}

    const std::function<void()> block;
};

/// Guards the keys.
std::mutex& mutex() {
    static auto* const shared = new std::mutex;
    return *shared;
}

/// The address that stands for a key, the same for as long as the process lives.
const void* addressOf(std::string_view key) {
    static auto* const keys = new std::set<std::string, std::less<>>;
    const std::scoped_lock lock(mutex());
    auto found = keys->find(key);
    if (found == keys->end())
        found = keys->emplace(key).first;
    return &*found;
}

/// Notes that something is attached under the key. \returns what to associate it with
id noteKey(const NSObject& owner, const void* key) {
    auto& peer = ObjectPeer::of(owner);
    const std::scoped_lock lock(mutex());
    if (peer.keeper == nullptr)
        peer.keeper = send<"+[NSObject new]", id>(classObject(objc_getClass("NSObject")));
    peer.attachedKeys.insert(key);
    return peer.keeper;
}

id associated(const NSObject& owner, const void* key) {
    const auto& peer = ObjectPeer::of(owner);
    const std::scoped_lock lock(mutex());
    return peer.attachedKeys.contains(key) ? objc_getAssociatedObject(peer.keeper, key) : nullptr;
}

id objectFor(std::monostate /*nothing*/) {
    return nullptr;
}

id objectFor(const Ref<NSObject>& object) {
    return objectOf(object.get());
}

id objectFor(const std::string& text) {
    return textObject(text);
}

id objectFor(const std::function<void()>& block) {
    return objc_autorelease(makeBox(std::make_unique<AttachedBlock>(block)));
}

} // namespace

void ObjectPeer::releaseAttachedValues() {
    const AutoreleasePool pool;
    // A value that looks back at its owner finds what is left, and may attach more.
    while (!attachedKeys.empty())
        objc_setAssociatedObject(keeper, attachedKeys.extract(attachedKeys.begin()).value(), nullptr, 0);
    objc_release(keeper);
}

void setAttachedValue(NSObject& owner, std::string_view key, AttachedValue value, Retention retention) {
    if (std::holds_alternative<Ref<NSObject>>(value) && retention == Retention::CopyNonatomic) {
        NSLog("An object cannot be copied: nothing is attached under %@", key);
        return;
    }
    const AutoreleasePool pool;
    const id object = std::visit([](const auto& held) { return objectFor(held); }, value);
    const auto* const address = addressOf(key);
    objc_setAssociatedObject(noteKey(owner, address), address, object,
                             static_cast<std::uintptr_t>(retention));
}

AttachedValue attachedValue(const NSObject& owner, std::string_view key) {
    const AutoreleasePool pool;
    const id object = associated(owner, addressOf(key));
    if (object == nullptr)
        return {};
    if (isText(object))
        return textOf(object);
    if (const auto* const attached = dynamic_cast<AttachedBlock*>(boxContent(object)))
        return attached->block;
    return instanceAs<NSObject>(object);
}

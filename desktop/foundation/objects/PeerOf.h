#pragma once

#include <concepts>

/// The desktop's half of an object, by the half's own class: `peerOf<UILabelPeer>(label)`.
/// \pre the object was made with a peer of that class, as all objects of `Peer::Object` are
template <class Peer, class Object>
    requires std::derived_from<Object, typename Peer::Object> ||
             std::derived_from<typename Peer::Object, Object>
[[nodiscard]] Peer& peerOf(const Object& object) {
    return dynamic_cast<Peer&>(object.peer());
}

/// The same where an object's half may or may not be of that class, or keep that interface; null when not.
template <class Peer, class Object>
[[nodiscard]] Peer* peerIf(const Object& object) {
    return dynamic_cast<Peer*>(&object.peer());
}

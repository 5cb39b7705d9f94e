#pragma once

#include "Entry.h"

#include <functional>
#include <memory>
#include <utility>

/// A block around a function, for as long as the call that takes it goes on; who wants it longer copies it,
/// as blocks are. The function ends with the last copy.
template <class Signature>
class Block;

template <class R, class... P>
class Block<R(P...)> {
public:
    /// \param function an empty one makes no block
    explicit Block(std::function<R(P...)> function) {
        if (!function)
            return;
        // Shared, since copying a block would copy the function, and functions may have a state of their own.
        const auto shared = std::make_shared<std::function<R(P...)>>(std::move(function));
        const auto block = ^(RawParameter<P>... arguments) {
          return callFromOutside<R, P...>(*shared, arguments...);
        };
        block_ = static_cast<BlockRef>(_Block_copy(reinterpret_cast<const void*>(block)));
    }

    ~Block() {
        if (block_ != nullptr)
            _Block_release(block_);
    }

    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    /// Null when there is no block.
    operator BlockRef() const { return block_; }

private:
    BlockRef block_ = nullptr;
};

template <class R, class... P>
struct Bridge<std::function<R(P...)>> {
    static Block<R(P...)> toRaw(const std::function<R(P...)>& function) { return Block<R(P...)>(function); }
};

template <class R, class... P>
struct RawType<std::function<R(P...)>> {
    using Type = BlockRef;
};

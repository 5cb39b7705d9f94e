#pragma once

#include "FontStyle.h"
#include "TextLines.h"

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

/// The lines of the last texts, since most texts are measured more than once before they are painted. One for
/// the process; used by the thread of the application alone.
class KnownTexts {
public:
    /// Texts that are kept, the last used ones.
    static constexpr std::size_t capacity = 256;

    [[nodiscard]] static KnownTexts& shared();

    /// The lines of a text in a room, never null: made, or those of the same text before, also in another
    /// room where that makes no difference.
    [[nodiscard]] std::shared_ptr<const TextLines> lines(std::string_view text, const FontStyle& style,
                                                         const TextLines::Room& room);

    /// Has the letters of one face shaped, which loads it, unless those of all faces have been. \returns
    /// whether there was one
    bool prepare();

    /// How often lines had to be made.
    [[nodiscard]] std::size_t madeCount() const { return madeCount_; }

private:
    struct Key {
        std::string text;
        FontStyle style;
        TextLines::Room room;

        bool operator==(const Key&) const = default;
    };

    struct Hash {
        std::size_t operator()(const Key& key) const;
    };

    struct Known {
        Key key;
        std::shared_ptr<const TextLines> lines;
    };

    KnownTexts() = default;

    /// Null when there are none.
    [[nodiscard]] std::shared_ptr<const TextLines> find(const Key& key);
    void keep(Key key, std::shared_ptr<const TextLines> lines);
    void clear();

    std::list<Known> known_; ///< the last used first
    std::unordered_map<Key, std::list<Known>::iterator, Hash> places_;
    std::size_t madeCount_ = 0;
    std::size_t preparedFaces_ = 0;
};

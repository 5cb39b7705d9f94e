#include "KnownTexts.h"

#include "FontFaces.h"

#include <QCoreApplication>
#include <functional>
#include <utility>

KnownTexts& KnownTexts::shared() {
    static KnownTexts texts;
    return texts;
}

/// What was not cut off is as it would be with any number of lines, and a text that needs no breaking as it
/// would be in any width, and is known as such.
std::shared_ptr<const TextLines> KnownTexts::lines(std::string_view text, const FontStyle& style,
                                                   const TextLines::Room& room) {
    Key key{.text = std::string(text), .style = style, .room = room};
    if (auto known = find(key))
        return known;
    for (const auto width : {room.width, TextLines::Room().width}) {
        key.room = {.width = width};
        if (auto known = find(key); known && known->suit(room))
            return known;
    }
    ++madeCount_;
    auto made = std::make_shared<const TextLines>(text, style, room);
    key.room = made->isTruncated() ? room : TextLines::Room{.width = room.width};
    keep(std::move(key), made);
    return made;
}

bool KnownTexts::prepare() {
    constexpr auto letters = "abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789 .,:;!?";
    const auto styles = FontFaces::styles();
    if (preparedFaces_ == styles.size())
        return false;
    static_cast<void>(lines(letters, styles[preparedFaces_++], {}));
    return true;
}

std::shared_ptr<const TextLines> KnownTexts::find(const Key& key) {
    const auto place = places_.find(key);
    if (place == places_.end())
        return nullptr;
    known_.splice(known_.begin(), known_, place->second);
    return place->second->lines;
}

void KnownTexts::keep(Key key, std::shared_ptr<const TextLines> lines) {
    if (known_.empty()) // fonts end with the application
        qAddPostRoutine([] { shared().clear(); });
    known_.push_front({key, std::move(lines)});
    places_.insert_or_assign(std::move(key), known_.begin());
    if (known_.size() > capacity) {
        places_.erase(known_.back().key);
        known_.pop_back();
    }
}

void KnownTexts::clear() {
    places_.clear();
    known_.clear();
    preparedFaces_ = 0;
}

std::size_t KnownTexts::Hash::operator()(const Key& key) const {
    constexpr std::size_t factor = 31;
    auto hash = std::hash<std::string>()(key.text);
    for (const auto part : {std::hash<double>()(key.style.size), std::hash<double>()(key.room.width),
                            static_cast<std::size_t>(key.style.weight), key.room.lines})
        hash = hash * factor + part;
    return hash;
}

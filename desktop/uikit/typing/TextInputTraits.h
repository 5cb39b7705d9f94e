#pragma once

/// What a text that is edited asks of the keyboard, and whether it may be read on the screen.
struct TextInputTraits {
    /// The keys that are shown first.
    enum class Keys { Letters, Numbers };

    /// Which letters the on-screen keyboard writes large by itself.
    enum class Capitals { None, Words, Sentences, All };

    Keys keys = Keys::Letters;
    Capitals capitals = Capitals::Sentences;
    bool secure = false; ///< shown as bullets, and never copied

    friend bool operator==(const TextInputTraits&, const TextInputTraits&) = default;
};

#include "System/UTF8Locale.h"

#include <array>
#include <locale> // for the C library's header of locales as objects, which is called differently

namespace {

/// The names of locales of UTF-8, of which systems have one or the other.
constexpr std::array names = {"UTF-8", "C.UTF-8", "en_US.UTF-8"};

/// Null when the system has none.
locale_t makeLocale() {
    for (const auto* const name : names) {
        if (auto* const made = newlocale(LC_CTYPE_MASK, name, nullptr))
            return made;
    }
    return nullptr;
}

} // namespace

struct UTF8Locale::State {
    State() : made(makeLocale()), previous(uselocale(made)) {}

    ~State() {
        uselocale(previous);
        if (made != nullptr)
            freelocale(made);
    }

    State(const State&) = delete;
    State& operator=(const State&) = delete;

    const locale_t made;
    const locale_t previous;
};

UTF8Locale::UTF8Locale() : state_(std::make_unique<State>()) {}

UTF8Locale::~UTF8Locale() = default;

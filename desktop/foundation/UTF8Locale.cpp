#include "System/UTF8Locale.h"

#include <clocale>

struct UTF8Locale::State {
    State() : made(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)), previous(uselocale(made)) {}

    ~State() {
        uselocale(previous);
        if (made != nullptr)
            freelocale(made);
    }

    State(const State&) = delete;
    State& operator=(const State&) = delete;

    const locale_t made; ///< null when the host has none
    const locale_t previous;
};

UTF8Locale::UTF8Locale() : state_(std::make_unique<State>()) {}

UTF8Locale::~UTF8Locale() = default;

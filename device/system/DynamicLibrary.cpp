#include "System/DynamicLibrary.h"

#include <dlfcn.h>

#include <utility>

struct DynamicLibrary::State {
    explicit State(void* opened) : handle(opened) {}

    ~State() { dlclose(handle); }

    State(const State&) = delete;
    State& operator=(const State&) = delete;

    void* const handle;
};

static_assert(std::to_underlying(DynamicLibrary::Binding::Lazy) == RTLD_LAZY);
static_assert(std::to_underlying(DynamicLibrary::Binding::Immediate) == RTLD_NOW);

// The loader itself knows "@rpath/": it means where the bundle says that its libraries are.
std::optional<DynamicLibrary> DynamicLibrary::open(std::string_view path, Binding binding) {
    auto* const handle = dlopen(std::string(path).c_str(), std::to_underlying(binding));
    return handle != nullptr ? std::optional(DynamicLibrary(std::make_unique<State>(handle))) : std::nullopt;
}

DynamicLibrary::DynamicLibrary(std::unique_ptr<State> state) : state_(std::move(state)) {}

DynamicLibrary::DynamicLibrary(DynamicLibrary&& other) noexcept = default;
DynamicLibrary::~DynamicLibrary() = default;

void* DynamicLibrary::symbol(const std::string& name) const {
    return state_ ? dlsym(state_->handle, name.c_str()) : nullptr;
}

void DynamicLibrary::close() {
    state_.reset();
}

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// A dynamic library opened at run time. Closed by `close` or at the end of the object; the library's code
/// stays loaded while anybody else has it open.
class DynamicLibrary {
public:
    /// When the library's own references are bound. The numbers are the dynamic loader's.
    enum class Binding : int { Lazy = 1, Immediate = 2 };

    /// Opens a library by device path, or by "@rpath/" and a name that is looked for where the pane's bundle
    /// says its libraries are. Nothing when there is none, or when it cannot be loaded.
    [[nodiscard]] static std::optional<DynamicLibrary> open(std::string_view path, Binding binding);

    DynamicLibrary(DynamicLibrary&& other) noexcept;
    ~DynamicLibrary();

    /// The address of an exported symbol; null when the library has none of that name, or is closed.
    [[nodiscard]] void* symbol(const std::string& name) const;

    /// The same as a pointer to a function of type `Function`.
    template <class Function>
    [[nodiscard]] Function* function(const std::string& name) const {
        return reinterpret_cast<Function*>(symbol(name));
    }

    void close();

private:
    struct State;

    explicit DynamicLibrary(std::unique_ptr<State> state);

    std::unique_ptr<State> state_;
};

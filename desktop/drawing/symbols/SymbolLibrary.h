#pragma once

#include "symbols/SymbolFont.h"
#include "symbols/SymbolOutline.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The symbols that the platform draws by name ("checkmark.circle.fill"), from a font that the program
/// carries. Needs a QGuiApplication; for its thread. Is not moved.
class SymbolLibrary {
public:
    SymbolLibrary() = default;
    SymbolLibrary(const SymbolLibrary&) = delete;
    SymbolLibrary& operator=(const SymbolLibrary&) = delete;
    ~SymbolLibrary() = default;

    /// The process's library, made at first use.
    [[nodiscard]] static SymbolLibrary& shared();

    /// \returns nothing for a name that no symbol has
    [[nodiscard]] std::optional<SymbolOutline> symbol(std::string_view name);

    /// Makes one of the symbols that take long, unless all are made: those that are put together of others,
    /// and heavier ones that pages have in their bars and rows. \returns whether there was one
    bool prepare();

private:
    [[nodiscard]] std::optional<SymbolOutline> make(std::string_view name) const;

    SymbolFont font_;
    std::map<std::string, std::optional<SymbolOutline>, std::less<>> known_;
};

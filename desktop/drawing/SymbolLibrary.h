#pragma once

#include "SymbolFont.h"
#include "SymbolOutline.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The symbols that the platform draws by name ("checkmark.circle.fill"), from a font that the program
/// carries. Needs a QGuiApplication; for its thread.
class SymbolLibrary {
public:
    /// The process's library, made at first use.
    [[nodiscard]] static SymbolLibrary& shared();

    /// \returns nothing for a name that no symbol has
    [[nodiscard]] std::optional<SymbolOutline> symbol(std::string_view name);

private:
    SymbolLibrary() = default;

    [[nodiscard]] std::optional<SymbolOutline> make(std::string_view name) const;

    SymbolFont font_;
    std::map<std::string, std::optional<SymbolOutline>, std::less<>> known_;
};

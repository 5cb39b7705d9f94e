#pragma once

#include <optional>
#include <string_view>

/// What a row is. The numbers are the platform's.
enum class SpecifierKind : int {
    Unknown = -1,
    Group = 0,
    Link = 1,
    LinkList = 2,
    ListItem = 3,
    TitleValue = 4,
    Slider = 5,
    Switch = 6,
    StaticText = 7,
    EditText = 8,
    Segment = 9,
    GiantIcon = 10,
    Giant = 11,
    SecureEditText = 12,
    Button = 13,
    EditTextView = 14,
    Spinner = 15,
};

/// The kind that lists call by that name ("PSSwitchCell"); `Unknown` when there is none.
[[nodiscard]] SpecifierKind specifierKindNamed(std::string_view name);

/// The name that lists call the kind by; empty for `Unknown`.
[[nodiscard]] std::string_view nameOf(SpecifierKind kind);

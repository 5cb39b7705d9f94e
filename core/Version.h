#pragma once

/// The version of Corvex that this pane belongs to, as its owner reads it.
inline constexpr auto corvexVersion = "3.0.1";

#pragma once

#include "ColorComponents.h"

/// What the platform's palette calls its colours, and the materials of its bars and panels.
enum class SystemColor {
    Red,
    Orange,
    Yellow,
    Green,
    Mint,
    Teal,
    Cyan,
    Blue,
    Indigo,
    Purple,
    Pink,
    Brown,
    Gray,
    Gray2,
    Gray3,
    Gray4,
    Gray5,
    Gray6,
    Label,
    SecondaryLabel,
    TertiaryLabel,
    QuaternaryLabel,
    PlaceholderText,
    Link,
    Background,
    SecondaryBackground,
    TertiaryBackground,
    GroupedBackground,
    SecondaryGroupedBackground,
    TertiaryGroupedBackground,
    Separator,
    OpaqueSeparator,
    Fill,
    SecondaryFill,
    TertiaryFill,
    QuaternaryFill,
    BarBackground, ///< over what is blurred behind the bar
    BarHairline,
    ModalDimming,         ///< over what an alert or a sheet covers
    AlertPanel,           ///< over what is blurred behind the alert
    MenuPanel,            ///< over what is blurred behind the menu; stands out from a black page
    AlertPressedButton,   ///< opaque
    RegularMaterial,      ///< over what is blurred behind a part of a page
    ThickMaterial,        ///< over what is blurred behind a whole page
    ActionSheetPanel,     ///< over what is blurred behind the sheet
    ActionSheetCancelCard ///< opaque
};

/// Elevated is the dark appearance inside sheets and popovers, whose backgrounds are one step lighter.
enum class Appearance { Light, Dark, DarkElevated };

/// The colour that a role has in an appearance.
[[nodiscard]] ColorComponents systemColor(SystemColor role, Appearance appearance);

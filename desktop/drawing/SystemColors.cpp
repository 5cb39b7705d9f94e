#include "SystemColors.h"

#include <array>
#include <cstddef>

namespace {

constexpr double greatest = 255; ///< of the components in the table below

constexpr ColorComponents rgb(double red, double green, double blue, double alpha = 1) {
    return {red / greatest, green / greatest, blue / greatest, alpha};
}

constexpr ColorComponents gray(double white, double alpha = 1) {
    return rgb(white, white, white, alpha);
}

struct Row {
    constexpr Row(SystemColor colorRole, ColorComponents lightColor, ColorComponents darkColor)
        : Row(colorRole, lightColor, darkColor, darkColor) {}

    constexpr Row(SystemColor colorRole, ColorComponents lightColor, ColorComponents darkColor,
                  ColorComponents elevatedColor)
        : role(colorRole),
          light(lightColor),
          dark(darkColor),
          darkElevated(elevatedColor) {}

    SystemColor role;
    ColorComponents light;
    ColorComponents dark;
    ColorComponents darkElevated;
};

constexpr std::array rows{
    Row{SystemColor::Red, rgb(255, 59, 48), rgb(255, 69, 58)},
    Row{SystemColor::Orange, rgb(255, 149, 0), rgb(255, 159, 10)},
    Row{SystemColor::Yellow, rgb(255, 204, 0), rgb(255, 214, 10)},
    Row{SystemColor::Green, rgb(52, 199, 89), rgb(48, 209, 88)},
    Row{SystemColor::Mint, rgb(0, 199, 190), rgb(99, 230, 226)},
    Row{SystemColor::Teal, rgb(48, 176, 199), rgb(64, 200, 224)},
    Row{SystemColor::Cyan, rgb(50, 173, 230), rgb(100, 210, 255)},
    Row{SystemColor::Blue, rgb(0, 122, 255), rgb(10, 132, 255)},
    Row{SystemColor::Indigo, rgb(88, 86, 214), rgb(94, 92, 230)},
    Row{SystemColor::Purple, rgb(175, 82, 222), rgb(191, 90, 242)},
    Row{SystemColor::Pink, rgb(255, 45, 85), rgb(255, 55, 95)},
    Row{SystemColor::Brown, rgb(162, 132, 94), rgb(172, 142, 104)},
    Row{SystemColor::Gray, rgb(142, 142, 147), rgb(142, 142, 147)},
    Row{SystemColor::Gray2, rgb(174, 174, 178), rgb(99, 99, 102)},
    Row{SystemColor::Gray3, rgb(199, 199, 204), rgb(72, 72, 74)},
    Row{SystemColor::Gray4, rgb(209, 209, 214), rgb(58, 58, 60)},
    Row{SystemColor::Gray5, rgb(229, 229, 234), rgb(44, 44, 46)},
    Row{SystemColor::Gray6, rgb(242, 242, 247), rgb(28, 28, 30)},
    Row{SystemColor::Label, gray(0), gray(255)},
    Row{SystemColor::SecondaryLabel, rgb(60, 60, 67, 0.6), rgb(235, 235, 245, 0.6)},
    Row{SystemColor::TertiaryLabel, rgb(60, 60, 67, 0.3), rgb(235, 235, 245, 0.3)},
    Row{SystemColor::QuaternaryLabel, rgb(60, 60, 67, 0.18), rgb(235, 235, 245, 0.16)},
    Row{SystemColor::PlaceholderText, rgb(60, 60, 67, 0.3), rgb(235, 235, 245, 0.3)},
    Row{SystemColor::Link, rgb(0, 122, 255), rgb(9, 132, 255)},
    Row{SystemColor::Background, gray(255), gray(0), rgb(28, 28, 30)},
    Row{SystemColor::SecondaryBackground, rgb(242, 242, 247), rgb(28, 28, 30), rgb(44, 44, 46)},
    Row{SystemColor::TertiaryBackground, gray(255), rgb(44, 44, 46), rgb(58, 58, 60)},
    Row{SystemColor::GroupedBackground, rgb(242, 242, 247), gray(0), rgb(28, 28, 30)},
    Row{SystemColor::SecondaryGroupedBackground, gray(255), rgb(28, 28, 30), rgb(44, 44, 46)},
    Row{SystemColor::TertiaryGroupedBackground, rgb(242, 242, 247), rgb(44, 44, 46), rgb(58, 58, 60)},
    Row{SystemColor::Separator, rgb(60, 60, 67, 0.29), rgb(84, 84, 88, 0.6)},
    Row{SystemColor::OpaqueSeparator, rgb(198, 198, 200), rgb(56, 56, 58)},
    Row{SystemColor::Fill, rgb(120, 120, 128, 0.2), rgb(120, 120, 128, 0.36)},
    Row{SystemColor::SecondaryFill, rgb(120, 120, 128, 0.16), rgb(120, 120, 128, 0.32)},
    Row{SystemColor::TertiaryFill, rgb(118, 118, 128, 0.12), rgb(118, 118, 128, 0.24)},
    Row{SystemColor::QuaternaryFill, rgb(116, 116, 128, 0.08), rgb(118, 118, 128, 0.18)},
    Row{SystemColor::BarBackground, gray(249, 0.94), gray(29, 0.94)},
    Row{SystemColor::BarHairline, gray(0, 0.3), gray(255, 0.15)},
    Row{SystemColor::ModalDimming, gray(0, 0.2), gray(0, 0.48)},
    Row{SystemColor::AlertPanel, gray(242, 0.8), gray(30, 0.75)},
    Row{SystemColor::MenuPanel, gray(252, 0.85), gray(44, 0.85)},
    Row{SystemColor::AlertPressedButton, gray(225), gray(46)},
    Row{SystemColor::RegularMaterial, gray(255, 0.3), gray(28, 0.73)},
    Row{SystemColor::ThickMaterial, gray(249, 0.78), gray(37, 0.82)},
    Row{SystemColor::ActionSheetPanel, gray(252, 0.78), gray(41, 0.75)},
    Row{SystemColor::ActionSheetCancelCard, gray(255), gray(44)},
};

constexpr auto indexOf(SystemColor role) {
    return static_cast<std::size_t>(role);
}

constexpr bool isInOrderOfRoles() {
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (indexOf(rows[index].role) != index)
            return false;
    }
    return rows.size() == indexOf(SystemColor::ActionSheetCancelCard) + 1;
}

static_assert(isInOrderOfRoles());

} // namespace

ColorComponents systemColor(SystemColor role, Appearance appearance) {
    const auto& row = rows[indexOf(role)];
    switch (appearance) {
    case Appearance::Light:
        return row.light;
    case Appearance::Dark:
        return row.dark;
    case Appearance::DarkElevated:
        return row.darkElevated;
    }
    return row.light;
}

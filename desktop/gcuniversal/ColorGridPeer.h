#pragma once

#include "ColorComponents.h"
#include "ColorGrid.h"
#include "controls/Adjustable.h"
#include "controls/UIControlPeer.h"

#include <optional>

/// The desktop's half of a field of colours: which one is chosen, and the finger on them. Made with the grid.
class ColorGridPeer final : public UIControlPeer, public Adjustable {
public:
    using Object = ColorGrid;

    static constexpr int columns = 12;
    static constexpr int lines = 10;

    /// Opaque.
    [[nodiscard]] static ColorComponents colorAt(int column, int line);

    /// The chosen one; nothing when none is.
    [[nodiscard]] std::optional<ColorComponents> color() const;

    /// Chooses that colour if it is one of the grid's, else none; its opacity does not matter. Sends no
    /// action.
    void setColor(const ColorComponents& color);

    // UIViewPeer:
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchMoved(DesktopTouch& touch, UIEvent& event) override;
    [[nodiscard]] Accessibility accessibility() const override;
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;

    // Adjustable:
    void adjust(bool up) override;

private:
    void chooseUnder(const DesktopTouch& touch);
    void choose(int place);

    std::optional<int> chosen_; ///< counted line by line
};

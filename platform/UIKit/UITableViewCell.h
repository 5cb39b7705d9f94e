#pragma once

#include "UIKit/UIView.h"

#include <memory>
#include <optional>
#include <string>

/// How a cell shows its texts. The numbers are the platform's.
enum class UITableViewCellStyle : int {
    Default = 0,
    Value1 = 1,  ///< the detail at the right edge
    Subtitle = 3 ///< the detail below the title
};

/// Shows one row of a table, which owns it and uses it again for other rows.
class UITableViewCell : public UIView {
public:
    UITableViewCell();

    /// \param reuseIdentifier what cells that can stand in for each other share
    [[nodiscard]] virtual bool initWithStyle(UITableViewCellStyle style,
                                             const std::optional<std::string>& reuseIdentifier);

    /// Where further views of the row belong; as high as the cell, and as wide but for what stands at its
    /// right edge. The cell's own.
    [[nodiscard]] UIView& contentView() const;

protected:
    explicit UITableViewCell(std::unique_ptr<UIViewPeer> peer);
};

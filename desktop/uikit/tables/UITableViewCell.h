#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"

#include <string>

class UITableViewCellPeer;

/// How a cell shows its texts. The numbers are the platform's.
enum class UITableViewCellStyle : int {
    Default = 0,
    Value1 = 1,  ///< the detail at the right edge
    Subtitle = 3 ///< the detail below the title
};

/// What a cell shows at its right edge. The numbers are the platform's.
enum class UITableViewCellAccessoryType : int { None = 0, DisclosureIndicator = 1, Checkmark = 3 };

/// Shows one row of a table. Made by the table's content, which configures it; owned by the table, which uses
/// it again for other rows.
class UITableViewCell : public UIView {
public:
    UITableViewCell();

    /// The default style, and no identifier.
    [[nodiscard]] bool initWithFrame(const CGRect& frame) override;

    /// \param reuseIdentifier what cells that can stand in for each other share; empty for none
    [[nodiscard]] virtual bool initWithStyle(UITableViewCellStyle style, const std::string& reuseIdentifier);

    [[nodiscard]] const std::string& reuseIdentifier() const;

    /// Where further views of the row belong; as high as the cell, and as wide but for the accessory.
    [[nodiscard]] UIView& contentView() const;
    [[nodiscard]] UILabel& textLabel() const;
    /// Not shown in the default style.
    [[nodiscard]] UILabel& detailTextLabel() const;
    /// Takes no room without an image.
    [[nodiscard]] UIImageView& imageView() const;

    void setAccessoryType(UITableViewCellAccessoryType type);
    /// Shown in place of the accessory type; empty for none.
    void setAccessoryView(const Ref<UIView>& view);

    /// The cell is about to be used for another row.
    virtual void prepareForReuse();

protected:
    explicit UITableViewCell(std::unique_ptr<UITableViewCellPeer> peer);
};

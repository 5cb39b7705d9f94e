#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UITableViewCell.h"
#include "views/UIViewPeer.h"

#include <optional>
#include <string>

class UITableViewPeer;

/// What a cell shows at its right edge. The numbers are the platform's.
enum class UITableViewCellAccessoryType : int { None = 0, DisclosureIndicator = 1, Checkmark = 3 };

/// The desktop's half of a cell: its slice of the card with the separator, and the places of what it shows.
/// Made with the cell.
class UITableViewCellPeer : public UIViewPeer {
public:
    using Object = UITableViewCell;

    /// Between a text and what stands to its right.
    static constexpr double textGap = 8;

    /// Called once, by the cell's initialiser. Before that the style is the default one.
    void setUp(UITableViewCellStyle style, const std::string& reuseIdentifier);

    [[nodiscard]] UITableViewCell& cell() const;

    /// Empty for none.
    [[nodiscard]] const std::string& reuseIdentifier() const { return reuseIdentifier_; }

    [[nodiscard]] UIView& contentView() const { return *contentView_; }

    [[nodiscard]] UILabel& textLabel() const { return *textLabel_; }

    /// Not shown in the default style.
    [[nodiscard]] UILabel& detailTextLabel() const { return *detailTextLabel_; }

    /// Takes no room without an image.
    [[nodiscard]] UIImageView& imageView() const { return *imageView_; }

    /// The room for the image, which is in its middle; as wide as the image until it is set.
    void setImageColumn(double width);

    [[nodiscard]] UITableViewCellAccessoryType accessoryType() const { return accessoryType_; }

    void setAccessoryType(UITableViewCellAccessoryType type);
    /// Shown in place of the accessory type; empty for none.
    void setAccessoryView(const Ref<UIView>& view);

    /// Whether the detail keeps its width and the title is cut short, instead of the other way round.
    void setDetailHasPriority(bool priority);

    /// How the row is cut out of its card: whether it is the first or last one seen in it.
    void setPlaceInCard(bool first, bool last);

    /// How far what the cell shows stays away from the card's edges.
    void setMargin(double margin);

    /// Whether what does not fit into the cell is cut off, as it is while the row is hidden.
    void setCutOff(bool cutOff);

    /// Whether a tap on the row does something.
    [[nodiscard]] bool isSelectable() const;

    [[nodiscard]] bool isHighlighted() const { return highlighted_; }

    [[nodiscard]] bool isSelected() const { return selected_; }

    void setHighlighted(bool highlighted);
    /// \param animated whether the look fades
    void setSelected(bool selected, bool animated);
    /// How much of the selection's look is gone, from 0 to 1, until the cell is selected anew.
    void setSelectionFade(double faded);

    /// The height that suits what the cell itself shows when it is that wide.
    [[nodiscard]] virtual double heightFor(double width) const;

    // UIViewPeer:
    void layoutSubviews() override;
    void traitsDidChange() override;
    /// As high as `heightFor` says, and as the constraints in the content view ask for.
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchEnded(DesktopTouch& touch, UIEvent& event) override;
    void touchCancelled(DesktopTouch& touch, UIEvent& event) override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;

protected:
    /// Makes the cell's views, once the peer has its cell.
    virtual void viewMade();

private:
    friend class UITableViewCell;

    /// The room for texts, from its left edge to its right one, in the cell.
    struct TextRoom {
        double left;
        double right;

        [[nodiscard]] double width() const;
    };

    [[nodiscard]] UITableViewPeer* table() const;
    [[nodiscard]] const UIView* accessory() const;
    [[nodiscard]] CGRect accessoryFrame(const CGRect& bounds) const;
    /// \pre there is an image
    [[nodiscard]] double imageWidth() const;
    [[nodiscard]] TextRoom textRoom(double width) const;
    /// Of the content view in a cell of that width.
    [[nodiscard]] double contentWidth(double width) const;
    /// The height that constraints in the content view give it; 0 without any.
    [[nodiscard]] double constrainedHeight(double width) const;
    void showAccessory();
    /// How much the row looks pressed, from 0 to 1.
    [[nodiscard]] double pressedPart() const;
    void showState();
    void layOutTexts(const CGRect& bounds);
    void layOutSideBySide(const TextRoom& room, double height);
    void layOutStacked(const TextRoom& room, double height);

    UITableViewCellStyle style_ = UITableViewCellStyle::Default;
    std::string reuseIdentifier_;
    Ref<UIView> slice_; ///< all that the cell shows
    Ref<UIView> background_;
    Ref<UIView> contentView_;
    Ref<UILabel> textLabel_;
    Ref<UILabel> detailTextLabel_;
    Ref<UIImageView> imageView_;
    Ref<UIView> separator_;
    Ref<UIImageView> indicator_; ///< the accessory type's; empty for none
    Ref<UIView> accessoryView_;
    UITableViewCellAccessoryType accessoryType_ = UITableViewCellAccessoryType::None;
    double margin_ = 16;
    std::optional<double> imageColumn_;
    double selectionFade_ = 0;
    bool lastInCard_ = true;
    bool detailHasPriority_ = false;
    bool highlighted_ = false;
    bool selected_ = false;
};

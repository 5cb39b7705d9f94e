#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "navigation/BarControl.h"
#include "views/UILabelPeer.h"

#include <optional>
#include <string>
#include <vector>

/// The button at a navigation bar's leading edge that leads to the page before: a chevron and, as far as
/// there is room, a title. Made by the bar's content.
class BackButtonView final : public BarControl {
public:
    // Points from the bar's leading edge.
    static constexpr double chevronStart = 8;
    static constexpr double chevronEnd = 21;
    static constexpr double titleStart = 27;
    static constexpr double leastWidth = 50;

    /// \param previousTitle of the page before; may be empty
    explicit BackButtonView(const std::string& previousTitle);

    /// The widths of the titles it may have, the preferred first.
    [[nodiscard]] const std::vector<double>& titleWidths() const { return widths_; }

    /// \param index of one of these; nothing for none
    void showTitle(std::optional<std::size_t> index);

    /// What is shown beside the chevron.
    [[nodiscard]] std::optional<std::string> title() const { return peerOf<UILabelPeer>(*label_).text(); }

    /// Of what is shown beside the chevron, in points.
    [[nodiscard]] double titleWidth() const { return label_->bounds().size.width; }

    /// While one page gives way to another. \param shift of the title, in points
    void placeTitle(double shift, double alpha);
    void setChevronAlpha(double alpha);

    // UIView:
    void layoutSubviews() override;

private:
    std::vector<std::string> titles_;
    std::vector<double> widths_;
    Ref<UIImageView> chevron_;
    Ref<UILabel> label_;
};

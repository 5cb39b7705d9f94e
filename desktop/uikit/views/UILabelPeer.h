#pragma once

#include "ColorComponents.h"
#include "FontStyle.h"
#include "TextLayout.h"
#include "UIKit/UILabel.h"
#include "views/UIViewPeer.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

/// The desktop's half of a label: its text, how it is set, and its lines. Made with the label.
class UILabelPeer : public UIViewPeer {
public:
    using Object = UILabel;

    UILabelPeer();

    [[nodiscard]] const std::optional<std::string>& text() const { return text_; }

    void setText(const std::optional<std::string>& text);

    /// Regular and 17 points until another is set.
    [[nodiscard]] const FontStyle& fontStyle() const { return fontStyle_; }

    void setFontStyle(const FontStyle& style);

    /// The system's label colour until another is set; never empty.
    [[nodiscard]] const Ref<UIColor>& textColor() const { return textColor_; }

    void setTextColor(const Ref<UIColor>& color);

    [[nodiscard]] NSTextAlignment textAlignment() const { return textAlignment_; }

    void setTextAlignment(NSTextAlignment alignment);

    /// 1 until another is set; 0 is without limit. What is too high for the bounds is cut short as well.
    [[nodiscard]] std::size_t numberOfLines() const { return numberOfLines_; }

    void setNumberOfLines(std::size_t lines);

    /// How a text is set that has no room in its lines: with an ellipsis until another is set.
    void setLineBreakMode(NSLineBreakMode mode);

    /// Whether a text that does not fit is made smaller; not so until it is told.
    void setAdjustsFontSizeToFitWidth(bool adjusts);

    /// How small it may become, as a part of its size; without limit until one is set.
    void setMinimumScaleFactor(double factor);

    /// Of the text; empty for none, as at first.
    void setShadowColor(const Ref<UIColor>& color);

    /// In points, to the right and down. One point up until another is set.
    void setShadowOffset(CGSize offset);

    /// What the text's lines need in a width, in points that are not rounded to pixels; 0 without text.
    [[nodiscard]] double heightOfLines(double width) const;
    /// Whether there is text that the bounds have no room for.
    [[nodiscard]] bool isTruncated() const;

    // UIViewPeer:
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicWidth() const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    bool takeLayoutWidth(double width) override;
    void traitsDidChange() override;
    [[nodiscard]] Accessibility accessibility() const override;
    [[nodiscard]] std::optional<std::string> shownText() const override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;

private:
    /// The layout that was painted last, and what it was made for.
    struct Laid {
        CGSize size;
        double scale;
        TextLayout layout;
    };

    void changed();
    [[nodiscard]] std::optional<TextLayout> layoutInWidth(double width) const;
    [[nodiscard]] std::size_t lineLimit(const FontStyle& style, double height) const;
    [[nodiscard]] TextLayoutOptions optionsFor(const FontStyle& style, CGSize size, double scale) const;
    [[nodiscard]] FontStyle styleFitting(CGSize size, double scale) const;
    [[nodiscard]] FontStyle styleFittingLine(double width, double scale) const;
    [[nodiscard]] FontStyle styleFittingLines(CGSize size, double scale) const;
    [[nodiscard]] const TextLayout& layoutFor(CGSize size, double scale) const;

    std::optional<std::string> text_;
    FontStyle fontStyle_;
    Ref<UIColor> textColor_;
    NSTextAlignment textAlignment_ = NSTextAlignment::Natural;
    std::size_t numberOfLines_ = 1;
    NSLineBreakMode lineBreakMode_ = NSLineBreakMode::ByTruncatingTail;
    bool adjustsFontSizeToFitWidth_ = false;
    double minimumScaleFactor_ = 0;
    Ref<UIColor> shadowColor_;
    CGSize shadowOffset_{.width = 0, .height = -1};
    double preferredMaxLayoutWidth_ = 0;
    mutable std::optional<Laid> laid_;
};

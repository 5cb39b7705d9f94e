#pragma once

#include "ColorComponents.h"
#include "CoreGraphics/CGGeometry.h"
#include "UIKit/UIImage.h"
#include "symbols/SymbolOutline.h"

#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <string>
#include <string_view>
#include <variant>

class QPainter;

/// A picture of pixels, or a symbol's outline at a point size. Immutable.
class DesktopImage final : public UIImage {
public:
    /// \param scale pixels per point
    DesktopImage(QImage picture, double scale);
    DesktopImage(std::string symbolName, QPainterPath outline, CGSize size);

    /// A symbol at a point size and weight; empty when there is none of that name.
    [[nodiscard]] static Ref<DesktopImage> symbol(std::string_view name, double pointSize,
                                                  SymbolWeight weight = SymbolWeight::Regular);

    /// The picture in the device's file `path`, or beside it with "@2x" or "@3x", whichever suits the scale
    /// best.
    [[nodiscard]] static Ref<DesktopImage> named(std::string_view path, double displayScale);

    /// The same for a path that has to be there itself, and that is taken as it is when it names a scale.
    [[nodiscard]] static Ref<DesktopImage> withContentsOfFile(std::string_view path, double displayScale);

    /// Empty for a picture.
    [[nodiscard]] const std::string& symbolName() const { return symbolName_; }

    [[nodiscard]] UIImageRenderingMode renderingMode() const { return mode_; }

    /// In points.
    [[nodiscard]] CGSize size() const { return size_; }

    /// The same of any image.
    [[nodiscard]] static CGSize sizeOf(const UIImage& image);

    /// Whether the image is drawn in the tint.
    [[nodiscard]] bool isTemplate() const;

    /// Draws into the rectangle, in points.
    void draw(QPainter& painter, const CGRect& rect, const ColorComponents& tint) const;

    // UIImage:
    [[nodiscard]] Ref<UIImage> imageWithRenderingMode(UIImageRenderingMode mode) const override;

private:
    using Content = std::variant<QImage, QPainterPath>;

    DesktopImage(Content content, std::string symbolName, CGSize size, UIImageRenderingMode mode);

    /// The picture with no more pixels than it is shown with, if those are a lot less.
    [[nodiscard]] QImage reduced(const QPainter& painter, const QRectF& rect) const;

    Content content_;
    mutable QImage reduced_; ///< as it was drawn last; null when it never was
    std::string symbolName_;
    CGSize size_;
    UIImageRenderingMode mode_ = UIImageRenderingMode::Automatic;
};

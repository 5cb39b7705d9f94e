#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <cstddef>
#include <list>

class QPainter;

/// The shadow of a layer.
struct Shadow {
    double radius = 3; ///< of the blur, in points: its standard deviation. Drawing programs state twice that.
    QPointF offset = {}; ///< in points, y pointing down
    double opacity = 1;
    QColor color = Qt::black;
};

/// Paints blurred shadows, and keeps the last ones that it made, since most are painted again unchanged.
/// One for each window.
class ShadowRenderer {
public:
    /// Bytes of images that are kept, but for the last one, which may be larger alone: of what is seen at
    /// once, since what grows has another shadow in each frame.
    static constexpr qsizetype capacity = qsizetype{16} << 20;

    /// Paints the shadow of a filled shape; what casts it is painted over it afterwards. Follows the
    /// painter's transformation and pixel ratio.
    void paint(QPainter& painter, const QPainterPath& shape, const Shadow& shadow);

    /// How often a shadow had to be made since there was none to paint again.
    [[nodiscard]] std::size_t madeCount() const { return madeCount_; }

private:
    struct Key {
        QPainterPath shape; ///< in pixels
        QPointF place;      ///< of the shape's origin within a pixel
        double sigma = 0;   ///< in pixels
        QRgb color = 0;     ///< opaque

        bool operator==(const Key&) const = default;
    };

    struct Made {
        Key key;
        QImage image;
        QPoint origin; ///< of the image from the whole pixel that holds the shape's origin
    };

    [[nodiscard]] const Made& shadowFor(const Key& key);
    [[nodiscard]] static Made make(const Key& key);

    std::list<Made> kept_; ///< the last painted first
    qsizetype keptBytes_ = 0;
    std::size_t madeCount_ = 0;
};

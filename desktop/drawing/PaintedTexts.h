#pragma once

#include "TextLayout.h"
#include "TextLines.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QTransform>
#include <cstddef>
#include <functional>
#include <list>
#include <memory>

/// What the letters of the last texts that were painted cover of each pixel, since the rows of a page are
/// painted again when it comes back. One for the process; used by the thread of the application alone.
class PaintedTexts {
public:
    /// Bytes that are kept, of the last used ones.
    static constexpr qsizetype capacity = qsizetype{3} << 20;

    /// All that it follows from.
    struct Key {
        std::weak_ptr<const TextLines> lines;
        HorizontalAlignment alignment = HorizontalAlignment::Left;
        double width = 0;     ///< that lines are aligned within, in points
        QTransform toPicture; ///< from points
        QSize size;           ///< of the picture

        bool operator==(const Key& other) const;
    };

    [[nodiscard]] static PaintedTexts& shared();

    /// In Format_Alpha8; null where letters have colours of their own. \param paint paints them in black, on
    /// nothing, when it is not known
    [[nodiscard]] QImage coverage(const Key& key, const std::function<QImage()>& paint);

    /// Letters of a colour. \param coverage not null
    [[nodiscard]] static QImage colored(const QImage& coverage, const QColor& color);

    /// How often they had to be painted.
    [[nodiscard]] std::size_t madeCount() const { return madeCount_; }

private:
    struct Painted {
        Key key;
        QImage coverage;
    };

    PaintedTexts() = default;

    void keep(const Key& key, const QImage& coverage);

    std::list<Painted> painted_; ///< the last used first
    std::size_t madeCount_ = 0;
};

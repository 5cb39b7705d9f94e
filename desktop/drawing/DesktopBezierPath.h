#pragma once

#include "UIKit/UIBezierPath.h"

#include <QPainterPath>

/// An outline as the painter takes it. Immutable.
class DesktopBezierPath final : public UIBezierPath {
public:
    explicit DesktopBezierPath(const QPainterPath& path) : path_(path) {}

    [[nodiscard]] const QPainterPath& path() const { return path_; }

private:
    QPainterPath path_;
};

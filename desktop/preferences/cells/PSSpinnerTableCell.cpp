#include "cells/PSSpinnerTableCell.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "cells/PSTableCellPeer.h"

#include <QPainter>
#include <memory>

namespace {

const Class cellClass = Class::define<PSSpinnerTableCell, PSTableCell>("PSSpinnerTableCell");

constexpr double wheelSize = 20;
constexpr int spokeCount = 8;
constexpr double spokeWidth = 2.5;
constexpr double spokeStart = 4.5; ///< from the middle
constexpr double spokeEnd = 8.75;

class WheelPeer final : public UIViewPeer {
public:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override {
        constexpr double wholeTurn = 360;
        auto color = DesktopColor::resolve(DesktopColor::system(SystemColor::Gray), traits).toQColor();
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(CGRectGetMidX(bounds), CGRectGetMidY(bounds));
        for (auto spoke = 0; spoke < spokeCount; ++spoke) {
            color.setAlphaF(1 - 0.1F * static_cast<float>(spoke));
            painter.setPen(QPen(color, spokeWidth, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(0, -spokeStart), QPointF(0, -spokeEnd));
            painter.rotate(-wholeTurn / spokeCount);
        }
        painter.restore();
    }
};

class Wheel final : public UIView {
public:
    Wheel() : UIView(std::make_unique<WheelPeer>()) {}
};

class PSSpinnerTableCellPeer final : public PSTableCellPeer {
protected:
    // UITableViewCellPeer:
    void viewMade() override {
        PSTableCellPeer::viewMade();
        const auto wheel = make<Wheel>();
        wheel->setFrame(CGRectMake(0, 0, wheelSize, wheelSize));
        setAccessoryView(wheel);
    }
};

} // namespace

PSSpinnerTableCell::PSSpinnerTableCell() : PSTableCell(std::make_unique<PSSpinnerTableCellPeer>()) {}

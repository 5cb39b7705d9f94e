#include "layout/LayoutProblem.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "layout/NSLayoutConstraintPeer.h"
#include "views/UIViewPeer.h"
#include "views/ViewLayout.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double fittingPriority = 50;

bool isHorizontal(LayoutAttribute attribute) {
    using enum LayoutAttribute;
    return attribute == Leading || attribute == Trailing || attribute == CenterX || attribute == Width;
}

UIEdgeInsets insetsOf(const UIView& view, LayoutGuide guide) {
    if (guide == LayoutGuide::SafeArea)
        return view.peer().safeAreaInsets();
    if (guide == LayoutGuide::Margins)
        return view.peer().layoutRules().margins;
    return {};
}

/// So often texts get their widths anew, each time of what follows from the last ones; most do once.
constexpr auto mostWrappings = 8;

/// In the middle between two pixels both edges of a view go the same way, whatever the reckoning has left of
/// them, so that what is whole pixels wide stays as wide.
double toPixel(double value, double scale) {
    constexpr auto slack = 1e-6;
    return std::floor(value * scale + 0.5 + slack) / scale;
}

} // namespace

bool LayoutProblem::isHost(const UIView& view) {
    const auto& peer = view.peer();
    return peer.isFrameGiven() && std::ranges::any_of(peer.subviews(), [](const auto& subview) {
               return !subview->peer().isFrameGiven();
           });
}

LayoutProblem::LayoutProblem(UIView& host, const HostSize& size) : host_(host) {
    collect(host);
    addHostSize(size);
    for (const auto* view : views_) {
        if (!isPlacedAsAWhole(*view))
            addConstraints(*view);
    }
    for (const auto* view : views_) {
        if (!isPlacedAsAWhole(*view))
            view->peer().addOwnConstraints(*this);
    }
    addIntrinsicSizes();
    for (auto turn = 0; turn < mostWrappings && wrapTexts(); ++turn) {
    }
}

bool LayoutProblem::isPlacedAsAWhole(const UIView& view) const {
    return &view != &host_ && view.peer().isFrameGiven();
}

void LayoutProblem::collect(UIView& view) {
    views_.push_back(&view);
    const auto& unknowns = unknowns_[&view];
    if (isPlacedAsAWhole(view)) {
        addGivenFrame(view, unknowns);
        return;
    }
    add({unknowns.width, LinearRelation::GreaterOrEqual, 0});
    add({unknowns.height, LinearRelation::GreaterOrEqual, 0});
    for (const auto& subview : view.peer().subviews())
        collect(*subview);
}

void LayoutProblem::addHostSize(const HostSize& size) {
    const auto& unknowns = unknowns_[&host_];
    const auto addLength = [this](const LinearVariable& length, const std::optional<double>& given) {
        if (given)
            add({length, LinearRelation::Equal, *given});
        else
            add({length, LinearRelation::Equal, 0, fittingPriority});
    };
    addLength(unknowns.width, size.width);
    addLength(unknowns.height, size.height);
}

void LayoutProblem::addGivenFrame(const UIView& view, const Unknowns& unknowns) {
    const auto frame = view.frame();
    add({unknowns.left, LinearRelation::Equal, frame.origin.x});
    add({unknowns.top, LinearRelation::Equal, frame.origin.y});
    add({unknowns.width, LinearRelation::Equal, frame.size.width});
    add({unknowns.height, LinearRelation::Equal, frame.size.height});
}

void LayoutProblem::add(const LinearConstraint& constraint) {
    if (!solver_.addConstraint(constraint))
        isContradictory_ = true;
}

void LayoutProblem::logContradiction() const {
    if (std::exchange(host_.peer().layoutRules().contradictionIsLogged, isContradictory_) ||
        !isContradictory_)
        return;
    NSLog("Unable to simultaneously satisfy constraints of %@; some of them are left out.",
          host_.isa().name());
}

void LayoutProblem::addConstraints(const UIView& view) {
    for (const auto& constraint : view.peer().layoutRules().constraints) {
        const auto& terms = constraint->peer().terms();
        const auto first = expression(terms.first);
        const auto second = terms.second ? expression(*terms.second) : LinearExpression();
        if (first && second)
            add({*first, terms.relation, terms.factor * *second + terms.constant, terms.priority});
    }
}

void LayoutProblem::addIntrinsicSizes() {
    for (const auto* view : views_) {
        if (!view->peer().isFrameGiven())
            addIntrinsicSize(view->peer(), unknowns_.at(view));
    }
}

void LayoutProblem::addIntrinsicSize(const UIViewPeer& view, const Unknowns& unknowns) {
    const auto addLength = [this](const LinearVariable& length, const std::optional<double>& intrinsic,
                                  const ContentPriorities& priorities) {
        if (!intrinsic)
            return;
        const auto keep = [this](const LinearConstraint& constraint) {
            if (const auto added = solver_.addConstraint(constraint))
                intrinsicSizes_.push_back(*added);
        };
        keep({length, LinearRelation::GreaterOrEqual, *intrinsic, priorities.compression});
        keep({length, LinearRelation::LessOrEqual, *intrinsic, priorities.hugging});
    };
    addLength(unknowns.width, view.intrinsicWidth(), view.layoutRules().horizontal);
    addLength(unknowns.height, view.intrinsicHeight(), view.layoutRules().vertical);
}

/// A text of several lines has its height from the width that it gets, so it is asked again once that is
/// known; and its width may follow from that.
bool LayoutProblem::wrapTexts() {
    auto changed = false;
    for (const auto* view : views_) {
        if (!view->peer().isFrameGiven() &&
            view->peer().takeLayoutWidth(solver_.value(unknowns_.at(view).width)))
            changed = true;
    }
    if (!changed)
        return false;
    for (const auto constraint : std::exchange(intrinsicSizes_, {}))
        static_cast<void>(solver_.removeConstraint(constraint));
    addIntrinsicSizes();
    return true;
}

std::optional<LinearExpression> LayoutProblem::originInHost(const UIView& view, bool horizontal) const {
    LinearExpression origin;
    for (const auto* at = &view; at != &host_; at = at->peer().superview()) {
        if (at == nullptr)
            return std::nullopt;
        const auto found = unknowns_.find(at);
        if (found == unknowns_.end())
            return std::nullopt;
        origin += horizontal ? found->second.left : found->second.top;
    }
    return origin;
}

std::optional<LayoutProblem::Extent> LayoutProblem::extent(const UIView& view, LayoutGuide guide,
                                                           bool horizontal) const {
    auto origin = originInHost(view, horizontal);
    if (!origin)
        return std::nullopt;
    const auto& unknowns = unknowns_.at(&view);
    const auto insets = insetsOf(view, guide);
    const auto before = horizontal ? insets.left : insets.top;
    const auto after = horizontal ? insets.right : insets.bottom;
    return Extent{.begin = *origin + before,
                  .length = LinearExpression(horizontal ? unknowns.width : unknowns.height) - before - after};
}

std::optional<LinearExpression> LayoutProblem::expression(const LayoutAnchor& anchor) const {
    const auto view = anchor.view.strong();
    const auto found = view ? extent(*view, anchor.guide, isHorizontal(anchor.attribute)) : std::nullopt;
    if (!found)
        return std::nullopt;
    const auto mirrored = isHorizontal(anchor.attribute) && host_.peer().isRightToLeft();
    switch (anchor.attribute) {
    case LayoutAttribute::Leading:
    case LayoutAttribute::Top:
        return mirrored ? -1.0 * (found->begin + found->length) : found->begin;
    case LayoutAttribute::Trailing:
    case LayoutAttribute::Bottom:
        return mirrored ? -1.0 * found->begin : found->begin + found->length;
    case LayoutAttribute::CenterX:
    case LayoutAttribute::CenterY:
        return (mirrored ? -1.0 : 1.0) * (found->begin + 0.5 * found->length);
    case LayoutAttribute::Width:
    case LayoutAttribute::Height:
        break;
    }
    return found->length;
}

CGRect LayoutProblem::solvedFrame(const Unknowns& unknowns) const {
    return CGRectMake(solver_.value(unknowns.left), solver_.value(unknowns.top),
                      solver_.value(unknowns.width), solver_.value(unknowns.height));
}

void LayoutProblem::apply() const {
    logContradiction();
    const auto scale = host_.peer().traits().displayScale;
    for (auto* view : views_) {
        if (view == &host_ || view->peer().isFrameGiven())
            continue;
        const auto frame = solvedFrame(unknowns_.at(view));
        const auto left = toPixel(frame.origin.x, scale);
        const auto top = toPixel(frame.origin.y, scale);
        view->setFrame(CGRectMake(left, top, toPixel(CGRectGetMaxX(frame), scale) - left,
                                  toPixel(CGRectGetMaxY(frame), scale) - top));
    }
}

CGSize LayoutProblem::hostSize() const {
    return solvedFrame(unknowns_.at(&host_)).size;
}

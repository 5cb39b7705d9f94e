#include "layout/UIStackViewPeer.h"

#include "layout/LayoutProblem.h"
#include "views/ViewLayout.h"

#include <algorithm>
#include <utility>

namespace {

/// Just below what is required, so that a stack in too little room gives way instead of breaking.
constexpr double nearlyRequired = 999;
/// Of the wish to be no larger than the arranged subviews need.
constexpr double huggingPriority = 249;

} // namespace

void UIStackViewPeer::addArrangedSubview(const Ref<UIView>& view) {
    if (view->peer().superview() != &this->view())
        addSubview(view);
    std::erase(arranged_, view);
    arranged_.push_back(view);
    view->peer().setFrameGiven(false);
    setNeedsConstraintLayout();
}

void UIStackViewPeer::setAxis(UILayoutConstraintAxis axis) {
    axis_ = axis;
    setNeedsConstraintLayout();
}

void UIStackViewPeer::setDistribution(UIStackViewDistribution distribution) {
    distribution_ = distribution;
    setNeedsConstraintLayout();
}

void UIStackViewPeer::setAlignment(UIStackViewAlignment alignment) {
    alignment_ = alignment;
    setNeedsConstraintLayout();
}

void UIStackViewPeer::setSpacing(double spacing) {
    spacing_ = spacing;
    setNeedsConstraintLayout();
}

void UIStackViewPeer::setLayoutMarginsRelativeArrangement(bool relative) {
    marginsRelative_ = relative;
    setNeedsConstraintLayout();
}

UIStackViewPeer::Place UIStackViewPeer::placeOf(LayoutProblem& problem, UIView& view,
                                                LayoutGuide guide) const {
    const auto at = [&](LayoutAttribute attribute) {
        return problem.expression({view, attribute, guide}).value_or(LinearExpression());
    };
    using enum LayoutAttribute;
    if (axis_ == UILayoutConstraintAxis::Horizontal)
        return {at(Leading), at(Trailing), at(Top), at(Bottom)};
    return {at(Top), at(Bottom), at(Leading), at(Trailing)};
}

std::vector<UIStackViewPeer::Place> UIStackViewPeer::shownPlaces(LayoutProblem& problem) const {
    std::vector<Place> places;
    for (const auto& view : arranged_) {
        if (view->peer().superview() == &this->view() && !view->peer().isHidden())
            places.push_back(placeOf(problem, *view, LayoutGuide::Bounds));
    }
    return places;
}

void UIStackViewPeer::addOwnConstraints(LayoutProblem& problem) const {
    const auto places = shownPlaces(problem);
    if (places.empty())
        return;
    const auto own = placeOf(problem, view(), marginsRelative_ ? LayoutGuide::Margins : LayoutGuide::Bounds);
    addAlong(problem, own, places);
    for (const auto& place : places)
        addAcross(problem, own, place);
    if (distribution_ == UIStackViewDistribution::FillEqually)
        addEqualLengths(problem, places);
    else if (distribution_ == UIStackViewDistribution::EqualSpacing)
        addEqualGaps(problem, places);
}

void UIStackViewPeer::addAlong(LayoutProblem& problem, const Place& own,
                               const std::vector<Place>& places) const {
    problem.add({places.front().begin, LinearRelation::Equal, own.begin});
    const auto gapsMayGrow = distribution_ == UIStackViewDistribution::EqualSpacing;
    for (std::size_t index = 1; index < places.size(); ++index) {
        const auto least = places[index - 1].end + spacing_;
        problem.add({places[index].begin,
                     gapsMayGrow ? LinearRelation::GreaterOrEqual : LinearRelation::Equal, least});
        if (gapsMayGrow)
            problem.add({places[index].begin, LinearRelation::Equal, least, huggingPriority});
    }
    // Where it all is too long, the end is what does not hold, so that nothing lies above anything else.
    problem.add({places.back().end, LinearRelation::Equal, own.end});
}

void UIStackViewPeer::addAcross(LayoutProblem& problem, const Place& own, const Place& place) const {
    const auto begin =
        alignment_ == UIStackViewAlignment::Fill || alignment_ == UIStackViewAlignment::Leading;
    const auto end = alignment_ == UIStackViewAlignment::Fill || alignment_ == UIStackViewAlignment::Trailing;
    const auto isCentered = alignment_ == UIStackViewAlignment::Center;
    // What is too large in the middle of the stack stays there and extends beyond it on both sides.
    const auto within = isCentered ? nearlyRequired : LinearConstraint::required;
    problem.add({place.crossBegin, begin ? LinearRelation::Equal : LinearRelation::GreaterOrEqual,
                 own.crossBegin, within});
    problem.add(
        {place.crossEnd, end ? LinearRelation::Equal : LinearRelation::LessOrEqual, own.crossEnd, within});
    if (isCentered)
        problem.add(
            {place.crossBegin + place.crossEnd, LinearRelation::Equal, own.crossBegin + own.crossEnd});
    problem.add({own.crossEnd - own.crossBegin, LinearRelation::Equal, 0, 1}); // no larger than the largest
}

void UIStackViewPeer::addEqualGaps(LayoutProblem& problem, const std::vector<Place>& places) {
    const auto gap = [&](std::size_t index) { return places[index].begin - places[index - 1].end; };
    for (std::size_t index = 2; index < places.size(); ++index)
        problem.add({gap(index), LinearRelation::Equal, gap(1), nearlyRequired});
}

void UIStackViewPeer::addEqualLengths(LayoutProblem& problem, const std::vector<Place>& places) {
    const auto length = [](const Place& place) { return place.end - place.begin; };
    for (std::size_t index = 1; index < places.size(); ++index)
        problem.add({length(places[index]), LinearRelation::Equal, length(places[0]), nearlyRequired});
}

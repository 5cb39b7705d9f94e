#include "cells/PSHeaderFooterView.h"

#include "ObjectiveC/Method.h"

namespace {

constexpr auto initialiser = "initWithSpecifier:";
constexpr auto heightQuestion = "preferredHeightForWidth:";

} // namespace

std::optional<bool> PSHeaderFooterView::init(UIView& view, PSSpecifier& specifier) {
    if (!view.respondsToSelector(initialiser))
        return std::nullopt;
    const auto answer = view.performSelector(initialiser, {Ref<NSObject>(retain(&specifier))});
    return MessageTraits<bool>::unpack(answer);
}

std::optional<double> PSHeaderFooterView::preferredHeight(UIView& view, double width) {
    if (!view.respondsToSelector(heightQuestion))
        return std::nullopt;
    return MessageTraits<double>::unpack(view.performSelector(heightQuestion, {PropertyList(width)}));
}

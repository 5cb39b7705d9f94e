#include "ViewReport.h"

#include "JsonValues.h"
#include "LayerReport.h"
#include "ObjectProperties.h"
#include "ObjectiveC/Class.h"
#include "accessibility/AccessibilityElement.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <vector>

namespace {

QJsonArray subviewReports(const UIViewPeer& peer) {
    QJsonArray reports;
    for (const auto& subview : std::vector(peer.subviews()))
        reports.append(viewReport(*subview));
    return reports;
}

/// An element is told of as assistive programs hear of it.
QJsonObject accessibilityReport(UIView& view) {
    const auto accessibility = view.peer().accessibility();
    const auto element = AccessibilityElement::of(view);
    return {{"label", jsonOfText(accessibility.isElement ? element.label : accessibility.label)},
            {"value", jsonOfText(accessibility.isElement ? element.value : accessibility.value)},
            {"isElement", accessibility.isElement}};
}

void collect(const Class& viewClass, UIView& view, QJsonArray& reports) {
    if (view.isa().isSubclassOf(viewClass))
        reports.append(viewReport(view));
    for (const auto& subview : std::vector(view.peer().subviews()))
        collect(viewClass, *subview, reports);
}

} // namespace

QJsonObject viewReport(UIView& view) {
    const auto& peer = view.peer();
    return {
        {"class", jsonOfText(view.isa().name())},
        {"frame", jsonOf(view.frame())},
        {"screenFrame", jsonOf(peer.convertToScreen(view.bounds()))},
        {"alpha", peer.layer().peer().number(LayerProperty::Opacity)},
        {"hidden", peer.isHidden()},
        {"layer", layerReport(peer.layer().peer())},
        {"properties", viewProperties(view)},
        {"accessibility", accessibilityReport(view)},
        {"subviews", subviewReports(peer)},
    };
}

QJsonArray viewReports(const Class& viewClass) {
    QJsonArray reports;
    for (const auto& window : std::vector(Screen::current().windows()))
        collect(viewClass, *window, reports);
    return reports;
}

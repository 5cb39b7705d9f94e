#include "LayerReport.h"

#include "CALayerPeer.h"
#include "JsonValues.h"

#include <QJsonArray>
#include <array>
#include <cstddef>

namespace {

/// How a property is told: under which name, and as how many numbers.
struct PropertyName {
    LayerProperty property;
    const char* name;
    std::size_t numbers;
};

constexpr std::array propertyNames{
    PropertyName{LayerProperty::Position, "position", 2},
    PropertyName{LayerProperty::BoundsOrigin, "boundsOrigin", 2},
    PropertyName{LayerProperty::BoundsSize, "boundsSize", 2},
    PropertyName{LayerProperty::Transform, "transform", 6},
    PropertyName{LayerProperty::Opacity, "opacity", 1},
    PropertyName{LayerProperty::BackgroundColor, "backgroundColor", 4},
    PropertyName{LayerProperty::BorderColor, "borderColor", 4},
    PropertyName{LayerProperty::BorderWidth, "borderWidth", 1},
    PropertyName{LayerProperty::CornerRadius, "cornerRadius", 1},
    PropertyName{LayerProperty::ShadowColor, "shadowColor", 4},
    PropertyName{LayerProperty::ShadowOpacity, "shadowOpacity", 1},
    PropertyName{LayerProperty::ShadowOffset, "shadowOffset", 2},
    PropertyName{LayerProperty::ShadowRadius, "shadowRadius", 1},
};
static_assert(propertyNames.size() == layerPropertyCount);

QJsonValue jsonOfValue(const LayerValue& value, std::size_t numbers) {
    if (numbers == 1)
        return value[0];
    QJsonArray array;
    for (std::size_t index = 0; index < numbers; ++index)
        array.append(value.at(index));
    return array;
}

QJsonValue jsonOfPath(const std::optional<QPainterPath>& path) {
    if (!path)
        return {};
    const auto bounds = path->boundingRect();
    return jsonOf(CGRectMake(bounds.x(), bounds.y(), bounds.width(), bounds.height()));
}

QJsonValue jsonOfBackdrop(const std::optional<Backdrop>& backdrop) {
    if (!backdrop)
        return {};
    return QJsonObject{{"blurRadius", backdrop->blurRadius}, {"saturation", backdrop->saturation}};
}

QJsonObject shownValues(const CALayerPeer& layer) {
    QJsonObject shown;
    for (const auto& [property, name, numbers] : propertyNames) {
        if (const auto value = layer.shownValue(property); value != layer.value(property))
            shown.insert(name, jsonOfValue(value, numbers));
    }
    return shown;
}

} // namespace

QJsonObject layerReport(const CALayerPeer& layer) {
    QJsonObject report{
        {"masksToBounds", layer.masksToBounds},
        {"continuousCorners", layer.continuousCorners},
        {"roundTop", layer.roundTop},
        {"roundBottom", layer.roundBottom},
        {"shadowPath", jsonOfPath(layer.shadowPath)},
        {"backdrop", jsonOfBackdrop(layer.backdrop)},
    };
    for (const auto& [property, name, numbers] : propertyNames)
        report.insert(name, jsonOfValue(layer.value(property), numbers));
    if (const auto shown = shownValues(layer); !shown.isEmpty())
        report.insert("shown", shown);
    return report;
}

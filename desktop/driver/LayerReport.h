#pragma once

#include <QJsonObject>

class CALayerPeer;

/// A layer's values as they are set, and under "shown" those that are on their way there.
[[nodiscard]] QJsonObject layerReport(const CALayerPeer& layer);

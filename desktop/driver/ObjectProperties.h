#pragma once

#include <QJsonObject>

class UIView;

/// What a view tells of itself: what its peer names, and the properties that its class states in the class
/// table, which are the selectors without parameters that have a setter ("isOn" and "setOn:").
[[nodiscard]] QJsonObject viewProperties(UIView& view);

#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Foundation/PropertyList.h"

#include <QJsonArray>
#include <QJsonValue>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

struct ColorComponents;

/// [x, y, width, height]
[[nodiscard]] QJsonArray jsonOf(const CGRect& rect);
/// [width, height]
[[nodiscard]] QJsonArray jsonOf(CGSize size);
/// [red, green, blue, alpha], each 0..1
[[nodiscard]] QJsonArray jsonOf(const ColorComponents& color);
[[nodiscard]] QJsonValue jsonOfText(std::string_view text);
/// Data is its bytes in base64, a date its ISO 8601 text in UTC; no value is null.
[[nodiscard]] QJsonValue jsonOf(const PropertyList& value);
[[nodiscard]] QJsonValue jsonOf(const std::optional<PropertyList>& value);

/// The value that a JSON text of any kind stands for; null is no value. A number is an integer when it has no
/// fraction. Within arrays and objects there is no null.
[[nodiscard]] std::expected<std::optional<PropertyList>, std::string>
propertyListFromJson(std::string_view text);

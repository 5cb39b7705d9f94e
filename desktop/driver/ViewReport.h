#pragma once

#include <QJsonArray>
#include <QJsonObject>

class Class;
class UIView;

/// A view with its layer, its properties and all views in it, as the driver tells of them.
[[nodiscard]] QJsonObject viewReport(UIView& view);

/// Every view in the screen's windows that is of the class or of one derived from it, from back to front,
/// those inside another one after it.
[[nodiscard]] QJsonArray viewReports(const Class& viewClass);

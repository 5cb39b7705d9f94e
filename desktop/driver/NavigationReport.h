#pragma once

#include <QJsonObject>

class UIViewController;

/// What the navigation bar shows for a page.
[[nodiscard]] QJsonObject navigationReport(const UIViewController& page);

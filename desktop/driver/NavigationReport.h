#pragma once

#include "UIKit/UIBarButtonItem.h"

#include <QJsonArray>
#include <QJsonObject>
#include <vector>

class UIViewController;

/// What the navigation bar shows for a page.
[[nodiscard]] QJsonObject navigationReport(const UIViewController& page);

/// The items at one side of a navigation bar.
[[nodiscard]] QJsonArray barItemReports(const std::vector<Ref<UIBarButtonItem>>& items);

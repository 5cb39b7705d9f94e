#pragma once

#include <QJsonObject>

class DrivenApplication;

/// What is on the screen, as a user would tell it: the page with its bar and rows, and what is presented.
[[nodiscard]] QJsonObject screenReport(const DrivenApplication& application);

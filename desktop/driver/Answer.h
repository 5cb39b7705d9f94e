#pragma once

#include <QJsonObject>
#include <expected>
#include <string>

/// What a command answers beside "ok", or why it could not be done.
using Answer = std::expected<QJsonObject, std::string>;

/// The answer as the one line that is written, without its end.
[[nodiscard]] std::string lineOf(const Answer& answer);

#include "Answer.h"

#include <QJsonDocument>

namespace {

std::string compactText(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

std::string lineOf(const Answer& answer) {
    const auto fields = answer ? *answer : QJsonObject{{"error", QString::fromStdString(answer.error())}};
    const std::string start = answer ? R"({"ok":true)" : R"({"ok":false)";
    return start + (fields.isEmpty() ? "}" : "," + compactText(fields).substr(1));
}

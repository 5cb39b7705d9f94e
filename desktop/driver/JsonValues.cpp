#include "JsonValues.h"

#include "ColorComponents.h"
#include "time/UnixTime.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>
#include <QVariant>
#include <cmath>
#include <concepts>

namespace {

QJsonValue jsonOfDate(NSDate date) {
    const auto milliseconds = std::llround(unixTimeOf(date) * 1000);
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
}

QJsonValue jsonOfData(const NSData& data) {
    const auto bytes = data.view();
    return QString::fromLatin1(
        QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())).toBase64());
}

/// Makes JSON of each kind of value.
struct JsonVisitor {
    QJsonValue operator()(bool value) const { return value; }

    QJsonValue operator()(std::int64_t value) const { return static_cast<qint64>(value); }

    QJsonValue operator()(std::uint64_t value) const { return static_cast<double>(value); }

    QJsonValue operator()(double value) const { return value; }

    QJsonValue operator()(const std::string& value) const { return jsonOfText(value); }

    QJsonValue operator()(const NSData& value) const { return jsonOfData(value); }

    QJsonValue operator()(const NSDate& value) const { return jsonOfDate(value); }

    QJsonValue operator()(const PropertyList::Array& values) const {
        QJsonArray array;
        for (const auto& value : values)
            array.append(jsonOf(value));
        return array;
    }

    QJsonValue operator()(const PropertyList::Dictionary& values) const {
        QJsonObject object;
        for (const auto& [key, value] : values)
            object.insert(QString::fromStdString(key), jsonOf(value));
        return object;
    }
};

std::optional<PropertyList> fromJson(const QJsonValue& json);

std::optional<PropertyList> fromJson(const QJsonArray& json) {
    PropertyList::Array values;
    for (const auto& element : json) {
        auto value = fromJson(QJsonValue(element));
        if (!value)
            return std::nullopt;
        values.push_back(std::move(*value));
    }
    return values;
}

std::optional<PropertyList> fromJson(const QJsonObject& json) {
    PropertyList::Dictionary values;
    for (auto member = json.begin(); member != json.end(); ++member) {
        auto value = fromJson(QJsonValue(member.value()));
        if (!value)
            return std::nullopt;
        values.emplace(member.key().toStdString(), std::move(*value));
    }
    return values;
}

PropertyList numberFromJson(const QJsonValue& json) {
    const auto number = json.toVariant();
    if (number.typeId() == QMetaType::LongLong)
        return number.toLongLong();
    return json.toDouble();
}

/// Nothing for null.
std::optional<PropertyList> fromJson(const QJsonValue& json) {
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double:
        return numberFromJson(json);
    case QJsonValue::String:
        return json.toString().toStdString();
    case QJsonValue::Array:
        return fromJson(json.toArray());
    case QJsonValue::Object:
        return fromJson(json.toObject());
    default:
        return std::nullopt;
    }
}

} // namespace

QJsonArray jsonOf(const CGRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

QJsonArray jsonOf(CGSize size) {
    return {size.width, size.height};
}

QJsonArray jsonOf(const ColorComponents& color) {
    return {color.red, color.green, color.blue, color.alpha};
}

QJsonValue jsonOfText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QJsonValue jsonOf(const PropertyList& value) {
    return value.visit(JsonVisitor());
}

QJsonValue jsonOf(const std::optional<PropertyList>& value) {
    return value ? jsonOf(*value) : QJsonValue();
}

std::expected<std::optional<PropertyList>, std::string> propertyListFromJson(std::string_view text) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(
        '[' + QByteArray(text.data(), static_cast<qsizetype>(text.size())) + ']', &error);
    const auto values = document.array();
    if (error.error != QJsonParseError::NoError || values.size() != 1)
        return std::unexpected("the value is not JSON");
    auto value = fromJson(values.at(0));
    if (!value && !values.at(0).isNull())
        return std::unexpected("a value holds no null");
    return value;
}

// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/json_schema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>

namespace {

const QStringList knownKeywords{QStringLiteral("$schema"),
                                QStringLiteral("title"),
                                QStringLiteral("description"),
                                QStringLiteral("type"),
                                QStringLiteral("const"),
                                QStringLiteral("enum"),
                                QStringLiteral("minimum"),
                                QStringLiteral("maximum"),
                                QStringLiteral("pattern"),
                                QStringLiteral("items"),
                                QStringLiteral("required"),
                                QStringLiteral("properties"),
                                QStringLiteral("additionalProperties")};

QStringList typesOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return {QStringLiteral("null")};
    case QJsonValue::Bool:
        return {QStringLiteral("boolean")};
    case QJsonValue::String:
        return {QStringLiteral("string")};
    case QJsonValue::Array:
        return {QStringLiteral("array")};
    case QJsonValue::Object:
        return {QStringLiteral("object")};
    case QJsonValue::Double:
        if (std::floor(value.toDouble()) == value.toDouble())
            return {QStringLiteral("number"), QStringLiteral("integer")};
        return {QStringLiteral("number")};
    case QJsonValue::Undefined:
        break;
    }
    return {};
}

bool isOfType(const QJsonValue &value, const QJsonValue &wanted)
{
    const QJsonArray list = wanted.isArray() ? wanted.toArray() : QJsonArray{wanted};
    const QStringList types = typesOf(value);
    for (const QJsonValue type : list) {
        if (types.contains(type.toString()))
            return true;
    }
    return false;
}

QStringList valueErrors(const QJsonValue &value, const QJsonObject &schema)
{
    QStringList errors;
    const auto has = [&schema](const char *keyword) { return schema.contains(QLatin1String(keyword)); };
    const auto at = [&schema](const char *keyword) { return schema.value(QLatin1String(keyword)); };
    for (const QString &keyword : schema.keys()) {
        if (!knownKeywords.contains(keyword))
            errors.append(QStringLiteral("unchecked keyword '%1'").arg(keyword));
    }
    if (has("type") && !isOfType(value, at("type")))
        errors.append(QStringLiteral("wrong type"));
    if (has("const") && at("const") != value)
        errors.append(QStringLiteral("another constant"));
    if (has("enum") && !at("enum").toArray().contains(value))
        errors.append(QStringLiteral("none of the listed"));
    if (value.isDouble() && has("minimum") && value.toDouble() < at("minimum").toDouble())
        errors.append(QStringLiteral("too small"));
    if (value.isDouble() && has("maximum") && value.toDouble() > at("maximum").toDouble())
        errors.append(QStringLiteral("too large"));
    if (value.isString() && has("pattern") && !value.toString().contains(QRegularExpression(at("pattern").toString())))
        errors.append(QStringLiteral("not of the pattern"));
    return errors;
}

QStringList memberErrors(const QJsonObject &object, const QJsonObject &schema, const QString &place)
{
    QStringList errors;
    const QJsonObject members = schema.value(QLatin1String("properties")).toObject();
    const QJsonArray required = schema.value(QLatin1String("required")).toArray();
    for (const QJsonValue name : required) {
        if (!object.contains(name.toString()))
            errors.append(place + u'.' + name.toString() + QStringLiteral(": missing"));
    }
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString memberPlace = place + u'.' + member.key();
        if (members.contains(member.key()))
            errors += schemaErrors(member.value(), members.value(member.key()).toObject(), memberPlace);
        else if (!schema.value(QLatin1String("additionalProperties")).toBool(true))
            errors.append(memberPlace + QStringLiteral(": unknown"));
    }
    return errors;
}

} // namespace

QStringList schemaErrors(const QJsonValue &value, const QJsonObject &schema, const QString &place)
{
    QStringList errors = valueErrors(value, schema);
    for (QString &error : errors)
        error.prepend(place + QStringLiteral(": "));
    if (value.isObject())
        errors += memberErrors(value.toObject(), schema, place);
    const QJsonArray items = value.toArray();
    if (schema.contains(QLatin1String("items"))) {
        for (qsizetype index = 0; index < items.size(); ++index)
            errors += schemaErrors(items.at(index), schema.value(QLatin1String("items")).toObject(),
                                   QStringLiteral("%1[%2]").arg(place).arg(index));
    }
    return errors;
}

QJsonObject publishedSchema()
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/docs/report.schema.json"));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

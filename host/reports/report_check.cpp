// SPDX-License-Identifier: Apache-2.0
#include "host/reports/report_check.h"

#include "contract/result_codes.h"
#include "host/reports/report_schema.h"
#include "host/reports/run_report.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

QJsonValue at(const QJsonObject &schema, const char *keyword) { return schema.value(QLatin1String(keyword)); }

bool isOfType(const QJsonValue &value, const QString &type)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return type == QLatin1String("null");
    case QJsonValue::Bool:
        return type == QLatin1String("boolean");
    case QJsonValue::String:
        return type == QLatin1String("string");
    case QJsonValue::Array:
        return type == QLatin1String("array");
    case QJsonValue::Object:
        return type == QLatin1String("object");
    case QJsonValue::Double:
        return type == QLatin1String("number") ||
               (type == QLatin1String("integer") && std::floor(value.toDouble()) == value.toDouble());
    case QJsonValue::Undefined:
        break;
    }
    return false;
}

QStringList typesIn(const QJsonValue &type)
{
    QStringList types;
    const QJsonArray list = type.isArray() ? type.toArray() : QJsonArray{type};
    for (const QJsonValue name : list)
        types.append(name.toString());
    return types;
}

bool isEqual(const QJsonValue &one, const QJsonValue &other)
{
    return one.isDouble() && other.isDouble() ? one.toDouble() == other.toDouble() : one == other;
}

bool isListed(const QJsonValue &value, const QJsonArray &list)
{
    return std::any_of(list.begin(), list.end(), [&value](const QJsonValue &entry) { return isEqual(entry, value); });
}

// What is wrong with a value as such; empty when nothing is.
QString faultOfValue(const QJsonValue &value, const QJsonObject &schema)
{
    const QStringList types = typesIn(at(schema, "type"));
    const auto fits = [&value](const QString &type) { return isOfType(value, type); };
    if (schema.contains(QLatin1String("type")) && std::none_of(types.begin(), types.end(), fits))
        return QStringLiteral("is no %1").arg(types.join(QStringLiteral(" or ")));
    if (schema.contains(QLatin1String("const")) && !isEqual(value, at(schema, "const")))
        return QStringLiteral("is another one than the format has");
    if (schema.contains(QLatin1String("enum")) && !isListed(value, at(schema, "enum").toArray()))
        return QStringLiteral("is none of those that the format knows");
    if (value.isDouble() && value.toDouble() < at(schema, "minimum").toDouble(value.toDouble()))
        return QStringLiteral("is too small");
    if (value.isDouble() && value.toDouble() > at(schema, "maximum").toDouble(value.toDouble()))
        return QStringLiteral("is too large");
    const QString pattern = at(schema, "pattern").toString();
    if (value.isString() && !pattern.isEmpty() && !value.toString().contains(QRegularExpression(pattern)))
        return QStringLiteral("has not the form that it must have");
    return {};
}

QString below(const QString &place, const QString &name) { return place.isEmpty() ? name : place + u'/' + name; }

// Goes no deeper than the schema does.
QString faultBelow(const QJsonValue &value, const QJsonObject &schema, const QString &place)
{
    if (const QString fault = faultOfValue(value, schema); !fault.isEmpty())
        return place + u' ' + fault;
    const QJsonObject members = at(schema, "properties").toObject();
    const QJsonObject object = value.toObject();
    for (auto member = members.begin(); member != members.end(); ++member) {
        const QJsonValue found = object.value(member.key());
        const QString fault =
            found.isUndefined() ? QString() : faultBelow(found, member.value().toObject(), below(place, member.key()));
        if (!fault.isEmpty())
            return fault;
    }
    const QJsonObject items = at(schema, "items").toObject();
    const QJsonArray list = items.isEmpty() ? QJsonArray() : value.toArray();
    for (qsizetype index = 0; index < list.size(); ++index) {
        if (const QString fault = faultBelow(list.at(index), items, below(place, QString::number(index + 1))); !fault.isEmpty())
            return fault;
    }
    return {};
}

QString missingIn(const QJsonObject &report)
{
    const std::pair<const char *, const char *> needed[] = {
        {"test", "letter"}, {"test", "nameKey"}, {"device", "name"}, {"verdict", "code"}, {"verdict", "name"}};
    for (const auto &[object, member] : needed) {
        if (report.value(QLatin1String(object))[QLatin1String(member)].isUndefined())
            return QStringLiteral("%1/%2 is missing").arg(QLatin1String(object), QLatin1String(member));
    }
    return {};
}

// The form alone lets the 40th of a month pass.
QString impossibleMomentIn(const QJsonObject &report)
{
    for (const char *key : {"startedUtc", "endedUtc"}) {
        const QJsonValue moment = report.value(QLatin1String(key));
        if (moment.isString() && !QDateTime::fromString(moment.toString(), Qt::ISODateWithMs).isValid())
            return QLatin1String(key) + QStringLiteral(" is no moment");
    }
    return {};
}

bool hasError(const QJsonObject &report)
{
    const QJsonArray messages = report.value(QLatin1String("messages")).toArray();
    return std::any_of(messages.begin(), messages.end(), [](const QJsonValue &message) {
        return message[QLatin1String("level")].toInt() == static_cast<int>(ostra::message_level::error);
    });
}

// A verdict is the module's own, told by nobody's stop and by no message that explains a failure.
QString contradictionIn(const QJsonObject &report)
{
    const QJsonValue verdict = report.value(QLatin1String("verdict"));
    const auto code = static_cast<std::uint32_t>(verdict[QLatin1String("code")].toInt());
    const QString name = resultName(code);
    if (verdict[QLatin1String("name")].toString() != name)
        return QStringLiteral("verdict/name is not '%1', which verdict/code %2 stands for").arg(name).arg(code);
    if (report.value(QLatin1String("stopped")).toBool() && code != ostra::result::notCompleted)
        return QStringLiteral("verdict/code is %1, of a run that was stopped").arg(code);
    if (code != ostra::result::passed && code != ostra::result::failed)
        return {};
    const QJsonValue moduleCode = report.value(QLatin1String("moduleCode"));
    if (!moduleCode.isUndefined() && (moduleCode.isNull() || moduleCode.toDouble() != code))
        return QStringLiteral("verdict/code is %1, which moduleCode does not say").arg(code);
    if (code == ostra::result::passed && hasError(report))
        return QStringLiteral("verdict/code is a pass, which messages deny");
    return {};
}

const QJsonObject &schema()
{
    static const QJsonObject parsed = [] {
        const std::string_view text = reportSchemaText();
        return QJsonDocument::fromJson(QByteArray(text.data(), static_cast<qsizetype>(text.size()))).object();
    }();
    return parsed;
}

} // namespace

QString faultOf(const QJsonObject &report)
{
    for (const QString &fault : {faultBelow(report, schema(), {}), missingIn(report)}) {
        if (!fault.isEmpty())
            return fault;
    }
    const QString moment = impossibleMomentIn(report);
    return moment.isEmpty() ? contradictionIn(report) : moment;
}

} // namespace host

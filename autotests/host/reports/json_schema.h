// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

/// Where `value` contradicts a JSON Schema, one line each; empty when it is valid. Knows "type", "const", "enum", "minimum",
/// "maximum", "pattern", "items", "properties", "required" and a false "additionalProperties", and complains about any other
/// keyword that is no annotation, so that a schema cannot demand what nobody checks.
QStringList schemaErrors(const QJsonValue &value, const QJsonObject &schema, const QString &place = QStringLiteral("report"));

/// docs/report.schema.json; empty where it cannot be read.
QJsonObject publishedSchema();

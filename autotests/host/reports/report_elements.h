// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"
#include "host/reports/report_formats.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QXmlStreamAttributes>

/// An element of a document, with the text directly in it.
struct Element {
    QString name;
    QXmlStreamAttributes attributes;
    QString text;

    QString attribute(const char *key) const { return attributes.value(QLatin1String(key)).toString(); }
};

/// All elements in the order of their beginnings; none when the document is not well-formed.
QList<Element> elementsOf(const QByteArray &bytes);
QList<Element> named(const QList<Element> &elements, const char *name);

/// The record as a report whose texts are translated into their keys within corner brackets.
QJsonObject reportOf(const host::RunRecord &record);
QByteArray html(const host::RunRecord &record);
QByteArray junit(const host::RunRecord &record);

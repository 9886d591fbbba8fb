// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

/// Keys that a piece of source text asks a translation for in `context`, written as literals in the call: by Qt's own names,
/// and for "HOST" also by `hostText`.
QSet<QString> keysInCalls(const QString &source, const QString &context);

/// Literals that constants are declared as, whatever they look like.
QSet<QString> declaredLiterals(const QString &source);

/// Literals that look like a key: upper-case words of at least four characters in all, or a name that begins with "kTk".
QSet<QString> keyLikeLiterals(const QString &source);

/// Contents of the sources and forms in `folder` of the project and below, by path; of the one file if it names a file.
QMap<QString, QString> sourcesIn(const QString &folder);

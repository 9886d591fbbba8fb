// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

struct Translation {
    QString text;
    QString state; ///< empty when finished, else "unfinished", "vanished" or "obsolete"
};

/// A file in the format of Qt Linguist.
struct TranslationFile {
    QString errorText; ///< empty when the file could be read to its end
    QString language;
    QStringList contexts;
    QStringList repeatedKeys;
    QMap<QString, Translation> translations; ///< by key

    QString text(const QString &key) const { return translations.value(key).text; }
};

/// `part` is "audio" or "host", `code` a language such as "de_DE".
TranslationFile readTranslationFile(const QString &part, const QString &code);

/// "AUDIO" for the part "audio", "HOST" for "host".
QString contextOf(const QString &part);

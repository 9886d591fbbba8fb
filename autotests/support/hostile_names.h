// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTextDocument>

#include <array>
#include <utility>

/// Names that a driver or a user may give a device.
namespace hostile_names {

struct Name {
    const char *row;
    QString text;
};

inline std::array<Name, 10> all()
{
    return {{{"ampersand", QStringLiteral("A&B")},
             {"tags", QStringLiteral("<b>x</b>")},
             {"tags and an ampersand", QStringLiteral("A&B <i>1 < 2</i>")},
             {"an escape", QStringLiteral("&lt;b&gt; &amp;")},
             {"empty", QString()},
             {"six hundred characters", QString(600, u'W')},
             {"beyond ASCII", QStringLiteral("Lautsprecher \u00fc \u30b9\u30d4\u30fc\u30ab\u30fc")},
             {"right to left", QStringLiteral("\u05e8\u05de\u05e7\u05d5\u05dc 5.1 (\u0633\u0645\u0627\u0639\u0629)")},
             {"placeholders", QStringLiteral("%1 %2 %L1 %n %s")},
             {"quotes and braces", QStringLiteral("\"'{}\\/;:#%")}}};
}

/// What a tool tip or a label that chooses the format itself shows of `text`.
inline QString shownByItself(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

} // namespace hostile_names

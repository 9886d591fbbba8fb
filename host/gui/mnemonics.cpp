// SPDX-License-Identifier: Apache-2.0
#include "host/gui/mnemonics.h"

#include <QChar>

namespace host {

namespace {

bool isFree(QChar letter, const QString &used)
{
    const QChar upper = letter.toUpper();
    return upper >= u'A' && upper <= u'Z' && !used.contains(upper);
}

// Letters that begin a word are easier to see than those within.
qsizetype bestPosition(const QString &text, const QString &used)
{
    qsizetype within = -1;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!isFree(text[index], used))
            continue;
        if (index == 0 || !text[index - 1].isLetterOrNumber())
            return index;
        if (within < 0)
            within = index;
    }
    return within;
}

QString withAppended(const QString &text, QString &used)
{
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        if (used.contains(QChar(letter)))
            continue;
        used += QChar(letter);
        return text + QStringLiteral("(&%1)").arg(QChar(letter));
    }
    return text;
}

QString withMnemonic(QString text, QString &used)
{
    text.replace(u'&', QStringLiteral("&&"));
    const qsizetype position = bestPosition(text, used);
    if (position < 0)
        return withAppended(text, used);
    used += text[position].toUpper();
    return text.insert(position, u'&');
}

} // namespace

QStringList withMnemonics(const QStringList &texts)
{
    QStringList marked;
    QString used;
    for (const QString &text : texts)
        marked.append(withMnemonic(text, used));
    return marked;
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "utils/style_colors.h"

#include "utils/style_rules.h"

#include <QColor>
#include <QStringList>

#include <algorithm>

namespace ostra::utils {

namespace {

bool isWordCharacter(QChar unit) { return unit.isLetterOrNumber() || unit == u'_' || unit == u'-' || unit == u'#'; }

// Behind the word or function call that begins at `at`.
qsizetype endOfWord(QStringView text, qsizetype at)
{
    while (at < text.size() && isWordCharacter(text[at]))
        ++at;
    if (at == text.size() || text[at] != u'(')
        return at;
    qsizetype depth = 0;
    for (; at < text.size(); ++at) {
        depth += text[at] == u'(' ? 1 : 0;
        depth -= text[at] == u')' ? 1 : 0;
        if (depth == 0)
            return at + 1;
    }
    return at;
}

// rgba(0, 0, 0, 0) and the like.
bool isInvisible(QStringView arguments)
{
    const auto parts = arguments.chopped(1).split(u',');
    const QStringView alpha = parts.last().trimmed();
    return parts.size() == 4 && (alpha == u"0" || alpha == u"0%" || alpha == u"0.0");
}

bool isColorFunction(QStringView name)
{
    static const QStringList names{QStringLiteral("rgb"),
                                   QStringLiteral("rgba"),
                                   QStringLiteral("hsl"),
                                   QStringLiteral("hsla"),
                                   QStringLiteral("hsv"),
                                   QStringLiteral("hsva"),
                                   QStringLiteral("palette"),
                                   QStringLiteral("qlineargradient"),
                                   QStringLiteral("qradialgradient"),
                                   QStringLiteral("qconicalgradient")};
    return names.contains(name, Qt::CaseInsensitive);
}

bool isColor(QStringView word)
{
    const qsizetype bracket = word.indexOf(u'(');
    if (bracket >= 0)
        return isColorFunction(word.first(bracket)) && !isInvisible(word.sliced(bracket + 1));
    if (word.startsWith(u'#'))
        return true;
    // Every name of a colour is a word of letters; Qt's list is long, and most words are lengths.
    const bool isWord = !word.isEmpty() && std::all_of(word.begin(), word.end(), [](QChar unit) { return unit.isLetter(); });
    return isWord && word.compare(u"transparent", Qt::CaseInsensitive) != 0 && QColor::isValidColor(word.toString());
}

} // namespace

QString withColor(const QString &value, const QString &color)
{
    QString result;
    for (qsizetype at = 0; at < value.size();) {
        const qsizetype opaque = endOfOpaque(value, at);
        const qsizetype end = opaque > at ? opaque : qMax(endOfWord(value, at), at + 1);
        const QStringView word = QStringView(value).sliced(at, end - at);
        const bool isReplaced = opaque == at && isColor(word);
        result += isReplaced ? QStringView(color) : word;
        // A word that followed the bracket of a function would become a part of the colour.
        if (isReplaced && end < value.size() && isWordCharacter(value[end]) && !color.isEmpty())
            result += u' ';
        at = end;
    }
    return result;
}

bool hasColor(const QString &value) { return withColor(value, QString()) != value; }

} // namespace ostra::utils

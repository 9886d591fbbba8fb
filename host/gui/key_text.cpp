// SPDX-License-Identifier: Apache-2.0
#include "host/gui/key_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace host {

namespace {

std::optional<QString> lookUp(const QString &key)
{
    const QByteArray bytes = key.toUtf8();
    for (const char *context : {"AUDIO", "HOST"}) {
        const QString text = QCoreApplication::translate(context, bytes.constData());
        if (text != key)
            return text;
    }
    return std::nullopt;
}

bool isShapedAsKey(const QString &text)
{
    return text.contains(u'_') && std::all_of(text.begin(), text.end(), [](QChar letter) {
               return letter.unicode() < 0x80 && !letter.isLower() && !letter.isSpace();
           });
}

QString readable(const QString &text)
{
    if (!isShapedAsKey(text))
        return text;
    const QString words = text.toLower().replace(u'_', u' ').simplified();
    return words.left(1).toUpper() + words.mid(1);
}

// Looks the text up; where it is no key, its parts between the separator, by the function for those.
template <typename ForPart>
QString joined(const QString &text, const QString &separator, const ForPart &forPart)
{
    if (const auto whole = lookUp(text))
        return *whole;
    QStringList parts = text.split(separator);
    std::transform(parts.begin(), parts.end(), parts.begin(), forPart);
    return parts.join(separator);
}

QString shownList(const QString &text)
{
    return joined(text, QStringLiteral(", "), [](const QString &part) { return lookUp(part).value_or(readable(part)); });
}

QString shownSentence(const QString &text) { return joined(text, QStringLiteral(": "), shownList); }

} // namespace

QString hostText(const char *key)
{
    const QString text = QCoreApplication::translate("HOST", key);
    return text == QLatin1String(key) ? readable(text) : text;
}

QStringList shownSentences(const QString &keyOrComposite)
{
    QStringList sentences;
    const auto whole = lookUp(keyOrComposite);
    const QStringList parts = whole.value_or(keyOrComposite).split(u'|', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString sentence = whole ? part.trimmed() : shownSentence(part.trimmed());
        if (!sentence.isEmpty())
            sentences.append(sentence);
    }
    return sentences;
}

QString shownText(const QString &keyOrComposite) { return shownSentences(keyOrComposite).join(u' '); }

} // namespace host

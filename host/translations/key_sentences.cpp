// SPDX-License-Identifier: Apache-2.0
#include "host/translations/key_sentences.h"

#include "host/translations/translators.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>

namespace host {

namespace {

bool isShapedAsKey(const QString &text)
{
    return text.contains(u'_') && std::all_of(text.begin(), text.end(), [](QChar letter) {
               return letter.unicode() < 0x80 && !letter.isLower() && !letter.isSpace();
           });
}

// Looks the text up; where it is no key, its parts between the separator, by the function for those.
template <typename ForPart>
QString joined(const QString &text, const QString &separator, const KeyLookup &lookUp, const ForPart &forPart)
{
    if (const auto whole = lookUp(text))
        return *whole;
    QStringList parts = text.split(separator);
    std::transform(parts.begin(), parts.end(), parts.begin(), forPart);
    return parts.join(separator);
}

QString listText(const QString &text, const KeyLookup &lookUp)
{
    return joined(text, QStringLiteral(", "), lookUp,
                  [&lookUp](const QString &part) { return lookUp(part).value_or(readableKey(part)); });
}

QString sentenceText(const QString &text, const KeyLookup &lookUp)
{
    return joined(text, QStringLiteral(": "), lookUp, [&lookUp](const QString &part) { return listText(part, lookUp); });
}

struct English {
    English()
    {
        registerTranslations();
        static_cast<void>(audio.load(QStringLiteral(":/translations/audio_en_US.qm")));
        static_cast<void>(host.load(QStringLiteral(":/translations/host_en_US.qm")));
    }
    QTranslator audio;
    QTranslator host;
};

} // namespace

std::optional<QString> installedText(const QString &key)
{
    const QByteArray bytes = key.toUtf8();
    for (const char *context : {"AUDIO", "HOST"}) {
        const QString text = QCoreApplication::translate(context, bytes.constData());
        if (text != key)
            return text;
    }
    return std::nullopt;
}

std::optional<QString> englishText(const QString &key)
{
    static const English english;
    const QByteArray bytes = key.toUtf8();
    QString text = english.audio.translate("AUDIO", bytes.constData());
    if (text.isEmpty())
        text = english.host.translate("HOST", bytes.constData());
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

QString readableKey(const QString &text)
{
    if (!isShapedAsKey(text))
        return text;
    const QString words = text.toLower().replace(u'_', u' ').simplified();
    return words.left(1).toUpper() + words.mid(1);
}

QStringList keySentences(const QString &keyOrComposite, const KeyLookup &lookUp)
{
    QStringList sentences;
    const auto whole = lookUp(keyOrComposite);
    const QStringList parts = whole.value_or(keyOrComposite).split(u'|', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString sentence = whole ? part.trimmed() : sentenceText(part.trimmed(), lookUp);
        if (!sentence.isEmpty())
            sentences.append(sentence);
    }
    return sentences;
}

} // namespace host

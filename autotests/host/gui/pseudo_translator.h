// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTranslator>

/// English with two fifths more letters, as a language that needs much room has them: what is clipped then, some language may
/// clip one day. Installed above the program's own translators.
class PseudoTranslator : public QTranslator {
public:
    bool load()
    {
        return audio_.load(QStringLiteral(":/translations/audio_en_US.qm")) &&
               host_.load(QStringLiteral(":/translations/host_en_US.qm"));
    }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *comment, int count) const override
    {
        QString text = audio_.translate(context, source, comment, count);
        if (text.isEmpty())
            text = host_.translate(context, source, comment, count);
        return longer(text);
    }

    /// A word's vowels come twice, until the text is long enough; then whole syllables follow, so that it can be wrapped.
    static QString longer(const QString &text)
    {
        const qsizetype wanted = (text.size() * 7 + 4) / 5;
        QString result;
        qsizetype spare = wanted - text.size();
        for (const QChar letter : text) {
            result += letter;
            if (spare > 0 && QStringLiteral("aeiouAEIOU").contains(letter)) {
                result += letter.toLower();
                --spare;
            }
        }
        for (qsizetype index = 0; index < spare; ++index)
            result += index % 4 == 0 && spare > 2 ? u' ' : u'~';
        return result;
    }

private:
    QTranslator audio_;
    QTranslator host_;
};

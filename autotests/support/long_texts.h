// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

/// Texts as long as the longest languages have them, for the keys of the dialogs. Installed while it lives.
class LongTexts final : public QTranslator {
public:
    LongTexts() { QCoreApplication::installTranslator(this); }
    ~LongTexts() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *key, const char * /*note*/, int /*count*/) const override
    {
        return QLatin1StringView(context) == u"AUDIO" ? texts_.value(QLatin1StringView(key)) : QString();
    }

private:
    const QHash<QString, QString> texts_ = {
        {QStringLiteral("APPLICATION_NAME"), QStringLiteral("Diagnoseprogramm für Tonausgabe und Mikrofone")},
        {QStringLiteral("AUDIO_PLAYBACK_TEST"), QStringLiteral("Interaktiver Audiowiedergabetest")},
        {QStringLiteral("FIRST_SEQUENCE"), QStringLiteral("Erste Ziffernfolge wird wiedergegeben")},
        {QStringLiteral("SECOND_SEQUENCE"),
         QStringLiteral("Die erste Folge war falsch: zweite Ziffernfolge wird wiedergegeben")},
        {QStringLiteral("AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS"),
         QStringLiteral("Geben Sie die drei gesprochenen Ziffern in genau der Reihenfolge ein, in der Sie sie hören. Sie haben "
                        "zwei Versuche.")},
        {QStringLiteral("SELECT_OR_TYPE_NUMBER"),
         QStringLiteral("Klicken Sie die Ziffern an, die Sie hören, oder tippen Sie sie ein.")},
        {QStringLiteral("CLICK_FAIL_IF_NO_SOUND_WAS_HEARD"),
         QStringLiteral("Wenn Sie keinen Ton hören, klicken Sie bitte auf „Ich höre nichts“.")},
        {QStringLiteral("FAIL_BUTTON_TEXT"), QStringLiteral("Ich habe gar keinen Ton gehört")},
        {QStringLiteral("FAIL_BUTTON_TOOLTP"), QStringLiteral("Test als nicht bestanden beenden: kein Ton")},
        {QStringLiteral("BACKSPACE_BUTTON_TOOLTP"), QStringLiteral("Letzte Ziffer löschen")},
        {QStringLiteral("PLAY_THE_SEQUENCE_AGAIN"), QStringLiteral("Ziffernfolge erneut wiedergeben")},
        {QStringLiteral("CANCEL"), QStringLiteral("Abbrechen")},
        {QStringLiteral("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE"), QStringLiteral("Die Ziffernfolge war falsch")},
    };
};

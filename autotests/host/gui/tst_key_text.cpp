// SPDX-License-Identifier: Apache-2.0
#include "host/gui/key_text.h"

#include <QCoreApplication>
#include <QHash>
#include <QObject>
#include <QTest>
#include <QTranslator>

namespace {

class Dictionary final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *key, const char * /*comment*/, int /*count*/) const override
    {
        return texts.value(QByteArray(context) + '/' + key);
    }
    QHash<QByteArray, QString> texts;
};

} // namespace

class TestKeyText : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void showsEachSentence_data();
    void showsEachSentence();
    void prefersTheModulesText();
    void showsTheProgramsOwnKeys();

private:
    Dictionary dictionary_;
};

void TestKeyText::initTestCase()
{
    dictionary_.texts = {
        {"AUDIO/POSSIBLE_DEFECTIVE_COMPONENTS", QStringLiteral("Vielleicht defekt")},
        {"AUDIO/SPEAKERS", QStringLiteral("Lautsprecher")},
        {"AUDIO/MICROPHONE", QStringLiteral("Mikrofon")},
        {"AUDIO/CAMERA_MICROPHONE_MODULE", QStringLiteral("Kameramikrofon")},
        {"AUDIO/WHOLE._|KEY.", QStringLiteral("Ein Satz.|Noch einer.")},
        {"AUDIO/AN_INTERNAL_ERROR_OCCURRED._", QStringLiteral("Ein interner Fehler.")},
        {"AUDIO/PLEASE_TRY_AGAIN.", QStringLiteral("Bitte noch einmal.")},
        {"AUDIO/LOUD_KEY", QStringLiteral("SPEAKERS")},
        {"AUDIO/A: B", QStringLiteral("Ganzes")},
        {"AUDIO/RUN_TEST", QStringLiteral("Modul")},
        {"HOST/RUN_TEST", QStringLiteral("Starten")},
        {"HOST/ONLY_HOST", QStringLiteral("Nur Programm")},
    };
    QVERIFY(QCoreApplication::installTranslator(&dictionary_));
}

void TestKeyText::showsEachSentence_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("sentences");
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("a key") << QStringLiteral("SPEAKERS") << QStringList{QStringLiteral("Lautsprecher")};
    QTest::newRow("short hint") << QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS")
                                << QStringList{QStringLiteral("Vielleicht defekt: Lautsprecher")};
    QTest::newRow("long hint") << QStringLiteral(
                                      "POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE, CAMERA_MICROPHONE_MODULE, SPEAKERS")
                               << QStringList{QStringLiteral("Vielleicht defekt: Mikrofon, Kameramikrofon, Lautsprecher")};
    QTest::newRow("whole key with sentences")
        << QStringLiteral("WHOLE._|KEY.") << QStringList{QStringLiteral("Ein Satz."), QStringLiteral("Noch einer.")};
    QTest::newRow("sentences by pieces") << QStringLiteral("AN_INTERNAL_ERROR_OCCURRED._|PLEASE_TRY_AGAIN.")
                                         << QStringList{QStringLiteral("Ein interner Fehler."),
                                                        QStringLiteral("Bitte noch einmal.")};
    QTest::newRow("whole before pieces") << QStringLiteral("A: B") << QStringList{QStringLiteral("Ganzes")};
    QTest::newRow("a translation is not translated again")
        << QStringLiteral("LOUD_KEY") << QStringList{QStringLiteral("SPEAKERS")};
    QTest::newRow("unknown key") << QStringLiteral("NO_SUCH_KEY") << QStringList{QStringLiteral("No such key")};
    QTest::newRow("unknown piece") << QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: LEFT_EAR, MICROPHONE")
                                   << QStringList{QStringLiteral("Vielleicht defekt: Left ear, Mikrofon")};
    QTest::newRow("no key") << QStringLiteral("Plain, text: yes") << QStringList{QStringLiteral("Plain, text: yes")};
}

void TestKeyText::showsEachSentence()
{
    QFETCH(const QString, text);
    QTEST(host::shownSentences(text), "sentences");
    QCOMPARE(host::shownText(text), host::shownSentences(text).join(u' '));
}

void TestKeyText::prefersTheModulesText()
{
    QCOMPARE(host::shownText(QStringLiteral("RUN_TEST")), QStringLiteral("Modul"));
    QCOMPARE(host::hostText("RUN_TEST"), QStringLiteral("Starten"));
}

void TestKeyText::showsTheProgramsOwnKeys()
{
    QCOMPARE(host::shownText(QStringLiteral("ONLY_HOST")), QStringLiteral("Nur Programm"));
    QCOMPARE(host::hostText("NOT_TRANSLATED_YET"), QStringLiteral("Not translated yet"));
}

QTEST_GUILESS_MAIN(TestKeyText)
#include "tst_key_text.moc"

// SPDX-License-Identifier: Apache-2.0
#include "host/translations/translators.h"

#include "autotests/host/translations/translation_file.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

QString translated(const char *context, const char *key) { return QCoreApplication::translate(context, key); }

QString cancelText() { return translated("AUDIO", "CANCEL"); }

// Counts what tells windows to show their texts anew.
class LanguageChangeCounter : public QObject {
public:
    LanguageChangeCounter() { QCoreApplication::instance()->installEventFilter(this); }
    int count() const noexcept { return count_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count_ += event->type() == QEvent::LanguageChange ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    int count_ = 0;
};

} // namespace

class TestTranslators : public QObject {
    Q_OBJECT

private slots:
    void showsEveryTextOfALanguage_data();
    void showsEveryTextOfALanguage();
    void switchesWhileTheProgramRuns();
    void takesEnglishForAnUnknownCode_data();
    void takesEnglishForAnUnknownCode();
    void bringsTheToolkitsOwnTexts_data();
    void bringsTheToolkitsOwnTexts();
    void doesNotPileUp();
    void reportsAMissingFile_data();
    void reportsAMissingFile();
};

void TestTranslators::showsEveryTextOfALanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("pt_BR") << "pt_BR"
                           << "Cancelar";
    QTest::newRow("en_US") << "en_US"
                           << "Cancel";
    QTest::newRow("es_ES") << "es_ES"
                           << "Cancelar";
    QTest::newRow("fr_FR") << "fr_FR"
                           << "Annuler";
    QTest::newRow("it_IT") << "it_IT"
                           << "Annulla";
    QTest::newRow("de_DE") << "de_DE"
                           << "Abbrechen";
    QTest::newRow("nl_NL") << "nl_NL"
                           << "Annuleren";
    QTest::newRow("zh_CN") << "zh_CN" << u"\u53d6\u6d88"_qs;
    QTest::newRow("ja_JP") << "ja_JP" << u"\u30ad\u30e3\u30f3\u30bb\u30eb"_qs;
}

void TestTranslators::showsEveryTextOfALanguage()
{
    QFETCH(QString, code);
    QFETCH(QString, cancel);
    QVERIFY(host::installTranslators(code));
    QCOMPARE(cancelText(), cancel);
    for (const QString &part : {QStringLiteral("audio"), QStringLiteral("host")}) {
        const TranslationFile file = readTranslationFile(part, code);
        QCOMPARE(file.errorText, QString());
        const QByteArray context = contextOf(part).toUtf8();
        for (auto entry = file.translations.begin(); entry != file.translations.end(); ++entry)
            QCOMPARE(translated(context.constData(), entry.key().toUtf8().constData()), entry.value().text);
    }
}

void TestTranslators::switchesWhileTheProgramRuns()
{
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    const LanguageChangeCounter changes;
    QVERIFY(host::installTranslators(QStringLiteral("fr_FR")));
    QVERIFY(changes.count() > 0);
    QCOMPARE(cancelText(), QStringLiteral("Annuler"));
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));
}

void TestTranslators::takesEnglishForAnUnknownCode_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("none") << "";
    QTest::newRow("language without a translation") << "sv_SE";
    QTest::newRow("without a country") << "de";
    QTest::newRow("another country") << "de_AT";
    QTest::newRow("a path") << "../translations/de_DE";
}

void TestTranslators::takesEnglishForAnUnknownCode()
{
    QFETCH(QString, code);
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    QVERIFY(host::installTranslators(code));
    QCOMPARE(cancelText(), QStringLiteral("Cancel"));
}

void TestTranslators::bringsTheToolkitsOwnTexts_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("by language") << "de_DE"
                                 << "Abbrechen";
    QTest::newRow("by language and country") << "pt_BR"
                                             << "Cancelar";
    QTest::newRow("English") << "en_US"
                             << "Cancel";
}

void TestTranslators::bringsTheToolkitsOwnTexts()
{
    QFETCH(QString, code);
    QFETCH(QString, cancel);
    if (!host::hasToolkitTexts(code)) // as on Windows, where they lie beside the programs
        QSKIP("Qt's own texts are not installed");
    QVERIFY(host::installTranslators(QStringLiteral("fr_FR")));
    QVERIFY(host::installTranslators(code));
    QCOMPARE(translated("QPlatformTheme", "Cancel"), cancel);
}

void TestTranslators::doesNotPileUp()
{
    for (const QLatin1StringView code : host::translationCodes)
        QVERIFY(host::installTranslators(code));
    QCOMPARE(QCoreApplication::instance()->findChildren<QTranslator *>().size(), 3); // the module's, the host's, the toolkit's
}

void TestTranslators::reportsAMissingFile_data()
{
    QTest::addColumn<QString>("present");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("both missing") << ""
                                  << "CANCEL";
    QTest::newRow("the host's missing") << "audio_de_DE.qm"
                                        << "Abbrechen";
    QTest::newRow("the module's missing") << "host_de_DE.qm"
                                          << "CANCEL";
}

void TestTranslators::reportsAMissingFile()
{
    QFETCH(QString, present);
    QFETCH(QString, cancel);
    QVERIFY(host::installTranslators(QStringLiteral("fr_FR"))); // nothing of it may stay in force
    const QTemporaryDir folder;
    if (!present.isEmpty())
        QVERIFY(QFile::copy(QLatin1String(":/translations/") + present, folder.filePath(present)));
    QVERIFY(!host::installTranslators(QStringLiteral("de_DE"), folder.path()));
    QCOMPARE(cancelText(), cancel);
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));
}

QTEST_GUILESS_MAIN(TestTranslators)
#include "tst_translators.moc"

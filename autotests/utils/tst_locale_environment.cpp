// SPDX-License-Identifier: Apache-2.0
#include "utils/language.h"
#include "utils/system_language.h"

#include <QByteArray>
#include <QDir>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <cstdint>
#include <string>

using namespace ostra::utils;
using namespace std::string_literals;

/// Linux: the system's language is the locale of messages, named by the environment.
class TestLocaleEnvironment : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void localeEnvironmentDecides_data();
    void localeEnvironmentDecides();
    void unsetVariablesAreNoLanguage();
    void overlongLocaleFails();

private:
    static void putEnvironment(const QByteArray &all, const QByteArray &messages, const QByteArray &lang);

    QTemporaryDir folder_;
    QString startFolder_;
};

void TestLocaleEnvironment::initTestCase()
{
    startFolder_ = QDir::currentPath();
    QVERIFY(folder_.isValid());
    QVERIFY(QDir::setCurrent(folder_.path()));
}

void TestLocaleEnvironment::cleanupTestCase() { QVERIFY(QDir::setCurrent(startFolder_)); }

void TestLocaleEnvironment::putEnvironment(const QByteArray &all, const QByteArray &messages, const QByteArray &lang)
{
    qputenv("LC_ALL", all);
    qputenv("LC_MESSAGES", messages);
    qputenv("LANG", lang);
}

void TestLocaleEnvironment::localeEnvironmentDecides_data()
{
    QTest::addColumn<QByteArray>("all");
    QTest::addColumn<QByteArray>("messages");
    QTest::addColumn<QByteArray>("lang");
    QTest::addColumn<std::string>("language");
    const auto add = [](const char *row, QByteArray all, QByteArray messages, QByteArray lang, std::string language) {
        QTest::newRow(row) << all << messages << lang << language;
    };
    const char *const kept = "es_ES";
    add("LC_ALL first", "de_DE.UTF-8", "fr_FR.UTF-8", "it_IT.UTF-8", "de_DE");
    add("LC_MESSAGES next", "", "fr_FR.UTF-8", "it_IT.UTF-8", "fr_FR");
    add("LANG last", "", "", "it_IT.UTF-8", "it_IT");
    add("none set", "", "", "", kept);
    add("modifier", "", "", "de_DE@euro", "de_DE");
    add("charset and modifier", "", "", "de_DE.ISO-8859-15@euro", "de_DE");
    add("modifier before a dot", "", "", "de_DE@a.b", "de_DE");
    add("C", "C", "", "de_DE", kept);
    add("C with charset", "", "C.UTF-8", "de_DE", kept);
    add("POSIX", "", "", "POSIX", kept);
    add("charset alone", "", "", ".UTF-8", kept);
    add("British English", "", "", "en_GB.UTF-8", "en_US");
    add("bare language", "", "", "de", "en_US");
    add("hyphen", "", "", "de-DE.UTF-8", "de_DE");
    add("malformed text", "", "", "de_\xFF", "en_US");
}

void TestLocaleEnvironment::localeEnvironmentDecides()
{
    putEnvironment("", "", "es_ES");
    initLanguage();
    QCOMPARE(currentLanguage(), "es_ES"s);
    QFETCH(QByteArray, all);
    QFETCH(QByteArray, messages);
    QFETCH(QByteArray, lang);
    putEnvironment(all, messages, lang);
    initLanguage();
    QTEST(currentLanguage(), "language");
}

void TestLocaleEnvironment::unsetVariablesAreNoLanguage()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        qunsetenv(variable);
    LanguageList list{};
    std::uint32_t languageCount = 1;
    QVERIFY(preferredUiLanguages(languageCount, list));
    QCOMPARE(languageCount, std::uint32_t{0});
}

void TestLocaleEnvironment::overlongLocaleFails()
{
    LanguageList list{};
    std::uint32_t languageCount = 0;
    qputenv("LC_ALL", QByteArray(static_cast<qsizetype>(languageListUnitCount) - 2, 'a'));
    QVERIFY(preferredUiLanguages(languageCount, list));
    QCOMPARE(languageCount, std::uint32_t{1});
    QCOMPARE(list.back(), char16_t{0});
    qputenv("LC_ALL", QByteArray(static_cast<qsizetype>(languageListUnitCount) - 1, 'a'));
    QVERIFY(!preferredUiLanguages(languageCount, list));
}

QTEST_GUILESS_MAIN(TestLocaleEnvironment)
#include "tst_locale_environment.moc"

// SPDX-License-Identifier: Apache-2.0
#include "utils/language.h"
#include "utils/system_language.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

using namespace ostra::utils;
using namespace std::string_literals;

namespace {

/// What the replaced system answers; no text: the call fails.
std::optional<std::u16string> systemList;
std::uint32_t systemLanguageCount = 0;
int systemCallCount = 0;

bool fakeLanguages(std::uint32_t &languageCount, LanguageList &list)
{
    ++systemCallCount;
    if (!systemList)
        return false;
    languageCount = systemLanguageCount;
    std::copy(systemList->begin(), systemList->end(), list.begin());
    return true;
}

void systemReports(std::u16string_view names, std::uint32_t count = 1)
{
    systemList = names;
    systemLanguageCount = count;
}

void systemFails() { systemList.reset(); }

} // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void isEmptyBeforeTheFirstCall(); // stays first: the values live as long as the process
    void takesTheConfiguredLanguage_data();
    void takesTheConfiguredLanguage();
    void everyAliasSelectsItsCode_data();
    void everyAliasSelectsItsCode();
    void sectionAndKeyAreFoundInAnyLetterCase();
    void configuredLanguageNeedsNoSystemCall();
    void leavesTheChoiceToTheSystem_data();
    void leavesTheChoiceToTheSystem();
    void takesWhatStandsBeforeARejectedLine();
    void ignoresWhatStandsBehindARejectedLine();
    void takesTheSystemLanguage_data();
    void takesTheSystemLanguage();
    void missingFileLeavesTheChoiceToTheSystem();
    void directoryLeavesTheChoiceToTheSystem();
    void failingSystemKeepsTheLanguageInForce();
    void failingSystemWithoutAKnownLanguageGivesEnglish();
    void systemWithoutLanguagesKeepsTheLanguageInForce();
    void readsTheFileAfreshAtEveryCall();
    void configuredLanguageOutlivesTheFile();
    void hostileValuesSelectNothing_data();
    void hostileValuesSelectNothing();
    void realSourceReportsATerminatedList();

private:
    static void write(const std::string &content);
    static void configure(const std::string &value);

    QString startFolder_;
    std::unique_ptr<QTemporaryDir> folder_;
};

void TestLanguage::initTestCase() { startFolder_ = QDir::currentPath(); }

void TestLanguage::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    QVERIFY(QDir::setCurrent(folder_->path()));
    setSystemLanguageSource(fakeLanguages);
    systemReports(u"it-IT\0\0"s);
    systemCallCount = 0;
}

void TestLanguage::cleanup()
{
    setSystemLanguageSource(nullptr);
    QVERIFY(QDir::setCurrent(startFolder_));
    folder_.reset();
}

void TestLanguage::cleanupTestCase() { QCOMPARE(QDir::currentPath(), startFolder_); }

void TestLanguage::write(const std::string &content)
{
    QFile file(QStringLiteral("config.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content.data(), static_cast<qint64>(content.size())), static_cast<qint64>(content.size()));
}

void TestLanguage::configure(const std::string &value) { write("[LANGUAGE]\nDEFAULT_LANGUAGE=" + value + "\n"); }

void TestLanguage::isEmptyBeforeTheFirstCall()
{
    QCOMPARE(currentLanguage(), std::string());
    QCOMPARE(configuredLanguage(), std::string());
}

void TestLanguage::takesTheConfiguredLanguage_data()
{
    QTest::addColumn<std::string>("value");
    QTest::addColumn<std::string>("code");
    QTest::newRow("word") << "french"s
                          << "fr_FR"s;
    QTest::newRow("word in mixed case") << "FrEnCh"s
                                        << "fr_FR"s;
    QTest::newRow("code in upper case") << "PT_BR"s
                                        << "pt_BR"s;
    QTest::newRow("blanks after the equals sign") << " \tgerman"s
                                                  << "de_DE"s;
    QTest::newRow("CRLF file") << "german\r"s
                               << "de_DE"s;
    QTest::newRow("comment right behind") << "dutch;my choice"s
                                          << "nl_NL"s;
}

void TestLanguage::takesTheConfiguredLanguage()
{
    QFETCH(std::string, value);
    configure(value);
    initLanguage();
    QTEST(currentLanguage(), "code");
    QTEST(configuredLanguage(), "code");
}

void TestLanguage::everyAliasSelectsItsCode_data()
{
    QTest::addColumn<std::string>("name");
    QTest::addColumn<std::string>("code");
    const std::map<std::string, std::string> names = {
        {"pt_br", "pt_BR"},  {"en_us", "en_US"},    {"english", "en_US"}, {"es_es", "es_ES"},   {"spanish", "es_ES"},
        {"fr_fr", "fr_FR"},  {"french", "fr_FR"},   {"it_it", "it_IT"},   {"italian", "it_IT"}, {"de_de", "de_DE"},
        {"german", "de_DE"}, {"nl_nl", "nl_NL"},    {"dutch", "nl_NL"},   {"zh_cn", "zh_CN"},   {"chinese", "zh_CN"},
        {"ja_jp", "ja_JP"},  {"japanese", "ja_JP"},
    };
    QCOMPARE(names.size(), languageAliases.size());
    for (const auto &[name, code] : names)
        QTest::newRow(name.c_str()) << name << code;
}

void TestLanguage::everyAliasSelectsItsCode()
{
    QFETCH(std::string, name);
    systemFails();
    configure(name);
    initLanguage();
    QTEST(currentLanguage(), "code");
}

void TestLanguage::sectionAndKeyAreFoundInAnyLetterCase()
{
    write("[Language]\nDefault_Language = French\n");
    initLanguage();
    QCOMPARE(currentLanguage(), "fr_FR"s);
}

void TestLanguage::configuredLanguageNeedsNoSystemCall()
{
    configure("english");
    initLanguage();
    QCOMPARE(systemCallCount, 0);
}

void TestLanguage::leavesTheChoiceToTheSystem_data()
{
    QTest::addColumn<std::string>("content");
    QTest::newRow("empty file") << ""s;
    QTest::newRow("trailing blank before a comment") << "[LANGUAGE]\nDEFAULT_LANGUAGE = english ;my choice\n"s;
    QTest::newRow("hyphen instead of underscore") << "[LANGUAGE]\nDEFAULT_LANGUAGE=pt-BR\n"s;
    QTest::newRow("no word for Portuguese") << "[LANGUAGE]\nDEFAULT_LANGUAGE=portuguese\n"s;
    QTest::newRow("unknown language") << "[LANGUAGE]\nDEFAULT_LANGUAGE=klingon\n"s;
    QTest::newRow("key before the header") << "DEFAULT_LANGUAGE=french\n[LANGUAGE]\n"s;
    QTest::newRow("key in another section") << "[GLOBAL]\nDEFAULT_LANGUAGE=french\n"s;
    QTest::newRow("blanks in the section name") << "[ LANGUAGE ]\nDEFAULT_LANGUAGE=french\n"s;
    QTest::newRow("header never closed") << "[LANGUAGE\nDEFAULT_LANGUAGE=french\n"s;
    QTest::newRow("NUL behind the name") << "[LANGUAGE]\nDEFAULT_LANGUAGE=french\0\n"s;
    QTest::newRow("byte order mark inside the value") << "[LANGUAGE]\nDEFAULT_LANGUAGE=\xEF\xBB\xBF"
                                                         "french\n"s;
}

void TestLanguage::leavesTheChoiceToTheSystem()
{
    QFETCH(std::string, content);
    write(content);
    initLanguage();
    QCOMPARE(currentLanguage(), "it_IT"s);
    QCOMPARE(systemCallCount, 1);
}

void TestLanguage::takesWhatStandsBeforeARejectedLine()
{
    write("[LANGUAGE]\nDEFAULT_LANGUAGE=japanese\nplain words\n");
    initLanguage();
    QCOMPARE(currentLanguage(), "ja_JP"s);
    write("[LANGUAGE]\nDEFAULT_LANGUAGE=dutch\nDEFAULT_LANGUAGE=french\n");
    initLanguage();
    QCOMPARE(currentLanguage(), "nl_NL"s);
    write("[LANGUAGE]\nDEFAULT_LANGUAGE=french\n[LANGUAGE]\n");
    initLanguage();
    QCOMPARE(currentLanguage(), "fr_FR"s);
}

void TestLanguage::ignoresWhatStandsBehindARejectedLine()
{
    write("plain words\n[LANGUAGE]\nDEFAULT_LANGUAGE=japanese\n");
    initLanguage();
    QCOMPARE(currentLanguage(), "it_IT"s);
}

void TestLanguage::takesTheSystemLanguage_data()
{
    QTest::addColumn<std::u16string>("list");
    QTest::addColumn<std::uint32_t>("languageCount");
    QTest::addColumn<std::string>("language");
    const auto add = [](const char *row, std::u16string_view list, const char *language, std::uint32_t count = 1) {
        QTest::newRow(row) << std::u16string(list) << count << std::string(language);
    };
    add("German", u"de-DE\0\0"s, "de_DE");
    add("American English", u"en-US\0\0"s, "en_US");
    add("British English is unknown", u"en-GB\0\0"s, "en_US");
    add("first of several", u"fr-FR\0de-DE\0\0"s, "fr_FR", 2);
    add("unknown first of several", u"en-GB\0de-DE\0\0"s, "en_US", 2);
    add("lower case is kept", u"pt-br\0\0"s, "pt_br");
    add("upper case is kept", u"PT-BR\0\0"s, "PT_BR");
    add("word is kept", u"German\0\0"s, "German");
    add("three parts", u"zh-Hans-CN\0\0"s, "en_US");
    add("bare language", u"de\0\0"s, "en_US");
    add("empty name", u"\0\0"s, "en_US");
    add("non-ASCII name", u"fran\u00E7ais\0\0"s, "en_US");
    add("underscore already", u"ja_JP\0\0"s, "ja_JP");
}

void TestLanguage::takesTheSystemLanguage()
{
    QFETCH(std::u16string, list);
    QFETCH(std::uint32_t, languageCount);
    configure("chinese");
    initLanguage();
    QVERIFY(QFile::remove(QStringLiteral("config.ini")));
    systemReports(list, languageCount);
    initLanguage();
    QTEST(currentLanguage(), "language");
    QCOMPARE(configuredLanguage(), "zh_CN"s);
}

void TestLanguage::missingFileLeavesTheChoiceToTheSystem()
{
    initLanguage();
    QCOMPARE(currentLanguage(), "it_IT"s);
    QCOMPARE(systemCallCount, 1);
}

void TestLanguage::directoryLeavesTheChoiceToTheSystem()
{
    QVERIFY(QDir().mkdir(QStringLiteral("config.ini")));
    initLanguage();
    QCOMPARE(currentLanguage(), "it_IT"s);
}

void TestLanguage::failingSystemKeepsTheLanguageInForce()
{
    configure("french");
    initLanguage();
    QVERIFY(QFile::remove(QStringLiteral("config.ini")));
    systemFails();
    initLanguage();
    QCOMPARE(currentLanguage(), "fr_FR"s);
    systemReports(u"pt-br\0\0"s);
    initLanguage();
    systemFails();
    initLanguage();
    QCOMPARE(currentLanguage(), "pt_br"s);
}

void TestLanguage::failingSystemWithoutAKnownLanguageGivesEnglish()
{
    systemReports(u"en-GB\0\0"s);
    initLanguage();
    systemFails();
    initLanguage();
    QCOMPARE(currentLanguage(), "en_US"s);
}

void TestLanguage::systemWithoutLanguagesKeepsTheLanguageInForce()
{
    configure("spanish");
    initLanguage();
    QVERIFY(QFile::remove(QStringLiteral("config.ini")));
    systemReports(u"de-DE\0\0"s, 0);
    initLanguage();
    QCOMPARE(currentLanguage(), "es_ES"s);
}

void TestLanguage::readsTheFileAfreshAtEveryCall()
{
    const std::map<std::string, std::string> choices = {{"french", "fr_FR"}, {"german", "de_DE"}, {"none", "it_IT"}};
    for (const auto &[value, code] : choices) {
        configure(value);
        initLanguage();
        QCOMPARE(currentLanguage(), code);
    }
}

void TestLanguage::configuredLanguageOutlivesTheFile()
{
    configure("german");
    initLanguage();
    configure("unknown");
    initLanguage();
    QCOMPARE(currentLanguage(), "it_IT"s);
    QCOMPARE(configuredLanguage(), "de_DE"s);
}

void TestLanguage::hostileValuesSelectNothing_data()
{
    QTest::addColumn<std::string>("value");
    QTest::newRow("path") << "../../x"s;
    QTest::newRow("path behind a language") << "french/../x"s;
    QTest::newRow("NUL before a language") << "\0french"s;
    QTest::newRow("1 MiB") << std::string(1024 * 1024, 'f');
    QTest::newRow("malformed UTF-8") << "french\xFF"s;
    QTest::newRow("format") << "%s%n"s;
}

void TestLanguage::hostileValuesSelectNothing()
{
    QFETCH(std::string, value);
    systemReports(u"../x\0\0"s);
    configure(value);
    initLanguage();
    QCOMPARE(currentLanguage(), "en_US"s);
}

void TestLanguage::realSourceReportsATerminatedList()
{
    setSystemLanguageSource(nullptr);
    LanguageList list{};
    std::uint32_t languageCount = 0;
    const bool succeeded = systemLanguages(languageCount, list);
    QCOMPARE(list.back(), char16_t{0});
    QCOMPARE(list[0] != 0, succeeded && languageCount > 0);
    initLanguage();
    const std::string language = currentLanguage();
    QVERIFY(language.find('-') == std::string::npos);
    QVERIFY(!language.empty());
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"

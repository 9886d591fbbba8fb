// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/translations/translation_file.h"
#include "host/translations/translators.h"

#include <QDir>
#include <QObject>
#include <QRegularExpression>
#include <QTest>

#include <array>
#include <utility>

namespace {

struct LengthLimit {
    const char *key;
    int characterCount;
};

// What the fixed sizes of the dialogs have room for.
constexpr std::array<LengthLimit, 8> lengthLimits = {{
    {"AUDIO_PLAYBACK_TEST", 30},
    {"MICROPHONE_INTERACTIVE_TEST", 30},
    {"FIRST_SEQUENCE", 25},
    {"SECOND_SEQUENCE", 25},
    {"AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS", 110},
    {"SELECT_OR_TYPE_NUMBER", 60},
    {"CLICK_FAIL_IF_NO_SOUND_WAS_HEARD", 60},
    {"FAIL_BUTTON_TEXT", 26},
}};

// Texts that tell to press a button, and the button.
constexpr std::array<std::pair<const char *, const char *>, 3> buttonMentions = {{
    {"CLICK_FAIL_IF_NO_SOUND_WAS_HEARD", "FAIL_BUTTON_TEXT"},
    {"PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE", "RECORD"},
    {"PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO", "PLAY"},
}};

bool hasMatch(const char *expression, const QString &text)
{
    return QRegularExpression(QLatin1String(expression), QRegularExpression::UseUnicodePropertiesOption).match(text).hasMatch();
}

// By ranges: the script properties also match punctuation that the languages share.
bool hasKana(const QString &text) { return hasMatch(R"([\x{3041}-\x{30FF}])", text); }

bool hasEastAsianLetter(const QString &text) { return hasKana(text) || hasMatch(R"([\x{4E00}-\x{9FFF}])", text); }

bool hasEastAsianPunctuation(const QString &text) { return hasMatch(R"([\x{3000}-\x{303F}\x{FF00}-\x{FFEF}])", text); }

bool isWrittenEastAsian(const QString &code) { return code == QLatin1String("zh_CN") || code == QLatin1String("ja_JP"); }

// Product names, units and placeholders alone read the same everywhere.
bool hasWords(const QString &text)
{
    QString rest = text;
    rest.remove(
        QRegularExpression(QStringLiteral(R"(Tamrex Diagnostics|\b(?:OK|Hz|kHz|dB|dBFS|ms|s|JSON|HTML|CSV|ID)\b|%L?\d+|%n)")));
    return hasMatch(R"(\p{L})", rest);
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral(R"(%L?\d+|%n|\|)"));
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

} // namespace

class TestTranslationFiles : public QObject {
    Q_OBJECT

private slots:
    void init();
    void areThoseOfTheKnownLanguages();
    void isWellFormed_data() { addFiles(); }
    void isWellFormed();
    void isFinished_data() { addFiles(); }
    void isFinished();
    void hasTheKeysOfEnglish_data() { addFiles(); }
    void hasTheKeysOfEnglish();
    void keepsThePlaceholders_data() { addFiles(); }
    void keepsThePlaceholders();
    void isWrittenInTheScriptOfItsLanguage_data() { addFiles(); }
    void isWrittenInTheScriptOfItsLanguage();
    void hasNoStrayBlanks_data() { addFiles(); }
    void hasNoStrayBlanks();
    void fitsIntoTheDialogs_data() { addFiles({QStringLiteral("audio")}); }
    void fitsIntoTheDialogs();
    void namesButtonsByTheirLabels_data() { addFiles({QStringLiteral("audio")}); }
    void namesButtonsByTheirLabels();
    void translatesSentencesAloneAsTogether_data() { addFiles({QStringLiteral("audio")}); }
    void translatesSentencesAloneAsTogether();
    void tellsTheLoudnessInFigures_data() { addFiles({QStringLiteral("audio")}); }
    void tellsTheLoudnessInFigures();

private:
    static void addFiles(const QStringList &parts = {QStringLiteral("audio"), QStringLiteral("host")});

    // The file of the current data row, and its keys that a test finds fault with.
    QString part_;
    QString code_;
    TranslationFile file_;
    QStringList faulty_;
};

#define VERIFY_NO_FAULT() QVERIFY2(faulty_.isEmpty(), qPrintable(faulty_.join(QLatin1Char('\n'))))

void TestTranslationFiles::addFiles(const QStringList &parts)
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("code");
    for (const QString &part : parts)
        for (const QLatin1StringView code : host::translationCodes)
            QTest::addRow("%s_%s", qPrintable(part), code.data()) << part << QString(code);
}

void TestTranslationFiles::init()
{
    if (QTest::currentDataTag() == nullptr)
        return;
    QFETCH(QString, part);
    QFETCH(QString, code);
    part_ = part;
    code_ = code;
    file_ = readTranslationFile(part, code);
    faulty_.clear();
    QCOMPARE(file_.errorText, QString());
}

void TestTranslationFiles::areThoseOfTheKnownLanguages()
{
    QStringList expected;
    for (const QLatin1StringView code : host::translationCodes)
        expected << QStringLiteral("audio_%1.ts").arg(code) << QStringLiteral("host_%1.ts").arg(code);
    expected.sort();
    const QDir folder(QStringLiteral(SOURCE_FOLDER "/host/translations"));
    QCOMPARE(folder.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name), expected);
}

void TestTranslationFiles::isWellFormed()
{
    QCOMPARE(file_.language, code_);
    QCOMPARE(file_.contexts, QStringList(contextOf(part_)));
    QCOMPARE(file_.repeatedKeys, QStringList());
    QVERIFY(!file_.translations.isEmpty());
}

void TestTranslationFiles::isFinished()
{
    for (auto entry = file_.translations.begin(); entry != file_.translations.end(); ++entry) {
        const Translation &translation = entry.value();
        if (!translation.state.isEmpty() || translation.text.trimmed().isEmpty() || translation.text == entry.key())
            faulty_.append(entry.key());
    }
    VERIFY_NO_FAULT();
}

void TestTranslationFiles::hasTheKeysOfEnglish()
{
    QCOMPARE(file_.translations.keys(), readTranslationFile(part_, QStringLiteral("en_US")).translations.keys());
}

void TestTranslationFiles::keepsThePlaceholders()
{
    const TranslationFile english = readTranslationFile(part_, QStringLiteral("en_US"));
    for (auto entry = file_.translations.begin(); entry != file_.translations.end(); ++entry)
        if (placeholders(entry.value().text) != placeholders(english.text(entry.key())))
            faulty_.append(entry.key());
    VERIFY_NO_FAULT();
}

void TestTranslationFiles::isWrittenInTheScriptOfItsLanguage()
{
    bool isKanaSeen = false;
    for (auto entry = file_.translations.begin(); entry != file_.translations.end(); ++entry) {
        const QString text = entry.value().text;
        isKanaSeen = isKanaSeen || hasKana(text);
        const bool isForeign = !isWrittenEastAsian(code_) && hasEastAsianPunctuation(text);
        if (isForeign || hasEastAsianLetter(text) != (isWrittenEastAsian(code_) && hasWords(text)))
            faulty_.append(entry.key());
    }
    VERIFY_NO_FAULT();
    QCOMPARE(isKanaSeen, code_ == QLatin1String("ja_JP")); // Chinese has none
}

void TestTranslationFiles::hasNoStrayBlanks()
{
    for (auto entry = file_.translations.begin(); entry != file_.translations.end(); ++entry)
        if (entry.value().text.trimmed() != entry.value().text || entry.value().text.contains(QLatin1String("  ")))
            faulty_.append(entry.key());
    VERIFY_NO_FAULT();
}

void TestTranslationFiles::fitsIntoTheDialogs()
{
    for (const LengthLimit &limit : lengthLimits) {
        const QString text = file_.text(QLatin1String(limit.key));
        if (text.isEmpty() || text.size() > limit.characterCount || text.contains(QLatin1Char('\n')))
            faulty_.append(QStringLiteral("%1: %2 characters, at most %3")
                               .arg(QLatin1String(limit.key))
                               .arg(text.size())
                               .arg(limit.characterCount));
    }
    VERIFY_NO_FAULT();
}

void TestTranslationFiles::namesButtonsByTheirLabels()
{
    for (const auto &[text, button] : buttonMentions) {
        const QString label = file_.text(QLatin1String(button));
        QVERIFY(!label.isEmpty());
        if (!file_.text(QLatin1String(text)).contains(label))
            faulty_.append(QLatin1String(text));
    }
    VERIFY_NO_FAULT();
}

void TestTranslationFiles::translatesSentencesAloneAsTogether()
{
    int compositeCount = 0;
    for (auto entry = file_.translations.begin(); entry != file_.translations.end(); ++entry) {
        if (!entry.key().contains(QLatin1Char('|')))
            continue;
        ++compositeCount;
        QStringList sentences = entry.key().split(QLatin1Char('|'));
        for (QString &sentence : sentences)
            sentence = file_.text(sentence);
        QCOMPARE(entry.value().text, sentences.join(QLatin1Char('|')));
    }
    QCOMPARE(compositeCount, 1);
}

// Ears depend on it: the instructions warn that the volume goes to its top.
void TestTranslationFiles::tellsTheLoudnessInFigures()
{
    QVERIFY(hasMatch(R"(100\s?%)", file_.text(QStringLiteral("AUDIO_PLAYBACK_TEST_INSTRUCTIONS"))));
}

QTEST_GUILESS_MAIN(TestTranslationFiles)
#include "tst_translation_files.moc"

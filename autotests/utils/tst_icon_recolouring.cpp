// SPDX-License-Identifier: Apache-2.0
#include "utils/icon_recolouring.h"

#include "autotests/support/fake_sal.h"
#include "utils/application_folders.h"
#include "utils/style_rules.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <QWidget>

#include <memory>

using namespace ostra::utils;

namespace {

const QString white = QStringLiteral("#ffffff");

QString valueOf(const QString &icon) { return QStringLiteral("url(\":/icons/audio/") + icon + QStringLiteral("\")"); }

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QString fileNameOf(const QString &value)
{
    const QString prefix = QStringLiteral("url(\"");
    const QString suffix = QStringLiteral("\")");
    if (!value.startsWith(prefix) || !value.endsWith(suffix))
        return {};
    return value.mid(prefix.size(), value.size() - prefix.size() - suffix.size());
}

} // namespace

class TestIconRecolouring : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void buildsTheBaseName_data();
    void buildsTheBaseName();
    void replacesTheFirstFillColourEverywhere_data();
    void replacesTheFirstFillColourEverywhere();
    void leavesTheValueAlone_data();
    void leavesTheValueAlone();
    void pointsAtAFileInTheHostsTemporaryFolder();
    void fallsBackOnTheApplicationFolder();
    void twoRulesGetTwoFiles();
    void firstQuotedPathStandsForTheWholeValue();
    void filesGoWithTheirDialog();
    void writesUtf8WithLineFeeds();
    void readsTheEncodingThatAMarkTells();
    void decodesADrawing_data();
    void decodesADrawing();
    void leavesADrawingOutsideOfTheResourcesAlone_data();
    void leavesADrawingOutsideOfTheResourcesAlone();
    void namesAFileWithoutABase();
    void refusesNamesThatCannotBeFiles_data();
    void refusesNamesThatCannotBeFiles();
    void leavesTheValueAloneWhenTheFolderIsAFile();
    void overwritesNothing();
    void aFolderIsNeverMoreThanAPath_data();
    void aFolderIsNeverMoreThanAPath();

private:
    QString folder() const { return root_->path() + QStringLiteral("/temp"); }
    QString recolouredFile(const QString &icon) { return fileNameOf(recolourIcon(dialog_.get(), valueOf(icon), white)); }

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<QWidget> dialog_;
};

void TestIconRecolouring::init()
{
    root_ = std::make_unique<QTemporaryDir>();
    dialog_ = std::make_unique<QWidget>();
    fake_sal::state().temporaryPath = QDir::toNativeSeparators(root_->path()).toStdString();
}

void TestIconRecolouring::cleanup()
{
    dialog_.reset();
    folderSources() = FolderSources();
}

void TestIconRecolouring::buildsTheBaseName_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("name");
    const auto add = [](const char *row, const char *value, const char *name) {
        QTest::newRow(row) << QString::fromUtf8(value) << QString::fromUtf8(name);
    };
    add("usual", R"(url(":/icons/audio/play.svg"))", "icons_audio_play");
    add("blanks around", "  url(\":/play.svg\")\t\n", "play");
    add("blanks inside", R"(url(":/ play .svg "))", "play");
    add("equals signs", R"(=url(":/a=b.svg"))", "ab");
    add("suffix everywhere", R"(url(":/a.svg/b.svg"))", "a_b");
    add("longer suffix", R"(url(":/icon.svgz"))", "iconz");
    add("capital suffix", R"(url(":/icon.SVG"))", "icon.SVG");
    add("nothing left", R"(url(":/.svg"))", "");
    add("empty", "", "");
    add("blank before the quotation mark", R"(url( ":/a.svg"))", R"(url( ":_a)");
    add("two icons", R"(url(":/a.svg") url(":/b.svg"))", "a b");
}

void TestIconRecolouring::buildsTheBaseName()
{
    QFETCH(QString, value);
    QTEST(iconBaseName(value), "name");
}

void TestIconRecolouring::replacesTheFirstFillColourEverywhere_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QByteArray>("oldColour");
    QTest::newRow("stroke of the same colour too") << "play.svg" << QByteArray("#123456");
    QTest::newRow("no fill at all") << "without_fill.svg" << QByteArray();
    QTest::newRow("empty fill") << "empty_fill.svg" << QByteArray();
    QTest::newRow("no closing quotation mark") << "open_fill.svg" << QByteArray();
    QTest::newRow("only in the same letter case") << "upper_case.svg" << QByteArray("#ABCDEF");
    QTest::newRow("none counts as a colour") << "none_first.svg" << QByteArray("none");
}

void TestIconRecolouring::replacesTheFirstFillColourEverywhere()
{
    QFETCH(QString, icon);
    QFETCH(QByteArray, oldColour);
    QByteArray expected = bytesOf(QStringLiteral(":/icons/audio/") + icon);
    if (!oldColour.isEmpty()) {
        QVERIFY(expected.contains(oldColour));
        expected.replace(oldColour, white.toLatin1());
    }
    QCOMPARE(bytesOf(recolouredFile(icon)), expected);
}

void TestIconRecolouring::leavesTheValueAlone_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("no icon there") << valueOf(QStringLiteral("absent.svg"));
    QTest::newRow("empty icon") << valueOf(QStringLiteral("empty.svg"));
    QTest::newRow("bitmap") << valueOf(QStringLiteral("bitmap.png"));
    QTest::newRow("folder") << QStringLiteral("url(\":/icons/audio\")");
    QTest::newRow("no quoted path") << QStringLiteral("url(:/icons/audio/play.svg)");
    QTest::newRow("one quotation mark") << QStringLiteral("url(\":/icons/audio/play.svg)");
    QTest::newRow("empty path") << QStringLiteral("url(\"\")");
    QTest::newRow("none") << QStringLiteral("none");
    QTest::newRow("empty") << QString();
    QTest::newRow("a quotation mark left in the base name") << QStringLiteral("url( \":/icons/audio/play.svg\")");
    QTest::newRow("a colon in the base name") << valueOf(QStringLiteral("x:y.svg"));
}

void TestIconRecolouring::leavesTheValueAlone()
{
    QFETCH(QString, value);
    QCOMPARE(recolourIcon(dialog_.get(), value, white), value);
    QVERIFY(dialog_->children().isEmpty());
    QVERIFY(QDir(folder()).isEmpty());
}

void TestIconRecolouring::pointsAtAFileInTheHostsTemporaryFolder()
{
    const QString fileName = recolouredFile(QStringLiteral("play.svg"));
    QVERIFY(QFile::exists(fileName));
    QVERIFY2(!fileName.contains(u'\\'), qPrintable(fileName)); // an escape in a stylesheet
    const QString folderOfFile = QFileInfo(fileName).canonicalPath();
    QCOMPARE(folderOfFile, QFileInfo(folder()).canonicalFilePath());
    const QRegularExpression name(QStringLiteral("^icons_audio_play_[A-Za-z]{6}\\.svg$"));
    QVERIFY2(name.match(QFileInfo(fileName).fileName()).hasMatch(), qPrintable(fileName));
}

void TestIconRecolouring::fallsBackOnTheApplicationFolder()
{
    fake_sal::state().temporaryPath.clear();
    static QString base;
    base = QDir::toNativeSeparators(root_->path());
    folderSources().cacheFolder = [] { return base.toStdU16String(); };
    folderSources().userName = [] { return std::u16string(u"alice"); };
    const QString fileName = recolouredFile(QStringLiteral("play.svg"));
    QCOMPARE(QFileInfo(fileName).canonicalPath(),
             QFileInfo(root_->path() + QStringLiteral("/Tamrex/VMK/alice/temp")).canonicalFilePath());
}

void TestIconRecolouring::twoRulesGetTwoFiles()
{
    const QString first = recolouredFile(QStringLiteral("play.svg"));
    const QString second = recolouredFile(QStringLiteral("play.svg"));
    QVERIFY(first != second);
    QCOMPARE(bytesOf(first), bytesOf(second));
}

void TestIconRecolouring::firstQuotedPathStandsForTheWholeValue()
{
    const QString value =
        valueOf(QStringLiteral("without_fill.svg")) + QStringLiteral(", ") + valueOf(QStringLiteral("play.svg"));
    const QString fileName = fileNameOf(recolourIcon(dialog_.get(), value, white));
    QCOMPARE(bytesOf(fileName), bytesOf(QStringLiteral(":/icons/audio/without_fill.svg")));
}

void TestIconRecolouring::filesGoWithTheirDialog()
{
    const QString fileName = recolouredFile(QStringLiteral("play.svg"));
    QCOMPARE(dialog_->children().size(), 1);
    QVERIFY(QFile::exists(fileName));
    dialog_.reset();
    QVERIFY(!QFile::exists(fileName));
}

void TestIconRecolouring::writesUtf8WithLineFeeds()
{
    QCOMPARE(bytesOf(recolouredFile(QStringLiteral("carriage_returns.svg"))), QByteArray("<svg fill=\"#ffffff\">\n</svg>\n"));
    QCOMPARE(bytesOf(recolouredFile(QStringLiteral("bad_utf8.svg"))),
             QByteArray("<svg fill=\"#ffffff\">\xC3\xA4\xEF\xBF\xBD</svg>\n"));
}

// The letter of UTF-16 whose second byte is that of a carriage return stays.
void TestIconRecolouring::readsTheEncodingThatAMarkTells()
{
    const QByteArray expected("<svg fill=\"#ffffff\">\xC3\xA4\xE0\xB4\x85</svg>\n");
    QCOMPARE(bytesOf(recolouredFile(QStringLiteral("marked_utf8.svg"))), expected);
    QCOMPARE(bytesOf(recolouredFile(QStringLiteral("marked_utf16.svg"))), expected);
}

void TestIconRecolouring::decodesADrawing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("text");
    const auto add = [](const char *row, const QByteArray &bytes, const QByteArray &text) {
        QTest::newRow(row) << bytes << text;
    };
    const QByteArray bad("\xEF\xBF\xBD"); // U+FFFD
    add("nothing", "", "");
    add("carriage returns only", "\r\r", "");
    add("a carriage return by itself", "<a\r/>", "<a/>");
    add("a mark only", "\xEF\xBB\xBF", "");
    add("a mark and a letter", "\xEF\xBB\xBF\xC3\xA4", "\xC3\xA4");
    add("a mark behind a letter is text", "a\xEF\xBB\xBF", "a\xEF\xBB\xBF");
    add("a carriage return within a sequence", "\xC3\r\xA4", bad + bad);
    add("a sequence that the end cuts", "<svg/>\xC3", "<svg/>" + bad);
    add("a surrogate", "\xED\xA0\x80", bad + bad + bad);
    add("a bad byte far behind", QByteArray(20000, 'a') + "\xFF\xFF", QByteArray(20000, 'a') + bad + bad);
    add("a zero character", QByteArray("<svg/>\0", 7), "");
    add("a zero character behind what is malformed", QByteArray("\xFF\0", 2), "");
    add("UTF-16, little end first", QByteArray("\xFF\xFE<\0\xE4\0", 6), "<\xC3\xA4");
    add("UTF-16, big end first", QByteArray("\xFE\xFF\0<\0\xE4", 6), "<\xC3\xA4");
    add("UTF-16 with a zero character", QByteArray("\xFF\xFE<\0\0\0", 6), "");
    add("UTF-16 with a carriage return within a pair", QByteArray("\xFF\xFE\x3D\xD8\r\0\x00\xDE", 8), "\xF0\x9F\x98\x80");
}

void TestIconRecolouring::decodesADrawing()
{
    QFETCH(QByteArray, bytes);
    QTEST(recolouredSvg(bytes, "#ffffff"), "text");
}

// What a stylesheet could be made to name; the last two have a base name that could be a file's.
void TestIconRecolouring::leavesADrawingOutsideOfTheResourcesAlone_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("absolute") << QDir::current().filePath(QStringLiteral("outside.svg"));
    QTest::newRow("relative") << QStringLiteral("outside.svg");
    QTest::newRow("with a closing parenthesis") << QStringLiteral(")outside.svg");
    QTest::newRow("with an equals sign") << QStringLiteral("=)outside.svg");
}

void TestIconRecolouring::leavesADrawingOutsideOfTheResourcesAlone()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<path fill=\"#123456\"/>") > 0);
    file.close();
    const auto remove = qScopeGuard([&file] { file.remove(); });
    const QString value = QStringLiteral("url(\"%1\")").arg(path);
    QCOMPARE(recolourIcon(dialog_.get(), value, white), value);
}

void TestIconRecolouring::namesAFileWithoutABase()
{
    const QTemporaryFile *file = writeTemporarySvg(dialog_.get(), {}, QStringLiteral("<svg/>"), folder());
    QVERIFY(file != nullptr);
    QVERIFY(file->isOpen());
    QCOMPARE(file->parent(), dialog_.get());
    QVERIFY(QFileInfo(file->fileName()).fileName().startsWith(QStringLiteral("temp_svg_")));
}

void TestIconRecolouring::refusesNamesThatCannotBeFiles_data()
{
    QTest::addColumn<QString>("baseName");
    QTest::newRow("quotation mark") << QStringLiteral("a\"b");
    QTest::newRow("backslash") << QStringLiteral("a\\b");
    QTest::newRow("colon") << QStringLiteral("a:b");
    QTest::newRow("line end") << QStringLiteral("a\nb");
    QTest::newRow("too long") << QString(300, u'a');
}

void TestIconRecolouring::refusesNamesThatCannotBeFiles()
{
    QFETCH(QString, baseName);
    QCOMPARE(writeTemporarySvg(dialog_.get(), baseName, QStringLiteral("<svg/>"), folder()), nullptr);
    QVERIFY(QDir(folder()).isEmpty());
}

void TestIconRecolouring::leavesTheValueAloneWhenTheFolderIsAFile()
{
    QFile file(folder());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QString value = valueOf(QStringLiteral("play.svg"));
    QCOMPARE(recolourIcon(dialog_.get(), value, white), value);
    QVERIFY(dialog_->children().isEmpty());
    QCOMPARE(QFileInfo(folder()).size(), 0);
}

void TestIconRecolouring::overwritesNothing()
{
    QVERIFY(QDir().mkpath(folder()));
    QFile file(folder() + QStringLiteral("/icons_audio_play_XXXXXX.svg"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    file.close();
    QVERIFY(!recolouredFile(QStringLiteral("play.svg")).isEmpty());
    QCOMPARE(bytesOf(file.fileName()), QByteArray("mine"));
}

void TestIconRecolouring::aFolderIsNeverMoreThanAPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isUsed");
    QTest::newRow("blank") << "two words" << true;
    QTest::newRow("closing brace") << "a}b" << true;
    QTest::newRow("a rule") << "x) } QLabel { color - red; } {" << true;
    QTest::newRow("semicolon and apostrophe") << "a;b'c" << true;
    QTest::newRow("hash, percent, ampersand") << "#%20&" << true;
    QTest::newRow("beyond ASCII") << QStringLiteral("Pr\u00fcfung-\u30b9\u30d4 \u05e8\u05de") << true;
    QTest::newRow("270 characters in all") << QString(90, u'a') + u'/' + QString(90, u'b') + u'/' + QString(90, u'c') << true;
#ifndef Q_OS_WIN // no file name there
    QTest::newRow("quotation mark") << "a\"b" << false;
    QTest::newRow("backslash") << "q\\temp" << false;
    QTest::newRow("line feed") << "a\nb" << false;
    QTest::newRow("a comment") << "a/*b" << true;
#endif
}

void TestIconRecolouring::aFolderIsNeverMoreThanAPath()
{
    QFETCH(QString, name);
    QFETCH(bool, isUsed);
    fake_sal::state().temporaryPath = (root_->path() + u'/' + name).toStdString();
    const QString before = valueOf(QStringLiteral("play.svg"));
    const QString value = recolourIcon(dialog_.get(), before, white);
    QCOMPARE(value != before, isUsed);

    const QString sheet = QStringLiteral("A { color: red; image: %1; margin: 1px }\nB { color: blue }\n");
    StyleRules rules = StyleRules::parse(QString(sheet).replace(QStringLiteral("%1"), value));
    QCOMPARE(rules.rules().size(), qsizetype(2));
    QCOMPARE(rules.rule(QStringLiteral("A")).declarations().size(), qsizetype(3));
    QCOMPARE(rules.rule(QStringLiteral("A")).value(QStringLiteral("image")), value);
    if (isUsed)
        QVERIFY(QFile::exists(fileNameOf(value)));
}

QTEST_MAIN(TestIconRecolouring)
#include "tst_icon_recolouring.moc"

// SPDX-License-Identifier: Apache-2.0
#include "utils/icon_recolouring.h"

#include "autotests/support/fake_sal.h"
#include "autotests/utils/file_size_limit.h"
#include "utils/high_contrast_style.h"
#include "utils/style_rules.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

using namespace ostra::utils;

/// Recoloured icons as the toolkit draws them.
class TestRecolouredIcons : public QObject {
    Q_OBJECT

private slots:
    void imageHasTheNewColour();
    void stylesheetFindsTheIcon_data();
    void stylesheetFindsTheIcon();
    void aFolderBreaksNoRuleAndAddsNone_data();
    void aFolderBreaksNoRuleAndAddsNone();
    void anExclamationMarkInAPathEndsNoValue();
    void aFullDiskLeavesTheIconAsItWas();
    void keepsAnIconWhoseFolderCannotStandInAStylesheet_data();
    void keepsAnIconWhoseFolderCannotStandInAStylesheet();
    void aFileOutsideOfTheResourcesIsNotEvenOpened();

private:
    static void addUsableFolders();
    static void addUnusableFolders();
    static QString original() { return QStringLiteral("url(\":/icons/audio/play.svg\")"); }
};

void TestRecolouredIcons::imageHasTheNewColour()
{
    const QTemporaryDir root;
    fake_sal::state().temporaryPath = root.path().toStdString();
    QWidget dialog;
    const QString value = recolourIcon(&dialog, original(), QStringLiteral("#00ff00"));
    QCOMPARE(QImage(QStringLiteral(":/icons/audio/play.svg")).pixelColor(16, 16), QColor(0x12, 0x34, 0x56));
    const QImage image(value.mid(5, value.size() - 7));
    QCOMPARE(image.size(), QSize(32, 32));
    QCOMPARE(image.pixelColor(16, 16), QColor(0, 255, 0));
}

void TestRecolouredIcons::stylesheetFindsTheIcon_data()
{
    QTest::addColumn<QString>("folder");
    addUsableFolders();
}

void TestRecolouredIcons::addUsableFolders()
{
    for (const char *folder : {"plain", "with blank", "a}b", "a{b", "a(b", "a)b", "a;b", "a'b", "a%20b", "a#b", "Prüfung-スピ"})
        QTest::newRow(folder) << QString::fromUtf8(folder);
    QTest::newRow("right to left") << QStringLiteral("\u05e8\u05de\u05e7\u05d5\u05dc");
    QTest::newRow("a rule of its own") << QStringLiteral("'); } QLabel { color: red; } Q { image: url(x");
    QTest::newRow("a comment") << QStringLiteral("a*b");
    QTest::newRow("more than 260 units") << QString(130, u'a') + u'/' + QString(130, u'b');
}

void TestRecolouredIcons::stylesheetFindsTheIcon()
{
    QFETCH(QString, folder);
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath(folder));
    fake_sal::state().temporaryPath = root.filePath(folder).toStdString();
    QWidget widget;
    widget.setAttribute(Qt::WA_StyledBackground);
    widget.resize(32, 32);
    const QString value = recolourIcon(&widget, original(), QStringLiteral("#00ff00"));
    QVERIFY(value != original());
    widget.setStyleSheet(QStringLiteral("QWidget { image: ") + value + QStringLiteral("; }"));
    QCOMPARE(widget.grab().toImage().pixelColor(16, 16), QColor(0, 255, 0));
}

void TestRecolouredIcons::aFolderBreaksNoRuleAndAddsNone_data()
{
    QTest::addColumn<QString>("folder");
    addUsableFolders();
    addUnusableFolders();
}

// The whole way of a sheet into high contrast, and once more: what comes out differs in the icon's file only.
void TestRecolouredIcons::aFolderBreaksNoRuleAndAddsNone()
{
    QFETCH(QString, folder);
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath(folder));
    fake_sal::state().temporaryPath = root.filePath(folder).toStdString();
    QWidget dialog;
    const QList<QColor> colors(30, Qt::white);
    const auto rewrite = [&](const QString &file) {
        const QString sheet = QStringLiteral("QLabel { margin: 1px; } QPushButton { image: ") + original() +
                              QStringLiteral("; padding: 2px; } QFrame { margin: 3px; }");
        QString value;
        const auto recolour = [&](const QString &icon, const QString &color) {
            value = recolourIcon(&dialog, icon, color);
            return value;
        };
        QString written = StyleRules::parse(highContrastStyleSheet(sheet, colors, recolour)).toText();
        return written.replace(value, file);
    };
    const QString text = rewrite(QStringLiteral("url(\"x\")"));
    fake_sal::state().temporaryPath = root.path().toStdString();
    QCOMPARE(text, rewrite(QStringLiteral("url(\"x\")")));
    QVERIFY(text.contains(QStringLiteral("padding: 2px")) && text.contains(QStringLiteral("margin: 3px")));
}

// Cut at the mark, the text in quotes would never end, and Qt would refuse the whole sheet.
void TestRecolouredIcons::anExclamationMarkInAPathEndsNoValue()
{
    const QString sheet = QStringLiteral("QLabel { background: url(\"/a!b/c.png\") #112233; } "
                                         "QFrame { background: url(/a!b/c.png) red ! important; margin: 3px; }");
    const StyleRules rules = StyleRules::parse(highContrastStyleSheet(sheet, QList<QColor>(30, Qt::white), {}));
    const auto backgroundOf = [&rules](const QString &selector) {
        for (const StyleRule &rule : rules.rules())
            if (rule.selector() == selector)
                return rule.value(QStringLiteral("background"));
        return QString();
    };
    QCOMPARE(backgroundOf(QStringLiteral("QLabel")), QStringLiteral("url(\"/a!b/c.png\") #ffffff"));
    QCOMPARE(backgroundOf(QStringLiteral("QFrame")), QStringLiteral("url(/a!b/c.png) #ffffff"));
}

void TestRecolouredIcons::aFullDiskLeavesTheIconAsItWas()
{
    const QTemporaryDir root;
    fake_sal::state().temporaryPath = root.path().toStdString();
    QWidget widget;
    widget.setAttribute(Qt::WA_StyledBackground);
    widget.resize(32, 32);
    QString value;
    {
        const FileSizeLimit limit(40); // bytes; the icon has some more
        value = recolourIcon(&widget, original(), QStringLiteral("#00ff00"));
    }
    QCOMPARE(value, original());
    const QDir folder(root.filePath(QStringLiteral("temp")));
    QVERIFY(folder.exists() && folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
    widget.setStyleSheet(QStringLiteral("QWidget { image: ") + value + QStringLiteral("; }"));
    QCOMPARE(widget.grab().toImage().pixelColor(16, 16), QColor(0x12, 0x34, 0x56));
}

void TestRecolouredIcons::keepsAnIconWhoseFolderCannotStandInAStylesheet_data()
{
    QTest::addColumn<QString>("folder");
    addUnusableFolders();
}

void TestRecolouredIcons::addUnusableFolders()
{
    QTest::newRow("quotation mark") << "a\"b";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("line end") << "a\nb";
}

void TestRecolouredIcons::keepsAnIconWhoseFolderCannotStandInAStylesheet()
{
    QFETCH(QString, folder);
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkdir(folder));
    fake_sal::state().temporaryPath = root.filePath(folder).toStdString();
    QWidget dialog;
    QCOMPARE(recolourIcon(&dialog, original(), QStringLiteral("#00ff00")), original());
    QVERIFY(QDir(root.filePath(folder) + QStringLiteral("/temp")).isEmpty()); // and no file is left behind
}

// It may be of any size, or a pipe that nobody writes to.
void TestRecolouredIcons::aFileOutsideOfTheResourcesIsNotEvenOpened()
{
    const QTemporaryDir root;
    QFile file(root.filePath(QStringLiteral("outside.svg")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<path fill=\"#123456\"/>") > 0);
    file.close();
    const int notices = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    const auto end = qScopeGuard([notices] { ::close(notices); });
    QVERIFY(inotify_add_watch(notices, QFile::encodeName(file.fileName()).constData(), IN_OPEN) >= 0);
    const auto hasNotice = [notices] {
        alignas(inotify_event) std::array<char, sizeof(inotify_event)> notice{};
        return ::read(notices, notice.data(), notice.size()) > 0;
    };
    QWidget dialog;
    const QString value = QStringLiteral("url(\"") + file.fileName() + QStringLiteral("\")");
    QCOMPARE(recolourIcon(&dialog, value, QStringLiteral("#00ff00")), value);
    QVERIFY(!hasNotice());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(hasNotice()); // else nothing would be noticed
}

QTEST_MAIN(TestRecolouredIcons)
#include "tst_recoloured_icons.moc"

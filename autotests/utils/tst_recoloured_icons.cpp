// SPDX-License-Identifier: Apache-2.0
#include "utils/icon_recolouring.h"

#include "autotests/support/fake_sal.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

using namespace ostra::utils;

/// Recoloured icons as the toolkit draws them.
class TestRecolouredIcons : public QObject {
    Q_OBJECT

private slots:
    void imageHasTheNewColour();
    void stylesheetFindsTheIcon_data();
    void stylesheetFindsTheIcon();
    void keepsAnIconWhoseFolderCannotStandInAStylesheet_data();
    void keepsAnIconWhoseFolderCannotStandInAStylesheet();

private:
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
    for (const char *folder : {"plain", "with blank", "a}b", "a{b", "a(b", "a)b", "a;b", "a'b", "a%20b", "a#b", "Prüfung-スピ"})
        QTest::newRow(folder) << QString::fromUtf8(folder);
}

void TestRecolouredIcons::stylesheetFindsTheIcon()
{
    QFETCH(QString, folder);
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkdir(folder));
    fake_sal::state().temporaryPath = root.filePath(folder).toStdString();
    QWidget widget;
    widget.setAttribute(Qt::WA_StyledBackground);
    widget.resize(32, 32);
    const QString value = recolourIcon(&widget, original(), QStringLiteral("#00ff00"));
    QVERIFY(value != original());
    widget.setStyleSheet(QStringLiteral("QWidget { image: ") + value + QStringLiteral("; }"));
    QCOMPARE(widget.grab().toImage().pixelColor(16, 16), QColor(0, 255, 0));
}

void TestRecolouredIcons::keepsAnIconWhoseFolderCannotStandInAStylesheet_data()
{
    QTest::addColumn<QString>("folder");
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

QTEST_MAIN(TestRecolouredIcons)
#include "tst_recoloured_icons.moc"

// SPDX-License-Identifier: Apache-2.0
#include "host/gui/level_window.h"

#include "host/gui/level_bar.h"
#include "host/gui/level_words.h"
#include "host/gui/wave_view.h"
#include "host/translations/translators.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

using host::LevelWindow;
using host::Loudness;
using host::MeteredMoment;

namespace {

constexpr int limitMs = 5000;

MeteredMoment moment(qint64 endMs, double rmsDbfs = -20, double peakDbfs = -3)
{
    MeteredMoment made;
    made.endMs = endMs;
    made.rmsDbfs = rmsDbfs;
    made.peakDbfs = peakDbfs;
    made.wave = {-0.5, 0.5};
    return made;
}

/// The main window, the level window and a dialog like the module's, whose page is the one that plays.
struct Windows {
    explicit Windows(const QString &source, const QString &dialogName = QStringLiteral("InteractionDialog"))
        : levels(&mainWindow, source)
    {
        mainWindow.show();
        dialog.setObjectName(dialogName);
        dialog.setModal(true);
        auto *column = new QVBoxLayout(&dialog);
        play.setObjectName(QStringLiteral("microphone_test_play_button"));
        column->addWidget(&play);
    }

    void open()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCoreApplication::processEvents();
    }

    QLabel *words() const { return levels.findChild<QLabel *>(QStringLiteral("host_level_words")); }
    QWidget *bar() const { return levels.findChild<QWidget *>(QStringLiteral("host_level_bar")); }

    QWidget mainWindow;
    LevelWindow levels;
    QDialog dialog;
    QPushButton play;
};

} // namespace

class TestLevelWindow : public QObject {
    Q_OBJECT

private slots:
    void init() { host::installTranslators(QStringLiteral("en_US")); }

    void showsItselfBesideTheMicrophoneDialogOnly_data();
    void showsItselfBesideTheMicrophoneDialogOnly();
    void isNoPartOfTheDialog();
    void changesItsWordsOnceASecond();
    void movesItsBarWithEveryMoment();
    void tellsTheLevelInWords_data();
    void tellsTheLevelInWords();
    void tellsThePeakOfTheWholeSecond();
    void keepsTheWaveOfTheLastPlayback();
    void forgetsAnEarlierRun();
    void speaksTheLanguageInForce();
    void tellsAWaveInWords();
};

void TestLevelWindow::showsItselfBesideTheMicrophoneDialogOnly_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("microphone dialog") << "Mic"
                                       << "InteractionDialog" << true;
    QTest::newRow("nothing to listen to") << ""
                                          << "InteractionDialog" << false;
    QTest::newRow("another dialog") << "Mic"
                                    << "AudioPlaybackTestWidget" << false;
}

void TestLevelWindow::showsItselfBesideTheMicrophoneDialogOnly()
{
    QFETCH(const QString, source);
    QFETCH(const QString, dialog);
    QFETCH(const bool, isShown);
    Windows windows(source, dialog);
    QVERIFY(!windows.levels.isVisible());
    windows.open();
    windows.levels.take(moment(1000));
    QTRY_COMPARE_WITH_TIMEOUT(windows.levels.isVisible(), isShown, limitMs);
    windows.dialog.hide();
    QTRY_VERIFY_WITH_TIMEOUT(!windows.levels.isVisible(), limitMs);
}

void TestLevelWindow::isNoPartOfTheDialog()
{
    Windows windows(QStringLiteral("Mic"));
    windows.open();
    QTRY_VERIFY_WITH_TIMEOUT(windows.levels.isVisible(), limitMs);
    QVERIFY(windows.levels.isWindow() && !windows.levels.isModal());
    QVERIFY(!windows.dialog.isAncestorOf(&windows.levels));
    QVERIFY(windows.levels.testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(QApplication::activeModalWidget(), &windows.dialog);
    QVERIFY(!windows.levels.frameGeometry().intersects(windows.dialog.frameGeometry()));
}

void TestLevelWindow::changesItsWordsOnceASecond()
{
    Windows windows(QStringLiteral("Mic"));
    QSet<QString> words;
    QSet<QString> descriptions;
    for (int tenth = 0; tenth < 40; ++tenth) { // four seconds, each moment louder than the one before
        windows.levels.take(moment(5000 + tenth * 100, -45 + tenth, -44 + tenth));
        words.insert(windows.words()->text());
        descriptions.insert(windows.bar()->accessibleDescription());
    }
    QCOMPARE(words.size(), 4);
    QCOMPARE(descriptions, words);
}

void TestLevelWindow::movesItsBarWithEveryMoment()
{
    Windows windows(QStringLiteral("Mic"));
    const auto *bar = windows.levels.findChild<host::LevelBar *>();
    windows.levels.take(moment(1000, -40, -30));
    windows.levels.take(moment(1100, -20, -10));
    QCOMPARE(bar->rmsDbfs(), -20.0);
    QCOMPARE(bar->peakDbfs(), -10.0);
}

void TestLevelWindow::tellsTheLevelInWords_data()
{
    QTest::addColumn<double>("rms");
    QTest::addColumn<double>("peak");
    QTest::addColumn<QString>("words");
    QTest::newRow("silent") << -120.0 << -120.0 << "Level -120 dBFS, peak -120 dBFS: silent";
    QTest::newRow("nearly silent") << -51.0 << -40.0 << "Level -51 dBFS, peak -40 dBFS: silent";
    QTest::newRow("quiet") << -40.0 << -20.0 << "Level -40 dBFS, peak -20 dBFS: quiet";
    QTest::newRow("good") << -20.0 << -3.0 << "Level -20 dBFS, peak -3 dBFS: good";
    QTest::newRow("too loud") << -12.0 << 0.0 << "Level -12 dBFS, peak 0 dBFS: too loud";
}

void TestLevelWindow::tellsTheLevelInWords()
{
    QFETCH(const double, rms);
    QFETCH(const double, peak);
    QFETCH(const QString, words);
    QLocale::setDefault(QLocale::c());
    Windows windows(QStringLiteral("Mic"));
    QCOMPARE(windows.words()->text(), QStringLiteral("Nothing has been heard yet."));
    windows.levels.take(moment(1000, rms, peak));
    QCOMPARE(windows.words()->text(), words);
}

void TestLevelWindow::tellsThePeakOfTheWholeSecond()
{
    QLocale::setDefault(QLocale::c());
    Windows windows(QStringLiteral("Mic"));
    windows.levels.take(moment(1000, -60, -60));
    windows.levels.take(moment(1500, -20, -6));
    windows.levels.take(moment(2000, -20, -9));
    QCOMPARE(windows.words()->text(), QStringLiteral("Level -20 dBFS, peak -6 dBFS: good"));
}

void TestLevelWindow::keepsTheWaveOfTheLastPlayback()
{
    Windows windows(QStringLiteral("Mic"));
    windows.open();
    QTRY_VERIFY_WITH_TIMEOUT(windows.levels.isVisible(), limitMs);
    windows.play.hide(); // the recording page
    windows.levels.take(moment(1000));
    QVERIFY(windows.levels.playbackWave().isEmpty());
    windows.play.show();
    windows.play.setEnabled(false);
    windows.levels.take(moment(1100));
    windows.levels.take(moment(1200));
    QCOMPARE(windows.levels.playbackWave().size(), 4);
    windows.play.setEnabled(true); // it is over
    windows.levels.take(moment(1300));
    QCOMPARE(windows.levels.playbackWave().size(), 4);
    windows.play.setEnabled(false); // once more
    windows.levels.take(moment(1400));
    QCOMPARE(windows.levels.playbackWave(), (QList<double>{-0.5, 0.5}));
    QCOMPARE(windows.levels.findChild<host::WaveView *>()->wave(), windows.levels.playbackWave());
}

void TestLevelWindow::forgetsAnEarlierRun()
{
    Windows windows(QStringLiteral("Mic"));
    windows.open();
    windows.play.setEnabled(false);
    QTRY_VERIFY_WITH_TIMEOUT(windows.levels.isVisible(), limitMs);
    windows.levels.take(moment(1000));
    QVERIFY(!windows.levels.playbackWave().isEmpty());
    windows.levels.beginRun();
    QVERIFY(windows.levels.playbackWave().isEmpty());
    QCOMPARE(windows.words()->text(), QStringLiteral("Nothing has been heard yet."));
}

void TestLevelWindow::speaksTheLanguageInForce()
{
    Windows windows(QStringLiteral("<b>Mic</b>"));
    host::installTranslators(QStringLiteral("de_DE"));
    QTRY_COMPARE_WITH_TIMEOUT(windows.levels.windowTitle(), QStringLiteral("Tonpegel"), limitMs);
    windows.levels.take(moment(1000));
    QVERIFY2(windows.words()->text().endsWith(QStringLiteral(": gut")), qPrintable(windows.words()->text()));
    QCOMPARE(windows.bar()->accessibleName(), QStringLiteral("Tonpegel"));
    bool isSourceNamed = false;
    for (const QLabel *label : windows.levels.findChildren<QLabel *>())
        isSourceNamed =
            isSourceNamed || (label->text().contains(QStringLiteral("<b>Mic</b>")) && label->textFormat() == Qt::PlainText);
    QVERIFY(isSourceNamed);
}

void TestLevelWindow::tellsAWaveInWords()
{
    QLocale::setDefault(QLocale::c());
    QVERIFY(host::waveWords({}, host::WaveOf::recording).isEmpty());
    QList<double> wave(250, 0.1);
    wave[17] = -0.5;
    QCOMPARE(host::waveWords(wave, host::WaveOf::recording), QStringLiteral("Playback of the recording: 2.5 s, peak -6 dBFS"));
    QCOMPARE(host::waveWords(wave, host::WaveOf::digits), QStringLiteral("The digits as they were heard: 2.5 s, peak -6 dBFS"));
}

QTEST_MAIN(TestLevelWindow)
#include "tst_level_window.moc"

// SPDX-License-Identifier: Apache-2.0
#include "audio/sound_clip.h"
#include "autotests/views/playback_fixture.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QLabel>
#include <QMovie>

#include <algorithm>

using namespace ostra;
using playback_fixture::guardCalls;
using playback_fixture::Playback;

namespace {

constexpr int bound = 20000; // ms; five times the longest designed wait

/// The digits of the clips that were opened, in order.
QString playedDigits(const Playback &playback)
{
    QString digits;
    for (const std::string &call : playback.sdl.calls) {
        if (call.starts_with("file "))
            digits += QChar::fromLatin1(call.at(call.find("_de_DE.wav") - 1));
    }
    return digits;
}

void playOne(const Playback &playback)
{
    playback.view->PlayAudio();
    playback.view->CheckAudioIsPlaying();
}

// All that a screen reader would have to tell a change of.
QStringList heard(const Playback &playback)
{
    QStringList told;
    const QWidgetList widgets = playback.view->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QAccessibleInterface *object = QAccessible::queryAccessibleInterface(widget);
        const QAccessible::State state = object->state();
        told.append(QStringLiteral("%1 %2 %3").arg(object->text(QAccessible::Name)).arg(state.invisible).arg(state.disabled));
    }
    const QWidget *focus = playback.view->focusWidget();
    told.append(focus == nullptr ? QString() : focus->objectName());
    return told;
}

QStringList runningTimers(const Playback &playback)
{
    QStringList running;
    const QList<QTimer *> timers = playback.view->findChildren<QTimer *>(Qt::FindDirectChildrenOnly);
    for (const QTimer *timer : timers) {
        if (timer->isActive())
            running.append(QString::number(timer->interval()) + QLatin1StringView(timer->isSingleShot() ? "once" : ""));
    }
    running.sort();
    return running;
}

} // namespace

class TestPlaybackViewSequences : public QObject {
    Q_OBJECT

private slots:
    void startsItsTimersAtConstruction();
    void playsADigitASecondAndThenRests();
    void holdsWhileADigitSounds();
    void runsOneClipAtATime();
    void isIdleAfterThreeDigits();
    void repeatsFromTheFirstDigit();
    void playsOnceWhenRepeatIsPressedEarly();
    void playsTheSecondSequenceByItself();
    void playsNoSecondSequenceAfterARightAnswer();
    void stopsPlaybackAtTheThirdDigit();
    void keepsOneGuard();
    void givesTheVolumeBackAtTheLatestWhenDestroyed();
    void endsWhenAClipCannotBePlayed_data();
    void endsWhenAClipCannotBePlayed();
    void stopsTheDeviceBeforeItCloses_data();
    void stopsTheDeviceBeforeItCloses();
    void closesADeviceThatWasNeverStarted();
    void closesADeviceWhenStoppedFromOutside();
    void neverClosesTwice();
    void stopsEveryTimerWhenDone();
    void showsTheMovieWhilePlaying();
    void deletesTheMovieBefore();
    void announcesNothingWhileAClipPlays();
};

void TestPlaybackViewSequences::startsItsTimersAtConstruction()
{
    const Playback playback;
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(runningTimers(playback), (QStringList{QStringLiteral("1000once"), QStringLiteral("300")}));
    QVERIFY(playback.at<QPushButton>("numpad_repeat_button").isEnabled());
    // Not shown: the second counts from the construction.
    QTRY_COMPARE_WITH_TIMEOUT(playedDigits(playback), QStringLiteral("0"), bound);
    QVERIFY(elapsed.elapsed() >= 900); // coarse timers are 5 % early at most
}

void TestPlaybackViewSequences::playsADigitASecondAndThenRests()
{
    const Playback playback({7, 8, 9});
    playback.view->PlayAudio();
    QVERIFY(!playback.at<QPushButton>("numpad_repeat_button").isEnabled());
    QVERIFY(runningTimers(playback).contains(QStringLiteral("1")));
    playback.view->CheckAudioIsPlaying();
    QCOMPARE(playedDigits(playback), QStringLiteral("7"));
    QVERIFY(!runningTimers(playback).contains(QStringLiteral("1")));
    QVERIFY(runningTimers(playback).contains(QStringLiteral("1000once")));
}

void TestPlaybackViewSequences::holdsWhileADigitSounds()
{
    const Playback playback;
    playOne(playback);
    const std::vector<std::string> expected{"open Speakers 0", "queue 2 192", "pause 2 0", "delay 1000", "close 2"};
    QCOMPARE(playback.sdl.deviceCalls(), expected);
}

void TestPlaybackViewSequences::runsOneClipAtATime()
{
    const Playback playback;
    playback.view->PlayAudio();
    playback.view->PlayAudio(); // not ready: the bars start anew, nothing else
    playback.view->CheckAudioIsPlaying();
    playback.view->PlayAudio();
    playback.view->PlayAudio();
    playback.view->CheckAudioIsPlaying();
    QCOMPARE(playedDigits(playback), QStringLiteral("01"));
}

void TestPlaybackViewSequences::isIdleAfterThreeDigits()
{
    const Playback playback({7, 8, 9});
    QTRY_COMPARE_WITH_TIMEOUT(playedDigits(playback), QStringLiteral("789"), bound);
    QVERIFY(!playback.at<QPushButton>("numpad_repeat_button").isEnabled());
    QVERIFY(std::find(guardCalls.begin(), guardCalls.end(), "restore") == guardCalls.end());
    QTRY_VERIFY_WITH_TIMEOUT(playback.at<QPushButton>("numpad_repeat_button").isEnabled(), bound);
    QCOMPARE(guardCalls, (std::vector<std::string>{"guard 100", "restore"}));
    QVERIFY(playback.at<QLabel>("sound_indicator_gif").movie() == nullptr);
    QVERIFY(!playback.at<QLabel>("sound_indicator_gif").pixmap().isNull());
    QCOMPARE(runningTimers(playback), QStringList{QStringLiteral("300")});
    QVERIFY(!playback.view->hasFinished());
}

void TestPlaybackViewSequences::repeatsFromTheFirstDigit()
{
    const Playback playback({7, 8, 9});
    for (int digit = 0; digit < 3; ++digit)
        playOne(playback);
    playback.view->PlayAudio();
    playback.at<QPushButton>("numpad_repeat_button").click();
    playback.view->CheckAudioIsPlaying();
    QCOMPARE(playedDigits(playback), QStringLiteral("7897"));
    QCOMPARE(guardCalls, (std::vector<std::string>{"guard 100", "restore", "guard 100"}));
}

void TestPlaybackViewSequences::playsOnceWhenRepeatIsPressedEarly()
{
    const Playback playback;
    playback.at<QPushButton>("numpad_repeat_button").click();
    QElapsedTimer elapsed;
    elapsed.start();
    QTRY_COMPARE_WITH_TIMEOUT(playedDigits(playback), QStringLiteral("0"), bound);
    QTRY_COMPARE_WITH_TIMEOUT(playedDigits(playback), QStringLiteral("01"), bound);
    QVERIFY(elapsed.elapsed() >= 900); // the first second is not cut short by the timer of the construction
    QCOMPARE(playback.sdl.count("open "), 2);
}

void TestPlaybackViewSequences::playsTheSecondSequenceByItself()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playOne(playback);
    playback.view->PlayAudio(); // about to play the second digit
    playback.type({3, 2, 1});
    QElapsedTimer elapsed;
    elapsed.start();
    QTRY_COMPARE_WITH_TIMEOUT(playedDigits(playback), QStringLiteral("14"), bound);
    QVERIFY(elapsed.elapsed() >= 900);
    QTRY_COMPARE_WITH_TIMEOUT(playedDigits(playback), QStringLiteral("1456"), bound);
}

void TestPlaybackViewSequences::playsNoSecondSequenceAfterARightAnswer()
{
    const Playback playback({1, 2, 3});
    playOne(playback);
    playback.type({1, 2, 3});
    QCOMPARE(playback.view->outcome(), 0);
    QCOMPARE(runningTimers(playback), QStringList());
    QVERIFY(playback_fixture::digits.empty());
}

void TestPlaybackViewSequences::stopsPlaybackAtTheThirdDigit()
{
    Playback playback({1, 2, 3, 4, 5, 6});
    QCOMPARE(audio::loadClip(*playback.component, 1), 1);
    playback.sdl.status = SDL_AUDIO_PLAYING;
    playback.type({3, 2});
    QCOMPARE(playback.sdl.count("close "), 0);
    playback.type({1});
    QCOMPARE(playback.sdl.count("close 2"), 1);
    QVERIFY(!playback.view->hasFinished());
}

void TestPlaybackViewSequences::keepsOneGuard()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playOne(playback);
    playback.type({3, 2, 1}); // breaks the first sequence off, its guard still holding
    playOne(playback);
    QCOMPARE(guardCalls, (std::vector<std::string>{"guard 100", "set 100"}));
}

void TestPlaybackViewSequences::givesTheVolumeBackAtTheLatestWhenDestroyed()
{
    Playback playback;
    playOne(playback);
    playback.view.reset();
    QCOMPARE(guardCalls, (std::vector<std::string>{"guard 100", "restore"}));
}

void TestPlaybackViewSequences::endsWhenAClipCannotBePlayed_data()
{
    QTest::addColumn<int>("obstacle");
    QTest::addColumn<int>("closeCount");
    QTest::newRow("no clips: the device is open") << 0 << 1;
    QTest::newRow("no device") << 1 << 0;
    QTest::newRow("queuing fails: the device is open") << 2 << 1;
}

void TestPlaybackViewSequences::endsWhenAClipCannotBePlayed()
{
    QFETCH(int, obstacle);
    Playback playback;
    if (obstacle == 0)
        Playback::removeClips();
    if (obstacle == 1)
        playback.sdl.nextDeviceId = 0;
    if (obstacle == 2)
        playback.sdl.queueResult = -1;
    playback.sdl.status = SDL_AUDIO_PAUSED;
    playOne(playback);
    QCOMPARE(playback.view->outcome(), 3);
    QCOMPARE(playback.view->result(), 1);
    QTEST(playback.sdl.count("close "), "closeCount");
    QCOMPARE(playback.sdl.count("delay"), 0);
    QCOMPARE(runningTimers(playback), QStringList());
}

void TestPlaybackViewSequences::stopsTheDeviceBeforeItCloses_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("outcome");
    QTest::newRow("close button") << 0 << 3;
    QTest::newRow("Escape") << 1 << 3;
    QTest::newRow("fail button") << 2 << 2;
    QTest::newRow("system event") << 3 << 5;
    QTest::newRow("done") << 4 << 3;
    QTest::newRow("window manager") << 5 << 3;
}

void TestPlaybackViewSequences::stopsTheDeviceBeforeItCloses()
{
    QFETCH(int, way);
    Playback playback;
    playback.view->show();
    QCOMPARE(audio::loadClip(*playback.component, 1), 1);
    playback.sdl.status = SDL_AUDIO_PLAYING;
    int closedAtEnd = -1;
    connect(playback.view.get(), &QDialog::finished, this, [&] {
        if (closedAtEnd < 0)
            closedAtEnd = playback.sdl.count("close 2");
    });
    playback.context.flags = 8;
    switch (way) {
    case 0:
        playback.view->OnCloseButtonClicked();
        break;
    case 1:
        QTest::keyClick(playback.view.get(), Qt::Key_Escape);
        break;
    case 2:
        playback.view->OnFailButtonClicked();
        break;
    case 3:
        playback.view->CheckSystemEventAbortion();
        break;
    case 4:
        playback.view->done(1);
        break;
    default:
        playback.view->close();
    }
    QCOMPARE(closedAtEnd, 1);
    QTEST(playback.view->outcome(), "outcome");
    playback.view.reset();
    QCOMPARE(playback.sdl.count("close 2"), 1);
}

void TestPlaybackViewSequences::closesADeviceThatWasNeverStarted()
{
    Playback playback;
    QCOMPARE(audio::loadClip(*playback.component, 1), 1);
    playback.sdl.status = SDL_AUDIO_PAUSED;
    playback.view->OnCloseButtonClicked();
    QCOMPARE(playback.sdl.count("close 2"), 1);
}

void TestPlaybackViewSequences::closesADeviceWhenStoppedFromOutside()
{
    Playback playback;
    QCOMPARE(audio::loadClip(*playback.component, 1), 1);
    emit playback.view->finished(0); // as the watcher does: nothing closes the dialog
    QCOMPARE(playback.view->outcome(), 3);
    QCOMPARE(playback.sdl.count("close 2"), 0);
    playback.view.reset();
    QCOMPARE(playback.sdl.count("close 2"), 1);
}

void TestPlaybackViewSequences::neverClosesTwice()
{
    Playback playback({1, 2, 3});
    for (int digit = 0; digit < 3; ++digit)
        playOne(playback);
    playback.sdl.status = SDL_AUDIO_PLAYING; // the number now belongs to another opener
    playback.type({1, 2, 3});
    playback.view.reset();
    QCOMPARE(playback.sdl.count("close 2"), 3);
}

void TestPlaybackViewSequences::stopsEveryTimerWhenDone()
{
    const Playback playback;
    playback.view->PlayAudio();
    QCOMPARE(runningTimers(playback).size(), 3);
    playback.view->done(1);
    QCOMPARE(runningTimers(playback), QStringList());
}

void TestPlaybackViewSequences::showsTheMovieWhilePlaying()
{
    const Playback playback;
    const QLabel &indicator = playback.at<QLabel>("sound_indicator_gif");
    QVERIFY(indicator.movie() == nullptr);
    QVERIFY(!indicator.pixmap().isNull());
    playback.view->PlayAudio();
    QVERIFY(indicator.movie() != nullptr);
    QCOMPARE(indicator.movie()->fileName(), QStringLiteral(":/audio/resources/icons/playing_sound_gif.gif"));
    QCOMPARE(indicator.movie()->parent(), playback.view.get());
    QCOMPARE(indicator.movie()->state(), QMovie::Running);
    QVERIFY(indicator.movie()->isValid());
    QVERIFY(indicator.movie()->frameCount() > 1);
    QCOMPARE(indicator.movie()->currentPixmap().size(), indicator.size());
}

void TestPlaybackViewSequences::deletesTheMovieBefore()
{
    const Playback playback;
    for (int digit = 0; digit < 3; ++digit) {
        playOne(playback);
        QCOMPARE(playback.view->findChildren<QMovie *>().size(), 1);
    }
    playback.view->PlayAudio();
    QCOMPARE(playback.view->findChildren<QMovie *>().size(), 0);
}

void TestPlaybackViewSequences::announcesNothingWhileAClipPlays()
{
    const Playback playback;
    playback.view->show();
    playback.at<QPushButton>("numpad_repeat_button").setFocus();
    const QStringList atRest = heard(playback);
    playback.view->PlayAudio();
    const QStringList before = heard(playback);
    QVERIFY(before != atRest);
    playback.view->CheckAudioIsPlaying();
    QCOMPARE(heard(playback), before);
}

QTEST_MAIN(TestPlaybackViewSequences)
#include "tst_playback_view_sequences.moc"

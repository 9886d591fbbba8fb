// SPDX-License-Identifier: Apache-2.0
#include "autotests/views/playback_fixture.h"

#include <QElapsedTimer>
#include <QLabel>

#include <array>
#include <cstdlib>
#include <set>

using namespace ostra;
using playback_fixture::Playback;

class TestPlaybackViewTyping : public QObject {
    Q_OBJECT

private slots:
    void drawsThreeDifferentDigits();
    void drawsEveryDigitEquallyOften();
    void showsADigitAtItsPosition();
    void takesTheDigitFromTheText();
    void keepsADigitThatIsTypedTwice();
    void freesADigitThatWasTypedTwiceWithOneBackspace();
    void ignoresBackspaceWithoutADigit();
    void takesTheFirstDigitBack();
    void takesTheSecondDigitBack();
    void passesWithTheRightSequence();
    void startsASecondSequenceAfterAWrongOne();
    void failsWithASecondWrongSequence();
    void passesWithARightSecondSequence();
    void startsTheSecondSequenceEmpty();
    void comparesPositionByPosition();
    void wrapsTheSecondMessageOnFineScreensOnly_data();
    void wrapsTheSecondMessageOnFineScreensOnly();
    void ignoresDigitsAfterTheEnd();
    void endsOnceOnly();
    void failsWithTheFailButton();
    void isNotCompletedWhenClosed_data();
    void isNotCompletedWhenClosed();
    void isNotCompletedBeforeAnythingHappens();
    void stopsForASystemEvent_data();
    void stopsForASystemEvent();
    void notesASystemEventWithin300Milliseconds();
    void copesWithoutASourceOfEvents();
};

void TestPlaybackViewTyping::drawsThreeDifferentDigits()
{
    const Playback playback({7, 7, 3, 7, 3, 9});
    QVERIFY(playback_fixture::digits.empty());
    playback.type({7, 3, 9});
    QCOMPARE(playback.view->outcome(), 0);
}

void TestPlaybackViewTyping::drawsEveryDigitEquallyOften()
{
    std::array<int, 10> counts{};
    constexpr int drawCount = 20000;
    for (int draw = 0; draw < drawCount; ++draw)
        ++counts.at(static_cast<std::size_t>(randomDigit())); // throws for what is no digit
    // Five standard deviations of a binomial count.
    for (const int count : counts)
        QVERIFY2(std::abs(count - drawCount / 10) < 212, qPrintable(QString::number(count)));
    QVERIFY(PlaybackSources().digit == &randomDigit);
    for (int draw = 0; draw < 200; ++draw) {
        const std::vector<int> sequence = drawSequence();
        QCOMPARE(sequence.size(), std::size_t(3));
        QCOMPARE(std::set<int>(sequence.begin(), sequence.end()).size(), std::size_t(3));
    }
}

void TestPlaybackViewTyping::showsADigitAtItsPosition()
{
    const Playback playback;
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
    playback.type({4});
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
    QCOMPARE(playback.at<QPushButton>("first_input_set").text(), QStringLiteral("4"));
    QVERIFY(playback.key(4).isHidden());
    QVERIFY(!playback.pressedKey(4).isHidden());
    playback.type({0});
    QCOMPARE(playback.inputs(), QStringLiteral("set set current"));
    QCOMPARE(playback.at<QPushButton>("second_input_set").text(), QStringLiteral("0"));
}

void TestPlaybackViewTyping::takesTheDigitFromTheText()
{
    const Playback playback;
    for (int digit = 0; digit < 10; ++digit)
        QCOMPARE(playback.key(digit).text(), QString::number(digit)); // no mnemonic
    playback.key(5).setText(QStringLiteral("8"));
    playback.view->FifthInputButtonClicked();
    QCOMPARE(playback.at<QPushButton>("first_input_set").text(), QStringLiteral("8"));
    QVERIFY(playback.key(8).isHidden());
}

void TestPlaybackViewTyping::keepsADigitThatIsTypedTwice()
{
    const Playback playback;
    playback.type({4});
    playback.view->FourthInputButtonClicked();
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
    QVERIFY(playback.key(4).isHidden());
    QVERIFY(!playback.pressedKey(4).isHidden());
}

void TestPlaybackViewTyping::freesADigitThatWasTypedTwiceWithOneBackspace()
{
    const Playback playback;
    playback.type({4});
    playback.view->FourthInputButtonClicked();
    playback.at<QPushButton>("numpad_backspace_button").click();
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
    QVERIFY(!playback.key(4).isHidden());
    QVERIFY(playback.pressedKey(4).isHidden());
}

void TestPlaybackViewTyping::ignoresBackspaceWithoutADigit()
{
    const Playback playback;
    playback.at<QPushButton>("numpad_backspace_button").click();
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
    for (int digit = 0; digit < 10; ++digit)
        QVERIFY(!playback.key(digit).isHidden() && playback.pressedKey(digit).isHidden());
}

void TestPlaybackViewTyping::takesTheFirstDigitBack()
{
    const Playback playback;
    playback.type({6});
    playback.at<QPushButton>("numpad_backspace_button").click();
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
    QVERIFY(playback.at<QPushButton>("first_input_set").text().isEmpty());
    QVERIFY(!playback.key(6).isHidden());
    QVERIFY(playback.pressedKey(6).isHidden());
}

void TestPlaybackViewTyping::takesTheSecondDigitBack()
{
    const Playback playback({6, 7, 8});
    playback.type({6, 9});
    playback.at<QPushButton>("numpad_backspace_button").click();
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
    QVERIFY(!playback.key(9).isHidden());
    playback.type({7, 8});
    QCOMPARE(playback.view->outcome(), 0);
}

void TestPlaybackViewTyping::passesWithTheRightSequence()
{
    const Playback playback({5, 0, 9});
    const QSignalSpy finished(playback.view.get(), &QDialog::finished);
    playback.type({5, 0, 9});
    QCOMPARE(playback.view->outcome(), 0);
    QCOMPARE(playback.view->result(), 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(playback.shows("first_audio_sequence_message"));
}

void TestPlaybackViewTyping::startsASecondSequenceAfterAWrongOne()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.type({1, 3, 2});
    QVERIFY(!playback.view->hasFinished());
    QCOMPARE(playback.view->outcome(), 3);
    QVERIFY(!playback.shows("current_audio_sequence_icon"));
    QVERIFY(playback.shows("failed_audio_sequence_icon"));
    QVERIFY(!playback.shows("non_executed_audio_sequence_icon"));
    QVERIFY(playback.shows("current_audio_sequence_icon_2"));
    QVERIFY(!playback.shows("first_audio_sequence_message"));
    QVERIFY(playback.shows("second_audio_sequence_message_background"));
    QVERIFY(playback_fixture::digits.empty()); // newly drawn
}

void TestPlaybackViewTyping::failsWithASecondWrongSequence()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.type({1, 3, 2, 1, 2, 3});
    QCOMPARE(playback.view->outcome(), 1);
    QCOMPARE(playback.view->result(), 1);
}

void TestPlaybackViewTyping::passesWithARightSecondSequence()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.type({1, 3, 2, 4, 5, 6});
    QCOMPARE(playback.view->outcome(), 0);
}

void TestPlaybackViewTyping::startsTheSecondSequenceEmpty()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.type({7, 8, 9});
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
    for (int digit = 0; digit < 10; ++digit)
        QVERIFY(!playback.key(digit).isHidden() && playback.pressedKey(digit).isHidden());
    playback.at<QPushButton>("numpad_backspace_button").click(); // the old digits are gone
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
}

void TestPlaybackViewTyping::comparesPositionByPosition()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.type({3, 2, 1}); // the same digits
    QVERIFY(!playback.view->hasFinished());
    QVERIFY(playback.shows("failed_audio_sequence_icon"));
}

void TestPlaybackViewTyping::wrapsTheSecondMessageOnFineScreensOnly_data()
{
    QTest::addColumn<quint32>("dpi");
    QTest::addColumn<bool>("wraps");
    QTest::newRow("96") << 96U << false;
    QTest::newRow("144") << 144U << false;
    QTest::newRow("145 counts as 144") << 145U << false;
    QTest::newRow("168") << 168U << true;
    QTest::newRow("288") << 288U << true;
}

void TestPlaybackViewTyping::wrapsTheSecondMessageOnFineScreensOnly()
{
    QFETCH(quint32, dpi);
    playback_fixture::monitorDpi = dpi;
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback_fixture::monitorDpi = 96;
    QVERIFY(!playback.at<QLabel>("second_audio_sequence_message").wordWrap());
    playback.type({7, 8, 9});
    QTEST(playback.at<QLabel>("second_audio_sequence_message").wordWrap(), "wraps");
}

void TestPlaybackViewTyping::ignoresDigitsAfterTheEnd()
{
    const Playback playback({1, 2, 3});
    playback.type({1, 2, 3});
    playback.view->FourthInputButtonClicked();
    playback.at<QPushButton>("numpad_backspace_button").click();
    QCOMPARE(playback.inputs(), QStringLiteral("set set set"));
    QVERIFY(!playback.key(4).isHidden());
    QCOMPARE(playback.view->outcome(), 0);
}

void TestPlaybackViewTyping::endsOnceOnly()
{
    Playback playback({1, 2, 3});
    const QSignalSpy finished(playback.view.get(), &QDialog::finished);
    playback.type({1, 2, 3});
    playback.view->OnFailButtonClicked();
    playback.view->OnCloseButtonClicked();
    playback.context.flags = 1;
    playback.view->CheckSystemEventAbortion();
    QCOMPARE(playback.view->outcome(), 0);
    QCOMPARE(finished.count(), 1);
}

void TestPlaybackViewTyping::failsWithTheFailButton()
{
    const Playback playback;
    playback.at<QPushButton>("fail_button").click();
    QCOMPARE(playback.view->outcome(), 2);
    QCOMPARE(playback.view->result(), 1);
}

void TestPlaybackViewTyping::isNotCompletedWhenClosed_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("result");
    QTest::newRow("close button") << 0 << 1;
    QTest::newRow("window manager") << 1 << 0;
}

void TestPlaybackViewTyping::isNotCompletedWhenClosed()
{
    QFETCH(int, way);
    const Playback playback;
    playback.view->show();
    if (way == 0)
        playback.at<QPushButton>("header_close").click();
    else
        playback.view->close();
    QCOMPARE(playback.view->outcome(), 3);
    QTEST(playback.view->result(), "result");
    QVERIFY(playback.view->hasFinished());
}

void TestPlaybackViewTyping::isNotCompletedBeforeAnythingHappens()
{
    const Playback playback;
    QCOMPARE(playback.view->outcome(), 3);
    QCOMPARE(playback.view->result(), 0);
}

void TestPlaybackViewTyping::stopsForASystemEvent_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<int>("outcome");
    for (const quint32 bit : {0U, 1U, 3U, 4U, 5U, 6U, 7U, 8U})
        QTest::addRow("bit %u", bit) << (1U << bit) << 5;
    QTest::newRow("none") << 0U << 3;
    QTest::newRow("bit 2") << 4U << 3;
    QTest::newRow("bit 9 and above") << 0xFFFFFE00U << 3;
    QTest::newRow("all") << 0xFFFFFFFFU << 5;
}

void TestPlaybackViewTyping::stopsForASystemEvent()
{
    QFETCH(quint32, flags);
    QFETCH(int, outcome);
    Playback playback;
    playback.context.flags = flags;
    playback.view->CheckSystemEventAbortion();
    QCOMPARE(playback.view->outcome(), outcome);
    QCOMPARE(playback.view->hasFinished(), outcome == 5);
}

void TestPlaybackViewTyping::notesASystemEventWithin300Milliseconds()
{
    Playback playback;
    QElapsedTimer elapsed;
    elapsed.start();
    playback.context.flags = 0x100;
    QTRY_COMPARE_WITH_TIMEOUT(playback.view->outcome(), 5, 1500);
    QVERIFY2(elapsed.elapsed() < 900, qPrintable(QString::number(elapsed.elapsed()))); // before the first digit
}

void TestPlaybackViewTyping::copesWithoutASourceOfEvents()
{
    Playback playback;
    playback.context.hasEvents = false;
    playback.view->CheckSystemEventAbortion();
    QVERIFY(!playback.view->hasFinished());
    playback.view = std::make_unique<AudioPlaybackTestView>(nullptr, nullptr, 0, playback.component.get(), nullptr);
    playback.view->CheckSystemEventAbortion();
    QVERIFY(!playback.view->hasFinished());
}

QTEST_MAIN(TestPlaybackViewTyping)
#include "tst_playback_view_typing.moc"

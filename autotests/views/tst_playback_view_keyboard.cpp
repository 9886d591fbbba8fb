// SPDX-License-Identifier: Apache-2.0
#include "autotests/views/playback_fixture.h"

#include <QApplication>

#include <new>
#include <utility>

using namespace ostra;
using playback_fixture::Playback;

namespace {

QString focused(const Playback &playback)
{
    const QWidget *widget = playback.view->focusWidget();
    return widget == nullptr ? QString() : widget->objectName().remove(QStringLiteral("audio_playback_test_"));
}

} // namespace

class TestPlaybackViewKeyboard : public QObject {
    Q_OBJECT

private slots:
    void typesDigits_data();
    void typesDigits();
    void showsTheKeyOfATypedDigitPressed();
    void typesWhereverTheFocusIs();
    void closesWithEscape();
    void hasNoUseForEnterAndBackspace_data();
    void hasNoUseForEnterAndBackspace();
    void hasNoDefaultButton();
    void doesNotPressAnythingWithABlankAtFirst();
    void tabsThroughTheControlsInVisualOrder();
    void pressesTheFocusedButtonWithABlank();
    void keepsTheFocusOffTheFailButtonWhileASequencePlays();
    void leavesAFocusThatTheUserMoved();
    void ignoresKeysAfterTheEnd();
    void nothingIsThrownIntoTheEventLoop_data();
    void nothingIsThrownIntoTheEventLoop();

private:
    static bool show(const Playback &playback)
    {
        playback.view->show();
        playback.view->activateWindow();
        return QTest::qWaitForWindowActive(playback.view.get());
    }
};

void TestPlaybackViewKeyboard::typesDigits_data()
{
    QTest::addColumn<int>("digit");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (int digit = 0; digit < 10; ++digit) {
        QTest::addRow("%d", digit) << digit << Qt::KeyboardModifiers();
        QTest::addRow("%d of the keypad", digit) << digit << Qt::KeyboardModifiers(Qt::KeypadModifier);
    }
}

void TestPlaybackViewKeyboard::typesDigits()
{
    QFETCH(int, digit);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    const Playback playback({1, 2, 3});
    QTest::keyClick(playback.view.get(), static_cast<Qt::Key>(Qt::Key_0 + digit), modifiers);
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
    QCOMPARE(playback.at<QPushButton>("first_input_set").text(), QString::number(digit));
}

void TestPlaybackViewKeyboard::showsTheKeyOfATypedDigitPressed()
{
    const Playback playback({1, 2, 3});
    QTest::keyClick(playback.view.get(), Qt::Key_5);
    QVERIFY(playback.key(5).isHidden());
    QVERIFY(!playback.pressedKey(5).isHidden());
    QTest::keyClick(playback.view.get(), Qt::Key_5);
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
}

void TestPlaybackViewKeyboard::typesWhereverTheFocusIs()
{
    const Playback playback({1, 2, 3});
    QVERIFY(show(playback));
    int digit = 1;
    for (const char *name : {"header_close", "numpad_repeat_button", "fail_button"}) {
        playback.at(name).setFocus();
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(Qt::Key_0 + digit++));
    }
    QCOMPARE(playback.view->outcome(), 0);
}

void TestPlaybackViewKeyboard::closesWithEscape()
{
    const Playback playback;
    QSignalSpy finished(playback.view.get(), &QDialog::finished);
    playback.view->show();
    QTest::keyClick(playback.view.get(), Qt::Key_Escape);
    QCOMPARE(playback.view->outcome(), 3);
    QVERIFY(!playback.view->isVisible());
    QCOMPARE(finished.count(), 2); // ended, and then rejected by the dialog's own handling
    QCOMPARE(finished.at(0).at(0).toInt(), 1);
    QCOMPARE(finished.at(1).at(0).toInt(), 0);
}

void TestPlaybackViewKeyboard::hasNoUseForEnterAndBackspace_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace);
    QTest::newRow("A") << int(Qt::Key_A);
}

void TestPlaybackViewKeyboard::hasNoUseForEnterAndBackspace()
{
    QFETCH(int, key);
    const Playback playback;
    QVERIFY(show(playback));
    playback.type({4});
    QTest::keyClick(playback.view.get(), static_cast<Qt::Key>(key));
    QVERIFY(!playback.view->hasFinished());
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
}

void TestPlaybackViewKeyboard::hasNoDefaultButton()
{
    const Playback playback;
    playback.view->show();
    const QList<QPushButton *> buttons = playback.view->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 33);
    for (const QPushButton *button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
}

void TestPlaybackViewKeyboard::doesNotPressAnythingWithABlankAtFirst()
{
    const Playback playback;
    QVERIFY(show(playback));
    QCOMPARE(QApplication::focusWidget(), playback.view.get());
    playback.type({4}); // hiding a key moves no focus
    QCOMPARE(QApplication::focusWidget(), playback.view.get());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(!playback.view->hasFinished());
    QCOMPARE(playback.inputs(), QStringLiteral("set current unset"));
}

void TestPlaybackViewKeyboard::tabsThroughTheControlsInVisualOrder()
{
    const Playback playback;
    QVERIFY(show(playback));
    QStringList order;
    for (int step = 0; step < 5; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order.append(focused(playback));
    }
    QCOMPARE(order.join(u' '),
             QStringLiteral("header_close numpad_backspace_button numpad_repeat_button fail_button header_close"));
}

void TestPlaybackViewKeyboard::pressesTheFocusedButtonWithABlank()
{
    const Playback playback;
    QVERIFY(show(playback));
    playback.type({4});
    playback.at("numpad_backspace_button").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(playback.inputs(), QStringLiteral("current unset unset"));
}

void TestPlaybackViewKeyboard::keepsTheFocusOffTheFailButtonWhileASequencePlays()
{
    const Playback playback;
    QVERIFY(show(playback));
    playback.at("numpad_repeat_button").setFocus();
    playback.view->PlayAudio(); // disables the button
    QCOMPARE(QApplication::focusWidget(), playback.view.get());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(!playback.view->hasFinished());
    for (int digit = 0; digit < 3; ++digit) {
        playback.view->CheckAudioIsPlaying();
        playback.view->PlayAudio();
    }
    QCOMPARE(focused(playback), QStringLiteral("numpad_repeat_button"));
}

void TestPlaybackViewKeyboard::leavesAFocusThatTheUserMoved()
{
    const Playback playback;
    QVERIFY(show(playback));
    playback.at("numpad_repeat_button").setFocus();
    playback.view->PlayAudio();
    playback.at("numpad_backspace_button").setFocus();
    for (int digit = 0; digit < 3; ++digit) {
        playback.view->CheckAudioIsPlaying();
        playback.view->PlayAudio();
    }
    QCOMPARE(focused(playback), QStringLiteral("numpad_backspace_button"));
}

void TestPlaybackViewKeyboard::ignoresKeysAfterTheEnd()
{
    const Playback playback({1, 2, 3});
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4})
        QTest::keyClick(playback.view.get(), key);
    QVERIFY(!playback.key(4).isHidden());
    QTest::keyClick(playback.view.get(), Qt::Key_Escape);
    QCOMPARE(playback.view->outcome(), 0);
}

void TestPlaybackViewKeyboard::nothingIsThrownIntoTheEventLoop_data()
{
    QTest::addColumn<bool>("isKey");
    QTest::newRow("escape") << true;
    QTest::newRow("an event of the machine") << false;
}

// What throws is told of the end first, as an object of the host may be.
void TestPlaybackViewKeyboard::nothingIsThrownIntoTheEventLoop()
{
    QFETCH(const bool, isKey);
    Playback playback;
    bool hasThrown = false;
    connect(playback.view.get(), &QDialog::finished, this, [&] {
        if (!std::exchange(hasThrown, true))
            throw std::bad_alloc();
    });
    playback.context.flags = isKey ? 0 : 1;
    try {
        if (isKey)
            QTest::keyClick(playback.view.get(), Qt::Key_Escape);
        else
            playback.view->CheckSystemEventAbortion();
    } catch (...) {
        QFAIL("it came out");
    }
    QVERIFY(hasThrown && playback.view->hasFinished());
    QCOMPARE(playback.view->outcome(), isKey ? 3 : 5);
}

QTEST_MAIN(TestPlaybackViewKeyboard)
#include "tst_playback_view_keyboard.moc"

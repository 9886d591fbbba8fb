// SPDX-License-Identifier: Apache-2.0
#include "autotests/views/playback_fixture.h"
#include "autotests/views/throwing_host.h"

#include <QApplication>

#include <new>

using namespace ostra;
using playback_fixture::Playback;

namespace {

QString focused(const Playback &playback)
{
    const QWidget *widget = playback.view->focusWidget();
    return widget == nullptr ? QString() : widget->objectName().remove(QStringLiteral("audio_playback_test_"));
}

using End = void (*)(Playback &);

} // namespace

Q_DECLARE_METATYPE(End)

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
    void aListenerThatThrowsDoesNotChangeTheEnd_data();
    void aListenerThatThrowsDoesNotChangeTheEnd();

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

void TestPlaybackViewKeyboard::aListenerThatThrowsDoesNotChangeTheEnd_data()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<int>("outcome");
    QTest::newRow("escape") << End([](Playback &playback) { QTest::keyClick(playback.view.get(), Qt::Key_Escape); }) << 3;
    QTest::newRow("close") << End([](Playback &playback) { playback.at<QPushButton>("header_close").click(); }) << 3;
    QTest::newRow("no sound") << End([](Playback &playback) { playback.at<QPushButton>("fail_button").click(); }) << 2;
    QTest::newRow("a right answer") << End([](Playback &playback) { playback.type({0, 1, 2}); }) << 0;
    QTest::newRow("an event of the machine") << End([](Playback &playback) {
        playback.context.flags = 1;
        playback.view->CheckSystemEventAbortion();
    }) << 5;
}

void TestPlaybackViewKeyboard::aListenerThatThrowsDoesNotChangeTheEnd()
{
    QFETCH(const End, end);
    Playback playback;
    int toldCount = 0;
    connect(playback.view.get(), &QDialog::finished, this, [&] {
        ++toldCount;
        throw std::bad_alloc();
    });
    bool hasComeOut = false;
    QTimer::singleShot(0, playback.view.get(), [&] { hasComeOut = throwing_host::comesOut([&] { end(playback); }); });
    playback.view->exec();
    QVERIFY(!hasComeOut && toldCount > 1);
    QVERIFY(playback.view->hasFinished() && !playback.view->isVisible());
    QTEST(playback.view->outcome(), "outcome");
}

QTEST_MAIN(TestPlaybackViewKeyboard)
#include "tst_playback_view_keyboard.moc"

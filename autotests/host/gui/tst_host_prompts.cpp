// SPDX-License-Identifier: Apache-2.0
#include "host/gui/host_prompts.h"

#include "host/gui/dialog_prompter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

const QString title = QStringLiteral("MICROPHONE_INTERACTIVE_TEST");
const QString question = QStringLiteral("DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED");

void expose(QWidget &window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

template <typename Widget>
Widget *child(const QWidget &window, const char *name)
{
    return window.findChild<Widget *>(QLatin1String(name));
}

// Does something in the dialog that the prompter opens next.
void whenOpen(const std::function<void(QDialog &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        act(*dialog);
    });
}

} // namespace

class TestHostPrompts : public QObject {
    Q_OBJECT

private slots:
    void staysOpenWhenNotAnsweredByAButton_data();
    void staysOpenWhenNotAnsweredByAButton();
    void answersByItsTwoButtonsOnly();
    void answersByKeyboardOnAButton();
    void takesTheAnswerOfTheQuestion_data();
    void takesTheAnswerOfTheQuestion();
    void takesTheAnswerOfThePrompt_data();
    void takesTheAnswerOfThePrompt();
    void listsWhoseVolumeWillBeRaised();
    void leavesOutAnEmptyList();
    void showsDeviceNamesAsTheyAre();
    void closesWithoutAnAnswerWhenDismissed();
    void namesEveryControl();
};

void TestHostPrompts::staysOpenWhenNotAnsweredByAButton_data()
{
    QTest::addColumn<std::function<void(QWidget &)>>("act");
    const auto row = [](const char *name, const std::function<void(QWidget &)> &act) { QTest::newRow(name) << act; };
    row("Escape", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); });
    row("Enter", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Enter); });
    row("Return", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Return); });
    row("Return where the focus is", [](QWidget &window) { QTest::keyClick(window.focusWidget(), Qt::Key_Return); });
    row("Escape on a button",
        [](QWidget &window) { QTest::keyClick(child<QPushButton>(window, "host_question_yes"), Qt::Key_Escape); });
    row("close", [](QWidget &window) { window.close(); });
    row("close from outside", [](QWidget &window) {
        QCloseEvent event;
        QApplication::sendEvent(&window, &event);
    });
    row("reject", [](QWidget &window) { static_cast<QDialog &>(window).reject(); });
}

void TestHostPrompts::staysOpenWhenNotAnsweredByAButton()
{
    QFETCH(const std::function<void(QWidget &)>, act);
    host::QuestionPrompt prompt(title, question);
    const QSignalSpy finished(&prompt, &QDialog::finished);
    expose(prompt);
    act(prompt);
    QCoreApplication::processEvents();
    QVERIFY(prompt.isVisible());
    QCOMPARE(finished.size(), 0);
}

void TestHostPrompts::answersByItsTwoButtonsOnly()
{
    const host::QuestionPrompt prompt(title, question);
    QCOMPARE(prompt.objectName(), QStringLiteral("host_question"));
    const auto buttons = prompt.findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(buttons[0]->objectName(), QStringLiteral("host_question_yes"));
    QCOMPARE(buttons[1]->objectName(), QStringLiteral("host_question_no"));
}

void TestHostPrompts::answersByKeyboardOnAButton()
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        host::QuestionPrompt prompt(title, question);
        expose(prompt);
        auto *no = child<QPushButton>(prompt, "host_question_no");
        no->setFocus();
        QTest::keyClick(no, key);
        QCOMPARE(prompt.result(), 4);
        QVERIFY(!prompt.isVisible());
    }
}

void TestHostPrompts::takesTheAnswerOfTheQuestion_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<std::uint32_t>("answer");
    QTest::newRow("yes") << QStringLiteral("host_question_yes") << std::uint32_t{3};
    QTest::newRow("no") << QStringLiteral("host_question_no") << std::uint32_t{4};
}

void TestHostPrompts::takesTheAnswerOfTheQuestion()
{
    QFETCH(const QString, button);
    host::DialogPrompter prompter;
    whenOpen([button](QDialog &dialog) { QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton); });
    QTEST(prompter.ask(title, question), "answer");
}

void TestHostPrompts::takesTheAnswerOfThePrompt_data()
{
    QTest::addColumn<std::function<void(QDialog &)>>("act");
    QTest::addColumn<bool>("isAccepted");
    const auto row = [](const char *name, bool isAccepted, const std::function<void(QDialog &)> &act) {
        QTest::newRow(name) << act << isAccepted;
    };
    row("accept", true,
        [](QDialog &dialog) { QTest::mouseClick(child<QPushButton>(dialog, "host_prompt_accept"), Qt::LeftButton); });
    row("decline", false,
        [](QDialog &dialog) { QTest::mouseClick(child<QPushButton>(dialog, "host_prompt_decline"), Qt::LeftButton); });
    row("Escape", false, [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    row("close", false, [](QDialog &dialog) { dialog.close(); });
    row("Enter", true, [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
}

void TestHostPrompts::takesTheAnswerOfThePrompt()
{
    QFETCH(const std::function<void(QDialog &)>, act);
    host::DialogPrompter prompter;
    whenOpen(act);
    QTEST(prompter.accept(QStringLiteral("AUDIO_PLAYBACK_TEST"), QStringLiteral("AUDIO_PLAYBACK_TEST_INSTRUCTIONS")),
          "isAccepted");
}

void TestHostPrompts::listsWhoseVolumeWillBeRaised()
{
    const host::InstructionsPrompt prompt(title, QStringLiteral("FIRST.|SECOND."),
                                          {QStringLiteral("Speakers"), QStringLiteral("Mic")});
    QCOMPARE(prompt.objectName(), QStringLiteral("host_prompt"));
    QCOMPARE(child<QLabel>(prompt, "host_prompt_text")->text(), QStringLiteral("FIRST.\nSECOND."));
    const QString listed = child<QLabel>(prompt, "host_prompt_endpoints")->text();
    QVERIFY(listed.contains(QStringLiteral("Speakers")) && listed.contains(QStringLiteral("Mic")));
    QCOMPARE(listed.count(u'\n'), 1);
}

void TestHostPrompts::leavesOutAnEmptyList()
{
    const host::InstructionsPrompt prompt(title, question, {});
    QVERIFY(child<QLabel>(prompt, "host_prompt_endpoints") == nullptr);
}

void TestHostPrompts::showsDeviceNamesAsTheyAre()
{
    const host::InstructionsPrompt prompt(title, question, {QStringLiteral("<b>Loud</b>")});
    QCOMPARE(child<QLabel>(prompt, "host_prompt_endpoints")->textFormat(), Qt::PlainText);
}

void TestHostPrompts::closesWithoutAnAnswerWhenDismissed()
{
    host::DialogPrompter prompter;
    whenOpen([&prompter](QDialog &) { prompter.dismissAll(); });
    QCOMPARE(prompter.ask(title, question), 0U);
    whenOpen([&prompter](QDialog &) { prompter.dismissAll(); });
    QVERIFY(!prompter.accept(title, question));
    prompter.dismissAll(); // nothing is open
}

void TestHostPrompts::namesEveryControl()
{
    const host::InstructionsPrompt instructions(title, question, {});
    const host::QuestionPrompt asking(title, question);
    for (const QWidget *window : {static_cast<const QWidget *>(&instructions), static_cast<const QWidget *>(&asking)}) {
        QStringList mnemonics;
        for (const QAbstractButton *button : window->findChildren<QAbstractButton *>()) {
            QVERIFY(!button->accessibleName().isEmpty());
            mnemonics.append(button->shortcut().toString());
        }
        QCOMPARE(mnemonics.removeDuplicates(), 0);
        QVERIFY(!mnemonics.contains(QString()));
    }
}

QTEST_MAIN(TestHostPrompts)
#include "tst_host_prompts.moc"

// SPDX-License-Identifier: Apache-2.0
#include "host/operator/test_operator.h"

#include "autotests/host/operator/listener_script.h"
#include "autotests/host/operator/stand_in_dialog.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMessageBox>
#include <QObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using host::HeardDigit;
using host::OperatorSettings;
using host::RunRecord;
using host::TestOperator;
using Outcome = StandInDialog::Outcome;

namespace {

constexpr int limitMs = 60'000; // a run takes one to five seconds

OperatorSettings settings(int mistypedSequences = 0)
{
    OperatorSettings made;
    made.source = QStringLiteral("Monitor of Speakers");
    made.clipsFolder = QStringLiteral("clips folder/en_US");
    made.language = QStringLiteral("en_US");
    made.mistypedSequences = mistypedSequences;
    return made;
}

/// Runs the dialog under the operator until it is done.
RunRecord run(StandInDialog &dialog, const OperatorSettings &given)
{
    TestOperator person(given);
    RunRecord record;
    if (!person.start())
        qFatal("%s", qPrintable(person.errorText()));
    QSignalSpy finished(&dialog, &QDialog::finished);
    person.beginRun();
    dialog.show();
    if (finished.isEmpty() && !finished.wait(limitMs)) {
        QTest::qFail("the dialog was never left", __FILE__, __LINE__);
        dialog.hide();
    }
    person.endRun(record);
    return record;
}

class RaiseCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

QList<int> heardIn(const RunRecord &record)
{
    QList<int> heard;
    for (const HeardDigit &row : record.digits)
        heard.append(row.heard.value_or(-1));
    return heard;
}

QList<int> typedIn(const RunRecord &record)
{
    QList<int> typed;
    for (const HeardDigit &row : record.digits)
        typed.append(row.typed.value_or(-1));
    return typed;
}

} // namespace

class TestTestOperator : public QObject {
    Q_OBJECT

private slots:
    void typesWhatItHears();
    void mistypesAsToldAndForgetsTheFirstSequence();
    void mistypesBothSequences();
    void asksOnceForARepetition();
    void saysThatNothingWasHeard();
    void doesNotCallADeviceSilentThatWasHeard_data();
    void doesNotCallADeviceSilentThatWasHeard();
    void keepsTheRowsOfTheBetterPlay();
    void raisesItsDialogOverAnotherWindow();
    void blamesNobodyForADeadMicrophone_data();
    void blamesNobodyForADeadMicrophone();
    void blamesNobodyWhereItCouldNotListen_data();
    void blamesNobodyWhereItCouldNotListen();
    void closesWhereTheSoundIsNoDigit();
    void doesNotTypeADigitTwice();
    void closesWhenTheListenerDies();
    void closesWhenTheSourceIsLost();
    void keepsWhatItHeardOfAnUnfinishedPlay();
    void acceptsTheInstructions();
    void leavesQuestionsOpen();
    void doesNotReachThroughWhatCoversAButton();
    void worksNothingOutsideARun();
    void photographsEachStep();
    void startsTheListenerWithItsSettings();
    void saysWhyTheListenerDidNotStart();
};

void TestTestOperator::typesWhatItHears()
{
    ListenerScript script;
    StandInDialog dialog({{7, 0, 3}}, [&script](int digit) { digit < 0 ? script.level(-20) : script.digit(digit); });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::passed);
    QCOMPARE(dialog.typed(), (QList<int>{7, 0, 3}));
    QCOMPARE(dialog.typedByKey(), (QList<bool>{false, true, false}));
    QVERIFY(!dialog.wasTypedWhilePlaying());
    QCOMPARE(dialog.playCount(), 1);
    QCOMPARE(heardIn(record), (QList<int>{7, 0, 3}));
    QCOMPARE(typedIn(record), (QList<int>{7, 0, 3}));
    QVERIFY(record.isUnattended && record.reason.isEmpty());
    QCOMPARE(record.listenedTo, QStringLiteral("Monitor of Speakers"));
    const HeardDigit &last = record.digits.at(2);
    QCOMPARE(last.sequence, 1);
    QCOMPARE(last.position, 3);
    QCOMPARE(last.score, 0.9);
    QCOMPARE(last.levelDbfs, -20.0);
    QVERIFY(last.playedAtMs > record.digits.at(0).playedAtMs + 600 && last.playedAtMs < limitMs);
    QVERIFY2(last.latencyMs >= 0 && last.latencyMs < 500, qPrintable(QString::number(last.latencyMs)));
}

void TestTestOperator::mistypesAsToldAndForgetsTheFirstSequence()
{
    ListenerScript script;
    StandInDialog dialog({{1, 2, 3}, {4, 5, 6}}, [&script](int digit) { digit < 0 ? script.level(-20) : script.digit(digit); });
    const RunRecord record = run(dialog, settings(1));
    QCOMPARE(dialog.outcome(), Outcome::passed);
    QCOMPARE(dialog.typed(), (QList<int>{1, 2, 0, 4, 5, 6}));
    QCOMPARE(dialog.playCount(), 2); // neither sequence was asked for again
    QCOMPARE(heardIn(record), (QList<int>{1, 2, 3, 4, 5, 6}));
    QCOMPARE(typedIn(record), dialog.typed());
    QCOMPARE(record.digits.at(3).sequence, 2);
    QCOMPARE(record.digits.at(3).position, 1);
}

void TestTestOperator::mistypesBothSequences()
{
    ListenerScript script;
    StandInDialog dialog({{0, 1, 2}, {9, 8, 7}}, [&script](int digit) { digit < 0 ? script.level(-20) : script.digit(digit); });
    run(dialog, settings(2));
    QCOMPARE(dialog.outcome(), Outcome::wrong);
    QCOMPARE(dialog.typed(), (QList<int>{0, 1, 3, 9, 8, 0}));
}

void TestTestOperator::asksOnceForARepetition()
{
    ListenerScript script;
    int played = 0;
    StandInDialog dialog({{5, 6, 8}}, [&](int digit) {
        if (digit < 0)
            return script.level(-20);
        ++played == 2 ? script.sound(-30) : script.digit(digit); // the second digit is drowned once
    });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::passed);
    QCOMPARE(dialog.playCount(), 2);
    QCOMPARE(heardIn(record), (QList<int>{5, 6, 8}));
}

void TestTestOperator::saysThatNothingWasHeard()
{
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script](int digit) {
        if (digit < 0)
            script.level(-120);
    });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::noSound);
    QCOMPARE(dialog.playCount(), 2);
    QVERIFY(dialog.typed().isEmpty());
    QCOMPARE(heardIn(record), (QList<int>{-1, -1, -1}));
    QCOMPARE(record.digits.at(0).levelDbfs, -120.0);
    QVERIFY(record.reason.isEmpty()); // the module's own verdict
}

void TestTestOperator::blamesNobodyForADeadMicrophone_data()
{
    QTest::addColumn<double>("levelDbfs");
    QTest::addColumn<bool>("isBlamed");
    QTest::newRow("zeros only, as without a microphone") << -120.0 << false;
    QTest::newRow("the noise of a quiet room") << -72.5 << true;
}

// In the air there is always some noise.
void TestTestOperator::blamesNobodyForADeadMicrophone()
{
    QFETCH(const double, levelDbfs);
    QFETCH(const bool, isBlamed);
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script, levelDbfs](int digit) {
        if (digit < 0)
            script.level(-120);
        else
            script.sound(levelDbfs);
    });
    OperatorSettings given = settings();
    given.source = QStringLiteral("Room Microphone");
    const RunRecord record = run(dialog, given);
    QCOMPARE(dialog.outcome(), isBlamed ? Outcome::noSound : Outcome::closed);
    QCOMPARE(record.reason, isBlamed ? QString() : QStringLiteral("the capture source delivers nothing"));
}

void TestTestOperator::doesNotCallADeviceSilentThatWasHeard_data()
{
    QTest::addColumn<int>("heardCount");
    QTest::addColumn<int>("mistyped");
    QTest::newRow("silent after two digits") << 2 << 0;
    QTest::newRow("silent in the second sequence") << 3 << 1;
}

// The listener is muted in the midst of it: what was heard before counts.
void TestTestOperator::doesNotCallADeviceSilentThatWasHeard()
{
    QFETCH(const int, heardCount);
    QFETCH(const int, mistyped);
    ListenerScript script;
    int played = 0;
    StandInDialog dialog({{5, 6, 8}, {1, 2, 3}}, [&](int digit) {
        if (digit < 0)
            return script.level(-120);
        if (++played <= heardCount)
            script.digit(digit);
    });
    const RunRecord record = run(dialog, settings(mistyped));
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(record.reason, QStringLiteral("not recognised"));
}

void TestTestOperator::keepsTheRowsOfTheBetterPlay()
{
    ListenerScript script;
    int played = 0;
    StandInDialog dialog({{5, 6, 8}}, [&](int digit) {
        if (digit < 0)
            return script.level(-30);
        ++played;
        played == 2 || played > 4 ? script.sound(-30) : script.digit(digit); // two digits at first, one later
    });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.playCount(), 2);
    QCOMPARE(heardIn(record), (QList<int>{5, -1, 8}));
}

void TestTestOperator::blamesNobodyWhereItCouldNotListen_data()
{
    QTest::addColumn<double>("share");
    QTest::addColumn<int>("droppedFrameCount");
    QTest::newRow("nothing arrived") << 0.0 << 0;
    QTest::newRow("half of it arrived") << 0.5 << 0;
    QTest::newRow("a frame was dropped") << 1.0 << 1;
}

// A capture that delivers nothing sounds like a silent device.
void TestTestOperator::blamesNobodyWhereItCouldNotListen()
{
    QFETCH(const double, share);
    QFETCH(const int, droppedFrameCount);
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&](int digit) {
        if (digit < 0)
            script.level(-120, share, droppedFrameCount);
    });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(record.reason, QStringLiteral("listener lost"));
}

void TestTestOperator::closesWhereTheSoundIsNoDigit()
{
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script](int digit) { digit < 0 ? script.level(-30) : script.sound(-30); });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(dialog.playCount(), 2);
    QVERIFY(dialog.typed().isEmpty());
    QCOMPARE(record.reason, QStringLiteral("not recognised"));
    QCOMPARE(heardIn(record), (QList<int>{-1, -1, -1}));
    QVERIFY(record.digits.at(0).clipped && record.digits.at(0).playedAtMs >= 0);
}

// The dialog draws three different digits: hearing one twice is an error of the ear.
void TestTestOperator::doesNotTypeADigitTwice()
{
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script](int digit) { digit < 0 ? script.level(-30) : script.digit(digit / 6); });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QVERIFY(dialog.typed().isEmpty());
    QCOMPARE(record.reason, QStringLiteral("not recognised"));
}

void TestTestOperator::closesWhenTheListenerDies()
{
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script](int) { script.end(1); });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QVERIFY(dialog.playCount() <= 1); // it is given the time to end by itself, not to repeat
    QVERIFY(dialog.typed().isEmpty());
    QCOMPARE(record.reason, QStringLiteral("listener lost"));
}

void TestTestOperator::closesWhenTheSourceIsLost()
{
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script](int) { script.say(R"({"event":"lost"})"); });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(record.reason, QStringLiteral("listener lost"));
}

void TestTestOperator::keepsWhatItHeardOfAnUnfinishedPlay()
{
    ListenerScript script;
    StandInDialog dialog({{5, 6, 8}}, [&script](int digit) {
        if (digit == 8)
            script.say(R"({"event":"lost"})");
        else if (digit >= 0)
            script.digit(digit);
    });
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(heardIn(record), (QList<int>{5, 6}));
    QCOMPARE(typedIn(record), (QList<int>{-1, -1}));
}

void TestTestOperator::acceptsTheInstructions()
{
    const ListenerScript script;
    QDialog prompt;
    prompt.setObjectName(QStringLiteral("host_prompt"));
    QPushButton accept(QStringLiteral("OK"), &prompt);
    accept.setObjectName(QStringLiteral("host_prompt_accept"));
    connect(&accept, &QPushButton::clicked, &prompt, &QDialog::accept);
    TestOperator person(settings());
    QVERIFY2(person.start(), qPrintable(person.errorText()));
    person.beginRun();
    prompt.open();
    QTRY_COMPARE_WITH_TIMEOUT(prompt.result(), int{QDialog::Accepted}, limitMs);
}

void TestTestOperator::leavesQuestionsOpen()
{
    const ListenerScript script;
    QDialog question;
    question.setObjectName(QStringLiteral("host_question"));
    QPushButton yes(QStringLiteral("Yes"), &question);
    yes.setObjectName(QStringLiteral("host_question_yes"));
    QSignalSpy clicked(&yes, &QPushButton::clicked);
    TestOperator person(settings());
    QVERIFY(person.start());
    person.beginRun();
    question.open();
    QVERIFY(!clicked.wait(500));
    RunRecord record;
    person.endRun(record);
    QCOMPARE(record.reason, QStringLiteral("a question was left open"));
}

void TestTestOperator::doesNotReachThroughWhatCoversAButton()
{
    ListenerScript script;
    QPushButton *cover = nullptr;
    StandInDialog dialog({{5, 6, 8}}, [&](int digit) { digit < 0 ? script.level(-20) : script.digit(digit); });
    TestOperator person(settings());
    QVERIFY(person.start());
    person.beginRun();
    dialog.show();
    cover = dialog.coverAll();
    QSignalSpy covered(cover, &QPushButton::clicked);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.playCount(), 1, limitMs);
    QVERIFY(!covered.wait(500));
    QVERIFY(dialog.typed().isEmpty());
    delete cover;
    QTRY_COMPARE_WITH_TIMEOUT(dialog.outcome(), Outcome::passed, limitMs);
}

void TestTestOperator::raisesItsDialogOverAnotherWindow()
{
    ListenerScript script;
    RaiseCounter raises;
    QList<int> raisesBefore;
    QWidget other;
    StandInDialog dialog({{5, 6, 8}}, [&](int digit) {
        if (digit >= 0)
            return script.digit(digit);
        script.level(-20);
        raisesBefore.append(raises.count);
        other.setGeometry(dialog.geometry());
        other.show();
    });
    dialog.installEventFilter(&raises);
    const RunRecord record = run(dialog, settings());
    QCOMPARE(dialog.outcome(), Outcome::passed);
    QCOMPARE(raisesBefore, QList<int>{0});
    QVERIFY(raises.count > 0);
}

void TestTestOperator::worksNothingOutsideARun()
{
    ListenerScript script;
    TestOperator person(settings());
    QVERIFY(person.start());
    person.beginRun();
    RunRecord record;
    person.endRun(record);
    StandInDialog dialog({{5, 6, 8}}, [&script](int digit) { digit < 0 ? script.level(-20) : script.digit(digit); });
    dialog.show();
    QTRY_COMPARE_WITH_TIMEOUT(dialog.playCount(), 1, limitMs);
    QSignalSpy finished(&dialog, &QDialog::finished);
    QVERIFY(!finished.wait(500));
    QVERIFY(dialog.typed().isEmpty());
}

void TestTestOperator::photographsEachStep()
{
    ListenerScript script;
    QTemporaryDir folder;
    OperatorSettings given = settings(1);
    given.screenshotsFolder = folder.filePath(QStringLiteral("pictures/of it"));
    StandInDialog dialog({{1, 2, 3}, {4, 5, 6}}, [&script](int digit) { digit < 0 ? script.level(-20) : script.digit(digit); });
    const RunRecord record = run(dialog, given);
    QStringList names;
    for (const QString &file : record.screenshots) {
        QVERIFY(QFileInfo(file).isAbsolute());
        QVERIFY2(QImage(file).width() >= dialog.minimumSizeHint().width(), qPrintable(file));
        names.append(QFileInfo(file).fileName());
    }
    QCOMPARE(record.reason, QString());
    QCOMPARE(names.join(u' '),
             QStringLiteral("01-playback-shown.png 02-sequence-1-typed.png 03-sequence-2-typed.png 04-end.png"));
}

void TestTestOperator::startsTheListenerWithItsSettings()
{
    const ListenerScript script;
    TestOperator person(settings());
    QVERIFY(person.start());
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/listener_arguments"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList arguments = QString::fromUtf8(file.readAll()).split(u'\n');
    QCOMPARE(arguments.size(), 6);
    QCOMPARE(arguments.mid(0, 3),
             (QStringList{QStringLiteral("--source"), QStringLiteral("Monitor of Speakers"), QStringLiteral("--clips")}));
    QVERIFY2(arguments.at(3).endsWith(QStringLiteral("/clips folder")), qPrintable(arguments.at(3)));
    QCOMPARE(arguments.mid(4), (QStringList{QStringLiteral("--language"), QStringLiteral("en_US")}));
}

void TestTestOperator::saysWhyTheListenerDidNotStart()
{
    ListenerScript script(false);
    script.end(3);
    TestOperator person(settings());
    QVERIFY(!person.start());
    QVERIFY(!person.errorText().isEmpty());
}

QTEST_MAIN(TestTestOperator)
#include "tst_test_operator.moc"

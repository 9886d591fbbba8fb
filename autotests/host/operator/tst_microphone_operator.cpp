// SPDX-License-Identifier: Apache-2.0
#include "host/operator/test_operator.h"

#include "autotests/host/operator/listener_script.h"
#include "autotests/host/operator/microphone_run.h"
#include "autotests/host/operator/stand_in_microphone.h"
#include "host/operator/heard_log.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using host::HeardRecording;
using host::OperatorSettings;
using host::RunRecord;
using host::TestOperator;
using Moment = StandInMicrophone::Moment;
using Outcome = StandInMicrophone::Outcome;

namespace {

constexpr int limitMs = 60'000; // a run takes five seconds

QByteArray now() { return QByteArray::number(host::steadyNowMs()); }

void clip(ListenerScript &script, double score, bool isFound)
{
    script.say(R"({"event":"clip","score":)" + QByteArray::number(score) + R"(,"found":)" + (isFound ? "true" : "false") +
               R"(,"levelDbfs":-21.5,"clipped":true,"startMs":)" + now() + '}');
}

// The ear hears the sentence while it is spoken.
void speech(ListenerScript &script) { clip(script, 0.99, true); }

void moment(ListenerScript &script, double left, double right, double difference)
{
    script.say(R"({"event":"meter","peakDbfs":-4,"rmsDbfs":-20,"channelDbfs":[)" + QByteArray::number(left) + ',' +
               QByteArray::number(right) + R"(],"differenceDbfs":)" + QByteArray::number(difference) +
               R"(,"wave":[-0.5,0.5],"atMs":)" + now() + '}');
}

} // namespace

class TestMicrophoneOperator : public QObject {
    Q_OBJECT

private slots:
    void saysYesWhereTheSentenceIsPlayedBack();
    void saysNoWhereNothingIsPlayedBack();
    void saysNoWhereSomethingElseIsPlayedBack();
    void blamesNobodyWhereTheSentenceWasNotHeard_data();
    void blamesNobodyWhereTheSentenceWasNotHeard();
    void closesWhereOnlyPartOfItIsPlayedBack();
    void listensOnceMoreToATornPlayback();
    void takesTheDialogsOwnChoice();
    void closesWhereThereIsNoSuchMicrophone();
    void closesWhereTheSentenceCannotBeSpoken();
    void closesWhereTheSentenceIsNotSpokenInTime();
    void closesWhereNothingOfThePlaybackArrived();
    void closesWhereAMicrophoneListensToNothing();
    void closesWhenTheListenerDies();
    void leavesAQuestionOpenThatItCannotJudge();
    void tellsBothChannelsApart_data();
    void tellsBothChannelsApart();
    void startsItsProgramsWithItsSettings();
    void passesTheLevelOn();
    void photographsEachStep();
};

// The sentence that is spoken during the recording is heard as well, and better: it does not count.
void TestMicrophoneOperator::saysYesWhereTheSentenceIsPlayedBack()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::recording)
            clip(script, 0.99, true);
        else if (moment == Moment::playing)
            clip(script, 0.81, true);
        else
            script.level(-20);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(dialog.outcome(), Outcome::heard);
    QCOMPARE(dialog.recordedBy(), QStringLiteral("Head & set"));
    QCOMPARE(dialog.recordCount(), 1);
    QCOMPARE(question.answer(), QStringLiteral("yes"));
    QVERIFY2(record.reason.isEmpty(), qPrintable(record.reason));
    QVERIFY(record.isUnattended && record.recording.has_value());
    const HeardRecording &heard = *record.recording;
    QCOMPARE(heard.microphone, QStringLiteral("Head & set"));
    QCOMPARE(heard.spokenThrough, QStringLiteral("Speakers"));
    QCOMPARE(heard.score, 0.81);
    QCOMPARE(heard.levelDbfs, -21.5);
    QVERIFY(heard.isFound && heard.isClipped && !heard.isSilent && heard.answer == true);
    QVERIFY(heard.heardAtMs && *heard.heardAtMs > 1500 && *heard.heardAtMs < limitMs);
    QVERIFY(heard.latencyMs && *heard.latencyMs < 500);
}

void TestMicrophoneOperator::saysNoWhereNothingIsPlayedBack()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::recording)
            clip(script, 0.99, true);
        else if (moment == Moment::played)
            script.level(-120);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(question.answer(), QStringLiteral("no"));
    QVERIFY(record.recording && !record.recording->isFound && record.recording->isSilent);
    QCOMPARE(dialog.playCount(), 1); // silence is silence
    QVERIFY(!record.recording->heardAtMs && !record.recording->latencyMs && !record.recording->isMonoInStereo);
    QCOMPARE(record.recording->answer, std::optional(false));
}

void TestMicrophoneOperator::saysNoWhereSomethingElseIsPlayedBack()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::recording)
            speech(script);
        else if (moment == Moment::playing)
            clip(script, 0.12, false);
        else if (moment == Moment::played)
            script.level(-20);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(question.answer(), QStringLiteral("no"));
    QVERIFY(record.recording && !record.recording->isFound && !record.recording->isSilent);
    QCOMPARE(record.recording->score, 0.12);
    QCOMPARE(dialog.playCount(), 2);
}

void TestMicrophoneOperator::blamesNobodyWhereTheSentenceWasNotHeard_data()
{
    QTest::addColumn<double>("scoreOfSpeech");
    QTest::addColumn<double>("playedDbfs");
    QTest::newRow("silence is played back") << 0.0 << -120.0;
    QTest::newRow("noise is played back") << 0.0 << -20.0;
    QTest::newRow("something like it was spoken") << 0.3 << -120.0;
}

// A loudspeaker that does not speak leaves every microphone without a sentence.
void TestMicrophoneOperator::blamesNobodyWhereTheSentenceWasNotHeard()
{
    QFETCH(const double, scoreOfSpeech);
    QFETCH(const double, playedDbfs);
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&](Moment moment) {
        if (moment == Moment::recording && scoreOfSpeech > 0)
            clip(script, scoreOfSpeech, false);
        else if (moment == Moment::played)
            script.level(playedDbfs);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(question.answer(), QString());
    QCOMPARE(record.reason, QStringLiteral("the sentence was not heard when it was spoken"));
    QVERIFY(!record.recording);
}

void TestMicrophoneOperator::closesWhereOnlyPartOfItIsPlayedBack()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::playing)
            clip(script, 0.58, false);
        else if (moment == Moment::played)
            script.level(-20);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(question.answer(), QString());
    QCOMPARE(record.reason, QStringLiteral("not recognised"));
    QVERIFY(!record.recording);
    QCOMPARE(dialog.playCount(), 2);
}

void TestMicrophoneOperator::listensOnceMoreToATornPlayback()
{
    ListenerScript script;
    Question question;
    int playCount = 0;
    StandInMicrophone dialog(microphones(), [&](Moment step) {
        if (step == Moment::playing)
            ++playCount == 1 ? clip(script, 0.31, false) : clip(script, 0.9, true);
        else if (step == Moment::played)
            script.level(-20);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(question.answer(), QStringLiteral("yes"));
    QCOMPARE(dialog.playCount(), 2);
    QCOMPARE(dialog.recordCount(), 1);
    QVERIFY(record.recording);
    QCOMPARE(record.recording->score, 0.9);
}

void TestMicrophoneOperator::takesTheDialogsOwnChoice()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::recording)
            speech(script);
        else if (moment == Moment::played)
            script.level(-120);
    });
    OperatorSettings given = microphoneSettings();
    given.microphone.clear();
    const RunRecord record = runMicrophone(dialog, question, given);
    QCOMPARE(dialog.recordedBy(), QStringLiteral("Mic"));
    QVERIFY(record.recording);
    QCOMPARE(record.recording->microphone, QStringLiteral("Mic"));
}

void TestMicrophoneOperator::closesWhereThereIsNoSuchMicrophone()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [](Moment) {});
    OperatorSettings given = microphoneSettings();
    given.microphone = QStringLiteral("Ear");
    const RunRecord record = runMicrophone(dialog, question, given);
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(record.reason,
             QStringLiteral("no microphone is named 'Ear' (there are: 'Mic', 'Camera', 'Line in', 'Head & set')"));
    QVERIFY(!record.recording);
}

void TestMicrophoneOperator::closesWhereTheSentenceCannotBeSpoken()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [](Moment) {});
    OperatorSettings given = microphoneSettings();
    given.speakThrough = QStringLiteral("Broken");
    const RunRecord record = runMicrophone(dialog, question, given);
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(dialog.recordCount(), 0);
    QVERIFY2(record.reason.contains(QStringLiteral("'Broken' cannot be opened")), qPrintable(record.reason));
}

void TestMicrophoneOperator::closesWhereTheSentenceIsNotSpokenInTime()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::playing)
            clip(script, 0.99, true); // spoken late, and heard without any microphone
        else if (moment == Moment::played)
            script.level(-20);
    });
    OperatorSettings given = microphoneSettings();
    given.speakThrough = QStringLiteral("Slow");
    const RunRecord record = runMicrophone(dialog, question, given);
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(question.answer(), QString());
    QCOMPARE(record.reason, QStringLiteral("the sentence was not spoken in time"));
}

void TestMicrophoneOperator::closesWhereNothingOfThePlaybackArrived()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::played)
            script.level(-120, 0.2);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(question.answer(), QString());
    QCOMPARE(record.reason, QStringLiteral("listener lost"));
}

void TestMicrophoneOperator::closesWhereAMicrophoneListensToNothing()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::played)
            script.level(-120);
    });
    OperatorSettings given = microphoneSettings();
    given.source = QStringLiteral("Webcam");
    const RunRecord record = runMicrophone(dialog, question, given);
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(question.answer(), QString());
    QCOMPARE(record.reason, QStringLiteral("the capture source delivers nothing"));
}

void TestMicrophoneOperator::closesWhenTheListenerDies()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::playing)
            script.end(4);
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(record.reason, QStringLiteral("listener lost"));
    QVERIFY(!record.recording);
}

void TestMicrophoneOperator::leavesAQuestionOpenThatItCannotJudge()
{
    const ListenerScript script;
    Question question;
    TestOperator person(microphoneSettings());
    QVERIFY(person.start());
    person.beginRun();
    question.open();
    QSignalSpy answered(&question, &QDialog::finished);
    QVERIFY(!answered.wait(500));
    RunRecord record;
    person.endRun(record);
    QCOMPARE(record.reason, QStringLiteral("a question was left open"));
}

void TestMicrophoneOperator::tellsBothChannelsApart_data()
{
    QTest::addColumn<double>("right");
    QTest::addColumn<double>("difference");
    QTest::addColumn<bool>("isMono");
    QTest::newRow("the same") << -20.0 << -90.0 << true;
    QTest::newRow("one is silent") << -120.0 << -20.0 << true;
    QTest::newRow("different") << -22.0 << -25.0 << false;
}

void TestMicrophoneOperator::tellsBothChannelsApart()
{
    QFETCH(const double, right);
    QFETCH(const double, difference);
    QFETCH(const bool, isMono);
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&](Moment step) {
        if (step == Moment::recording) {
            speech(script);
            moment(script, -3, -40, -3); // before the playback
        } else if (step == Moment::playing) {
            moment(script, -20, right, difference);
        } else {
            script.level(-20);
        }
    });
    const RunRecord record = runMicrophone(dialog, question, microphoneSettings());
    QVERIFY(record.recording);
    QCOMPARE(record.recording->isMonoInStereo, isMono);
    QVERIFY(!record.recording->lowest.isEmpty() && record.recording->lowest.size() == record.recording->highest.size());
    QCOMPARE(record.recording->lowest.first(), -0.5);
    QCOMPARE(record.recording->highest.first(), 0.5);
    QCOMPARE(record.recording->peakDbfs, -4.0);
}

void TestMicrophoneOperator::startsItsProgramsWithItsSettings()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::played)
            script.level(-120);
    });
    runMicrophone(dialog, question, microphoneSettings());
    const auto argumentsOf = [](const char *program) {
        QFile file(QCoreApplication::applicationDirPath() + u'/' + QLatin1String(program) + QStringLiteral("_arguments"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    };
    QCOMPARE(argumentsOf("listener"),
             QStringLiteral("--source\nMonitor of Speakers\n--find\naudio files/sentence.wav\n--meter"));
    QCOMPARE(argumentsOf("speaker"), QStringLiteral("--device\nSpeakers\n--play\naudio files/sentence.wav"));
}

void TestMicrophoneOperator::passesTheLevelOn()
{
    ListenerScript script;
    TestOperator person(microphoneSettings());
    QSignalSpy metered(&person, &TestOperator::metered);
    QVERIFY(person.start());
    moment(script, -20, -30, -40);
    QVERIFY(!metered.isEmpty() || metered.wait(limitMs));
    const auto heard = metered.first().first().value<host::MeteredMoment>();
    QCOMPARE(heard.leftDbfs, -20.0);
    QCOMPARE(heard.rightDbfs, -30.0);
    QCOMPARE(heard.wave, (QList<double>{-0.5, 0.5}));
}

void TestMicrophoneOperator::photographsEachStep()
{
    ListenerScript script;
    Question question;
    QTemporaryDir folder;
    OperatorSettings given = microphoneSettings();
    given.screenshotsFolder = folder.path();
    StandInMicrophone dialog(microphones(), [&script](Moment moment) {
        if (moment == Moment::recording)
            speech(script);
        else if (moment == Moment::played)
            script.level(-120);
    });
    const RunRecord record = runMicrophone(dialog, question, given);
    QStringList names;
    for (const QString &file : record.screenshots)
        names.append(QFileInfo(file).fileName());
    QCOMPARE(names.join(u' '), QStringLiteral("01-microphone-choice.png 02-microphone-record.png 03-microphone-played.png "
                                              "04-end.png 05-question.png"));
}

QTEST_MAIN(TestMicrophoneOperator)
#include "tst_microphone_operator.moc"

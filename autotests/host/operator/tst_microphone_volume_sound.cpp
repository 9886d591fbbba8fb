// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/operator/listener_script.h"
#include "autotests/host/operator/microphone_run.h"
#include "autotests/host/operator/stand_in_microphone.h"
#include "autotests/support/pulse_truth_linux.h"
#include "host/operator/heard_log.h"

#include <QObject>
#include <QTest>

using host::RunRecord;
using Moment = StandInMicrophone::Moment;
using Outcome = StandInMicrophone::Outcome;

Q_DECLARE_METATYPE(StandInMicrophone::Moment)

namespace {

constexpr unsigned full = 65536;
const QString sink = QStringLiteral("sink");
const QString source = QStringLiteral("source");

void setVolume(const QString &kind, const QString &name, unsigned volume, bool isMuted)
{
    pulse_truth::set(kind, name, {volume, volume}, isMuted);
}

/// Plays on "Speakers" what "Mic" recorded of "Headphones".
host::OperatorSettings threeEndpoints()
{
    host::OperatorSettings made = microphoneSettings();
    made.device = QStringLiteral("Speakers");
    made.speakThrough = QStringLiteral("Headphones");
    made.microphone = QStringLiteral("Mic");
    return made;
}

} // namespace

/// The operator of a microphone run on a machine whose volumes somebody changes meanwhile.
class TestMicrophoneVolumeSound : public QObject {
    Q_OBJECT

private slots:
    void init();
    void blamesNothingThatWasNotRaised_data();
    void blamesNothingThatWasNotRaised();
    void saysNoWhereAnotherDeviceIsMuted();
    void saysYesToWhatItHeardAllTheSame();
};

void TestMicrophoneVolumeSound::init()
{
    for (const char *name : {"sink1", "sink2", "sink3"})
        setVolume(sink, QLatin1String(name), full, false);
    setVolume(source, QStringLiteral("mic1"), full, false);
}

void TestMicrophoneVolumeSound::blamesNothingThatWasNotRaised_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Moment>("moment");
    QTest::newRow("device muted while it plays") << sink << QStringLiteral("sink1") << Moment::playing;
    QTest::newRow("output muted while it speaks") << sink << QStringLiteral("sink2") << Moment::recording;
    QTest::newRow("microphone muted while it records") << source << QStringLiteral("mic1") << Moment::recording;
}

void TestMicrophoneVolumeSound::blamesNothingThatWasNotRaised()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, name);
    QFETCH(const Moment, moment);
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&](Moment now) {
        if (now == moment)
            setVolume(kind, name, full, true);
        if (now == Moment::played)
            script.level(-120);
    });
    const RunRecord record = runMicrophone(dialog, question, threeEndpoints());
    QCOMPARE(dialog.outcome(), Outcome::closed);
    QCOMPARE(question.answer(), QString());
    QCOMPARE(record.reason, QStringLiteral("the volume could not be raised"));
    QVERIFY(!record.recording);
}

void TestMicrophoneVolumeSound::saysNoWhereAnotherDeviceIsMuted()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&](Moment now) {
        if (now == Moment::recording) {
            setVolume(sink, QStringLiteral("sink3"), full, true);
            script.say(R"({"event":"clip","score":0.9,"found":true,"levelDbfs":-21.5,"clipped":false,"startMs":)" +
                       QByteArray::number(host::steadyNowMs()) + '}');
        }
        if (now == Moment::played)
            script.level(-120);
    });
    const RunRecord record = runMicrophone(dialog, question, threeEndpoints());
    QCOMPARE(question.answer(), QStringLiteral("no"));
    QVERIFY2(record.reason.isEmpty(), qPrintable(record.reason));
}

void TestMicrophoneVolumeSound::saysYesToWhatItHeardAllTheSame()
{
    ListenerScript script;
    Question question;
    StandInMicrophone dialog(microphones(), [&](Moment now) {
        if (now == Moment::playing) {
            setVolume(sink, QStringLiteral("sink1"), full / 2, false);
            script.say(R"({"event":"clip","score":0.9,"found":true,"levelDbfs":-21.5,"clipped":false,"startMs":)" +
                       QByteArray::number(host::steadyNowMs()) + '}');
        } else if (now == Moment::played) {
            script.level(-20);
        }
    });
    const RunRecord record = runMicrophone(dialog, question, threeEndpoints());
    QCOMPARE(question.answer(), QStringLiteral("yes"));
    QVERIFY2(record.reason.isEmpty(), qPrintable(record.reason));
}

QTEST_MAIN(TestMicrophoneVolumeSound)
#include "tst_microphone_volume_sound.moc"

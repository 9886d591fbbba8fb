// SPDX-License-Identifier: Apache-2.0
#include "host/core/run_reason.h"

#include "host/core/channel_check.h"

#include <QFile>
#include <QObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using host::RunReason;
using host::RunRecord;

namespace {

QStringList keysOf(const RunRecord &record)
{
    QStringList keys;
    for (const RunReason &reason : host::reasonsOf(record))
        keys.append(reason.key);
    return keys;
}

RunRecord recordWith(std::uint32_t code)
{
    RunRecord record;
    record.testLetter = QStringLiteral("p");
    record.moduleCode = record.code = code;
    return record;
}

// The sentences among the literals: names of widgets and of pictures have no blanks.
QStringList sentencesIn(const QString &file)
{
    QFile source(QStringLiteral(SOURCE_FOLDER "/host/") + file);
    if (!source.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression literal(QStringLiteral(R"re(QStringLiteral\(\s*"([^"]* [^"]*)"\))re"));
    QStringList found;
    for (auto match = literal.globalMatch(QString::fromUtf8(source.readAll())); match.hasNext();) {
        const QString sentence = match.next().captured(1);
        if (sentence.contains(QRegularExpression(QStringLiteral("[a-z]{2} [a-z]"))))
            found.append(sentence);
    }
    return found;
}

} // namespace

class TestRunReason : public QObject {
    Q_OBJECT

private slots:
    void findsTheKeyOfItsWords_data();
    void findsTheKeyOfItsWords();
    void takesTheArgumentsOutOfTheWords();
    void putsArgumentsInOnce();
    void knowsWhateverTheOperatorSays();
    void knowsWhyTheChannelsWereNotMeasured();
    void tellsWhyThereIsNoPass_data();
    void tellsWhyThereIsNoPass();
    void hasNoReasonForAPass();
};

void TestRunReason::findsTheKeyOfItsWords_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("key");
    const auto add = [](const char *words, const char *key) {
        QTest::newRow(words) << QString::fromLatin1(words) << QString::fromLatin1(key);
    };
    add("listener lost", "REASON_LISTENER_LOST");
    add("the run was stopped", "REASON_STOPPED");
    add("the dialog did not go on", "REASON_DIALOG");
    add("Another run is holding the volumes.", "REASON_VOLUMES_HELD");
    add("Another run is holding the volumes (guardian process 12).", "REASON_VOLUMES_HELD");
    add("clips: de_DE/4_de_DE.wav is missing or is not the one that was supplied", "PRECHECK_CLIP_DAMAGED");
    add("audio_listener: 'x' cannot be opened: busy", "REASON_TOLD");
    add("the listener lost", "REASON_TOLD");
}

void TestRunReason::findsTheKeyOfItsWords()
{
    QFETCH(const QString, words);
    QTEST(host::reasonOf(words).key, "key");
    QCOMPARE(host::reasonOf(words).words, words);
}

void TestRunReason::takesTheArgumentsOutOfTheWords()
{
    const RunReason reason = host::reasonOf(QStringLiteral("no microphone is named 'A (1)' (there are: 'B', 'C')"));
    QCOMPARE(reason.key, QStringLiteral("REASON_NO_SUCH_MICROPHONE"));
    QCOMPARE(reason.arguments, (QStringList{QStringLiteral("A (1)"), QStringLiteral("B', 'C")}));
    const QStringList device{QStringLiteral("50 %1\nSpeakers")};
    QCOMPARE(host::reasonOf(host::reasonWords("REASON_VIRTUAL_DEVICE", device)).arguments, device);
    QCOMPARE(host::reasonOf(QStringLiteral("anything")).arguments, QStringList{QStringLiteral("anything")});
    for (const char *key :
         {"REASON_RUN_NOT_TAKEN", "REASON_HOST_BROKE_DOWN", "REASON_HOST_HUNG", "REASON_HOST_NOT_STARTED", "REASON_NO_MODULE",
          "REASON_DEVICE_GONE", "REASON_NO_OUTPUT_DEVICE", "REASON_NO_DISPLAY", "REASON_HEARS_ANOTHER"})
        QCOMPARE(host::reasonOf(host::reasonWords(key, device)).key, QLatin1String(key));
}

void TestRunReason::putsArgumentsInOnce()
{
    const QStringList arguments{QStringLiteral("%2"), QStringLiteral("b")};
    QCOMPARE(host::withArguments(QStringLiteral("%1, %2"), arguments), QStringLiteral("%2, b"));
    QCOMPARE(host::withArguments(QStringLiteral("%1"), arguments), QStringLiteral("%2"));
    QCOMPARE(host::withArguments(QStringLiteral("none"), arguments), QStringLiteral("none"));
}

void TestRunReason::knowsWhateverTheOperatorSays()
{
    int count = 0;
    for (const char *file : {"operator/microphone_worker.cpp", "operator/playback_worker.cpp", "operator/test_operator.cpp",
                             "operator/speaker_link.cpp"}) {
        for (const QString &sentence : sentencesIn(QLatin1String(file))) {
            ++count;
            QVERIFY2(host::reasonOf(sentence).key != QLatin1String("REASON_TOLD"), qPrintable(sentence));
        }
    }
    QVERIFY(count >= 20);
}

void TestRunReason::knowsWhyTheChannelsWereNotMeasured()
{
    QStringList names; // which stand in a report by themselves
    using enum host::ChannelMapping;
    for (const auto mapping : {straight, swapped, mixed, leftSilent, rightSilent, notMeasurable})
        names.append(host::mappingName(mapping));
    QSet<QString> keys;
    for (const char *file : {"core/channel_check.cpp", "operator/channel_listener.cpp"}) {
        for (const QString &sentence : sentencesIn(QLatin1String(file))) {
            const QString key = host::reasonOf(sentence).key;
            QVERIFY2(names.contains(sentence) || key != QLatin1String("REASON_TOLD"), qPrintable(sentence));
            keys.insert(key);
        }
    }
    for (const char *key : {"REASON_NOTHING_HEARD", "REASON_DEVICE_DID_NOT_PLAY"})
        QVERIFY(keys.contains(QLatin1String(key)));
}

void TestRunReason::tellsWhyThereIsNoPass_data()
{
    QTest::addColumn<RunRecord>("record");
    QTest::addColumn<QStringList>("keys");
    RunRecord own = recordWith(4);
    own.reason = QStringLiteral("not recognised");
    own.messages = {{QStringLiteral("A_NOTE"), 0}};
    QTest::newRow("the host's own") << own << QStringList{QStringLiteral("REASON_NOT_RECOGNISED")};
    RunRecord told = recordWith(1);
    told.messages = {{QStringLiteral("USER_DID_NOT_REPORT_SOUND"), 2},
                     {QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS"), 0}};
    QTest::newRow("the module's messages") << told
                                           << QStringList{QStringLiteral("USER_DID_NOT_REPORT_SOUND"),
                                                          QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS")};
    RunRecord answered = recordWith(1);
    answered.testLetter = QStringLiteral("m");
    QTest::newRow("answered with no") << answered << QStringList{QStringLiteral("REASON_ANSWERED_NO")};
    answered.messages = {{QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE"), 0}};
    QTest::newRow("answered with no, and a hint")
        << answered
        << QStringList{QStringLiteral("REASON_ANSWERED_NO"), QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE")};
    RunRecord event = recordWith(4);
    event.messages = {{QStringLiteral("NO_INPUT_DEVICE"), 0}};
    QTest::newRow("explained by a note") << event << QStringList{QStringLiteral("NO_INPUT_DEVICE")};
    RunRecord stopped = recordWith(0);
    stopped.wasStopped = true;
    QTest::newRow("stopped") << stopped << QStringList{QStringLiteral("REASON_STOPPED")};
    QTest::newRow("closed") << recordWith(4) << QStringList{QStringLiteral("REASON_ENDED_EARLY")};
    QTest::newRow("invalid call") << recordWith(6) << QStringList{QStringLiteral("VERDICT_INVALID_CALL")};
    QTest::newRow("not performed") << recordWith(3) << QStringList{QStringLiteral("REASON_NONE_GIVEN")};
    QTest::newRow("failed without a word") << recordWith(1) << QStringList{QStringLiteral("REASON_NONE_GIVEN")};
}

void TestRunReason::tellsWhyThereIsNoPass()
{
    QFETCH(const RunRecord, record);
    QTEST(keysOf(record), "keys");
}

void TestRunReason::hasNoReasonForAPass()
{
    RunRecord record = recordWith(0);
    record.messages = {{QStringLiteral("A_NOTE"), 0}};
    QCOMPARE(keysOf(record), QStringList());
}

QTEST_GUILESS_MAIN(TestRunReason)
#include "tst_run_reason.moc"

// SPDX-License-Identifier: Apache-2.0
#include "host/listener/event_lines.h"
#include "host/listener/listener_options.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTest>

using namespace std::chrono_literals;
using host::HeardSound;
using host::ListenerOptions;
using host::ListenerTask;
using host::ListenerUsageError;

class TestListenerWords : public QObject {
    Q_OBJECT

private slots:
    void readsItsOptions();
    void readsWhatElseItCanListenFor();
    void namesWhatIsWrong_data();
    void namesWhatIsWrong();
    void tellsADigitInOneLine();
    void tellsAnotherSoundInOneLine();
    void tellsAClipInOneLine();
    void tellsTheLevelInOneLine();
    void relatesItsClockToTheCalendar();
    void tellsLostFramesOnlyWhereThereAreAny();
    void tellsHowMuchALevelWasTakenFrom();
};

void TestListenerWords::readsItsOptions()
{
    const auto listen = host::parseListenerOptions({QStringLiteral("p"), QStringLiteral("--source"), QStringLiteral("Mic 1"),
                                                    QStringLiteral("--clips=a b"), QStringLiteral("--language=ja_JP")});
    const auto *options = std::get_if<ListenerOptions>(&listen);
    QVERIFY(options != nullptr && options->task == ListenerTask::listen);
    QCOMPARE(options->source, QStringLiteral("Mic 1"));
    QCOMPARE(options->clipsFolder, QStringLiteral("a b"));
    QCOMPARE(options->language, QStringLiteral("ja_JP"));
    const auto list = host::parseListenerOptions({QStringLiteral("p"), QStringLiteral("--list")});
    QVERIFY(std::get<ListenerOptions>(list).task == ListenerTask::list);
    const auto help = host::parseListenerOptions({QStringLiteral("p"), QStringLiteral("-h")});
    QVERIFY(std::get<ListenerOptions>(help).task == ListenerTask::help);
}

void TestListenerWords::readsWhatElseItCanListenFor()
{
    const auto find = host::parseListenerOptions(
        {QStringLiteral("p"), QStringLiteral("--source=Mic"), QStringLiteral("--find=a b.wav"), QStringLiteral("--meter")});
    const auto *options = std::get_if<ListenerOptions>(&find);
    QVERIFY(options != nullptr && options->task == ListenerTask::listen && options->isMetered);
    QCOMPARE(options->clipFile, QStringLiteral("a b.wav"));
    QVERIFY(options->recordFile.isEmpty());
    QVERIFY(options->clipsFolder.isEmpty() && options->language.isEmpty());
    const auto level =
        host::parseListenerOptions({QStringLiteral("p"), QStringLiteral("--source=Mic"), QStringLiteral("--meter")});
    options = std::get_if<ListenerOptions>(&level);
    QVERIFY(options != nullptr && options->isMetered && options->clipFile.isEmpty() && options->language.isEmpty());
    const auto kept = host::parseListenerOptions(
        {QStringLiteral("p"), QStringLiteral("--source=Mic"), QStringLiteral("--meter"), QStringLiteral("--record=h.wav")});
    QCOMPARE(std::get<ListenerOptions>(kept).recordFile, QStringLiteral("h.wav"));
}

void TestListenerWords::namesWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("nothing") << QStringList{} << QStringLiteral("--source");
    QTest::newRow("no clips") << QStringList{QStringLiteral("--source=x")} << QStringLiteral("--clips");
    QTest::newRow("no language") << QStringList{QStringLiteral("--source=x"), QStringLiteral("--clips=y")}
                                 << QStringLiteral("--language");
    QTest::newRow("meter without a source") << QStringList{QStringLiteral("--meter")} << QStringLiteral("--source");
    QTest::newRow("meter with half a language")
        << QStringList{QStringLiteral("--source=x"), QStringLiteral("--meter"), QStringLiteral("--language=en_US")}
        << QStringLiteral("--clips");
    QTest::newRow("a clip and digits") << QStringList{QStringLiteral("--source=x"), QStringLiteral("--find=y"),
                                                      QStringLiteral("--clips=z")}
                                       << QStringLiteral("--clips");
    QTest::newRow("no value") << QStringList{QStringLiteral("--source")} << QStringLiteral("source");
    QTest::newRow("unknown") << QStringList{QStringLiteral("--volume=3")} << QStringLiteral("volume");
    QTest::newRow("word") << QStringList{QStringLiteral("--list"), QStringLiteral("now")} << QStringLiteral("now");
}

void TestListenerWords::namesWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(const QString, named);
    arguments.prepend(QStringLiteral("program"));
    const auto parsed = host::parseListenerOptions(arguments);
    const auto *error = std::get_if<ListenerUsageError>(&parsed);
    QVERIFY(error != nullptr);
    QVERIFY2(error->message.contains(named), qPrintable(error->message));
}

void TestListenerWords::tellsADigitInOneLine()
{
    HeardSound sound;
    sound.digit = 7;
    sound.score = 0.98765432;
    sound.margin = 0.5;
    sound.start = host::SteadyTime(1234567ms);
    sound.duration = 600ms;
    sound.levelDbfs = -17.26;
    sound.isClipped = true;
    QCOMPARE(host::soundLine(sound),
             QByteArray(R"({"clipped":true,"digit":7,"durationMs":600,"event":"digit","levelDbfs":-17.3,)"
                        R"("margin":0.5,"score":0.9877,"startMs":1234567})"));
}

void TestListenerWords::tellsAnotherSoundInOneLine()
{
    HeardSound sound;
    sound.start = host::SteadyTime(99ms);
    sound.levelDbfs = -40;
    QCOMPARE(host::soundLine(sound),
             QByteArray(R"({"clipped":false,"durationMs":0,"event":"sound","levelDbfs":-40,"startMs":99})"));
}

void TestListenerWords::tellsAClipInOneLine()
{
    host::HeardClip clip;
    clip.score = 0.98765432;
    clip.isFound = true;
    clip.start = host::SteadyTime(1234567ms);
    clip.duration = 2700ms;
    clip.levelDbfs = -17.26;
    QCOMPARE(host::clipLine(clip), QByteArray(R"({"clipped":false,"durationMs":2700,"event":"clip","found":true,)"
                                              R"("levelDbfs":-17.3,"score":0.9877,"startMs":1234567})"));
}

void TestListenerWords::tellsTheLevelInOneLine()
{
    host::MeterReading reading;
    reading.end = host::SteadyTime(1234567ms);
    reading.peakDbfs = -3.14;
    reading.rmsDbfs = -20.06;
    reading.channelDbfs = {-17, -120};
    reading.differenceDbfs = -17;
    reading.wave[1] = {-0.12345F, 0.5F};
    QCOMPARE(host::meterLine(reading),
             QByteArray(R"({"atMs":1234567,"channelDbfs":[-17,-120],"differenceDbfs":-17,"event":"meter","peakDbfs":-3.1,)"
                        R"("rmsDbfs":-20.1,"wave":[0,0,-0.123,0.5,0,0,0,0,0,0]})"));
}

void TestListenerWords::relatesItsClockToTheCalendar()
{
    using namespace std::chrono;
    const auto before = floor<milliseconds>(steady_clock::now().time_since_epoch()).count();
    const QJsonObject ready =
        QJsonDocument::fromJson(host::readyLine(QStringLiteral("Mic \u8033"), QStringLiteral("en_US"), 1)).object();
    const auto after = floor<milliseconds>(steady_clock::now().time_since_epoch()).count();
    const auto steady = static_cast<qint64>(ready.value(QLatin1String("steadyMs")).toDouble());
    QVERIFY(steady >= before && steady <= after);
    const auto utc = static_cast<qint64>(ready.value(QLatin1String("utcMs")).toDouble());
    QVERIFY(std::abs(floor<milliseconds>(system_clock::now().time_since_epoch()).count() - utc) < 60'000);
    QCOMPARE(ready.value(QLatin1String("source")).toString(), QStringLiteral("Mic \u8033"));
}

void TestListenerWords::tellsLostFramesOnlyWhereThereAreAny()
{
    QVERIFY(!host::levelLine(-120, 48000, 0).contains("droppedFrames"));
    QVERIFY(host::levelLine(-120, 48000, 5).contains(R"("droppedFrames":5)"));
}

void TestListenerWords::tellsHowMuchALevelWasTakenFrom()
{
    QVERIFY(host::levelLine(-120, 47104, 0).contains(R"("frames":47104)"));
    QVERIFY(host::levelLine(-120, 0, 0).contains(R"("frames":0)"));
}

QTEST_GUILESS_MAIN(TestListenerWords)
#include "tst_listener_words.moc"

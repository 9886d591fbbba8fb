// SPDX-License-Identifier: Apache-2.0
#include "host/operator/listener_line.h"

#include <QObject>
#include <QTest>

using namespace host;
using Kind = ListenerLine::Kind;

class TestListenerLine : public QObject {
    Q_OBJECT

private slots:
    void readsADigit();
    void readsWhatWasMeasured();
    void keepsWhatCouldNotBeMeasured();
    void readsALevel();
    void tellsTheKind_data();
    void tellsTheKind();
    void takesNoOtherDigit_data();
    void takesNoOtherDigit();
};

void TestListenerLine::readsADigit()
{
    const ListenerLine line = readListenerLine(
        R"({"event":"digit","digit":7,"score":0.75,"margin":0.5,"levelDbfs":-20.5,"clipped":true,"startMs":12})");
    QCOMPARE(line.kind, Kind::sound);
    QCOMPARE(line.sound.digit, std::optional<int>(7));
    QCOMPARE(line.sound.score, 0.75);
    QCOMPARE(line.sound.margin, 0.5);
    QCOMPARE(line.sound.levelDbfs, -20.5);
    QVERIFY(line.sound.isClipped);
    QCOMPARE(line.sound.startMs, qint64(12));
}

void TestListenerLine::readsWhatWasMeasured()
{
    const ListenerLine line = readListenerLine(
        R"({"event":"digit","digit":7,"levelDbfs":-20,"startMs":12,"measured":{"snrDb":61.5,"residualDbfs":-80.5,)"
        R"("clockErrorPpm":-3,"peakDbfs":-4,"channelDbfs":[-20,-30],"clippedFrameCount":5,"lowest":[-0.5],"highest":[0.25],"bandLevelsDbfs":[-40,-50]}})");
    QVERIFY(line.sound.measured != nullptr);
    QCOMPARE(line.sound.measured->snrDb, std::optional(61.5));
    QCOMPARE(line.sound.measured->residualDbfs, std::optional(-80.5));
    QCOMPARE(line.sound.measured->clockErrorPpm, std::optional(-3.0));
    QCOMPARE(line.sound.measured->peakDbfs, -4.0);
    QCOMPARE(line.sound.measured->channelDbfs, (QList<double>{-20, -30}));
    QCOMPARE(line.sound.measured->clippedFrameCount, qint64(5));
    QCOMPARE(line.sound.measured->lowest, QList<double>{-0.5});
    QCOMPARE(line.sound.measured->highest, QList<double>{0.25});
    QCOMPARE(line.sound.measured->bandLevelsDbfs, (QList<double>{-40, -50}));
}

void TestListenerLine::keepsWhatCouldNotBeMeasured()
{
    const ListenerLine bare = readListenerLine(R"({"event":"digit","digit":7,"levelDbfs":-20,"startMs":12})");
    QVERIFY(bare.kind == Kind::sound && bare.sound.measured == nullptr);
    const ListenerLine partial =
        readListenerLine(R"({"event":"digit","digit":7,"levelDbfs":-20,"startMs":12,"measured":{"peakDbfs":-4}})");
    QVERIFY(partial.sound.measured != nullptr);
    QVERIFY(!partial.sound.measured->snrDb && !partial.sound.measured->residualDbfs && !partial.sound.measured->clockErrorPpm);
}

void TestListenerLine::readsALevel()
{
    const ListenerLine line = readListenerLine(R"({"event":"level","levelDbfs":-120,"atMs":9007199254740992})");
    QCOMPARE(line.kind, Kind::level);
    QCOMPARE(line.sound.startMs, qint64(1) << 53);
    QCOMPARE(line.sound.levelDbfs, -120.0);
}

void TestListenerLine::tellsTheKind_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Kind>("kind");
    const auto add = [](const char *row, const char *text, Kind kind) { QTest::newRow(row) << QByteArray(text) << kind; };
    add("ready", R"({"event":"ready"})", Kind::ready);
    add("lost", R"({"event":"lost"})", Kind::lost);
    add("sound", R"({"event":"sound","startMs":0,"levelDbfs":-1})", Kind::sound);
    add("digit without its digit", R"({"event":"digit","startMs":0,"levelDbfs":-1})", Kind::sound);
    add("another event", R"({"event":"source","name":"ready"})", Kind::unknown);
    add("no event", "{}", Kind::unknown);
    add("no object", R"(["ready"])", Kind::unknown);
    add("cut off", R"({"event":"ready")", Kind::unknown);
    add("nothing", "", Kind::unknown);
    add("sound without a moment", R"({"event":"sound","levelDbfs":-1})", Kind::unknown);
    add("sound without a level", R"({"event":"sound","startMs":0})", Kind::unknown);
    add("level without a moment", R"({"event":"level","levelDbfs":-1})", Kind::unknown);
    add("level as text", R"({"event":"level","atMs":0,"levelDbfs":"-1"})", Kind::unknown);
    add("moment beyond all integers", R"({"event":"level","atMs":1e300,"levelDbfs":-1})", Kind::unknown);
    add("moment beyond the exact ones", R"({"event":"level","atMs":9007199254740994,"levelDbfs":-1})", Kind::unknown);
    add("negative moment", R"({"event":"level","atMs":-1,"levelDbfs":-1})", Kind::unknown);
}

void TestListenerLine::tellsTheKind()
{
    QFETCH(QByteArray, text);
    QTEST(readListenerLine(text).kind, "kind");
}

void TestListenerLine::takesNoOtherDigit_data()
{
    QTest::addColumn<QByteArray>("digit");
    for (const char *digit : {"-1", "10", "2.5", "1e300", "\"3\"", "null"})
        QTest::newRow(digit) << QByteArray(digit);
}

void TestListenerLine::takesNoOtherDigit()
{
    QFETCH(QByteArray, digit);
    const ListenerLine line = readListenerLine(R"({"event":"digit","startMs":5,"levelDbfs":-3,"digit":)" + digit + '}');
    QCOMPARE(line.kind, Kind::sound);
    QVERIFY(!line.sound.digit);
}

QTEST_GUILESS_MAIN(TestListenerLine)
#include "tst_listener_line.moc"

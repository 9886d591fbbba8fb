// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/volume_note.h"

#include <QObject>
#include <QTest>

using namespace host;
using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

namespace {

QByteArray noteOf(const EndpointVolumes &volumes) { return toNote({volumes, {}}); }

std::optional<EndpointVolumes> volumesIn(const QByteArray &text, QString &complaint)
{
    const auto note = fromNote(text, complaint);
    return note ? std::optional(note->volumes) : std::nullopt;
}

const QByteArray head("{\"format\":\"module_audio.volume_note\",\"version\":1,\"endpoints\":[");

QByteArray noteWith(const QByteArray &endpoints) { return head + endpoints + "]}"; }

QByteArray noteOfChannels(const QByteArray &channels)
{
    return noteWith("{\"id\":\"a\",\"level\":0.5,\"muted\":false,\"channelVolumes\":[" + channels + "]}");
}

} // namespace

class TestVolumeNote : public QObject {
    Q_OBJECT

private slots:
    void givesBackWhatWasNoted();
    void givesBackTheServersName();
    void leavesOutEndpointsWithoutId();
    void clampsLevels_data();
    void clampsLevels();
    void limitsChannelVolumes_data();
    void limitsChannelVolumes();
    void refuses_data();
    void refuses();
    void refusesEveryCutOfANote();
};

void TestVolumeNote::givesBackWhatWasNoted()
{
    const EndpointVolumes noted{{0.1F, true, u"{0.0.0.00000000}.{a\\\"b}", {}},
                                {1.0F, false, u"\u00fe\u8033\n", {91750, 0, 65536}},
                                {0.33F, false, u"c", {0}}};
    QString complaint;
    const auto volumes = volumesIn(noteOf(noted), complaint);
    QVERIFY2(volumes, qPrintable(complaint));
    QCOMPARE(volumes->size(), noted.size());
    for (std::size_t i = 0; i < noted.size(); ++i) {
        QCOMPARE(volumes->at(i).id, noted[i].id);
        QVERIFY(volumes->at(i).level == noted[i].level); // to the bit
        QCOMPARE(volumes->at(i).muted, noted[i].muted);
        QCOMPARE(volumes->at(i).channelVolumes, noted[i].channelVolumes);
    }
    QVERIFY(volumesIn(noteOf({}), complaint));
}

void TestVolumeNote::givesBackTheServersName()
{
    QString complaint;
    const auto named = fromNote(toNote({{}, QStringLiteral("a \u8033\n")}), complaint);
    QVERIFY2(named, qPrintable(complaint));
    QCOMPARE(named->server, QStringLiteral("a \u8033\n"));
    const auto nameless = fromNote(noteWith({}), complaint); // as programs before this one wrote it
    QVERIFY2(nameless, qPrintable(complaint));
    QCOMPARE(nameless->server, QString());
}

void TestVolumeNote::leavesOutEndpointsWithoutId()
{
    QString complaint;
    const auto volumes = volumesIn(noteOf({{0.5F, false, u"", {}}, {0.5F, false, u"b", {}}}), complaint);
    QVERIFY2(volumes, qPrintable(complaint));
    QCOMPARE(volumes->size(), std::size_t{1});
    QCOMPARE(volumes->front().id, std::u16string(u"b"));
}

void TestVolumeNote::clampsLevels_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<float>("level");

    QTest::newRow("too loud") << QByteArray("1.01") << 1.0F;
    QTest::newRow("far too loud") << QByteArray("1e308") << 1.0F;
    QTest::newRow("negative") << QByteArray("-0.5") << 0.0F;
    QTest::newRow("loudest") << QByteArray("1") << 1.0F;
    QTest::newRow("in between") << QByteArray("0.25") << 0.25F;
}

void TestVolumeNote::clampsLevels()
{
    QFETCH(const QByteArray, written);
    QString complaint;
    const auto volumes =
        volumesIn(noteWith("{\"id\":\"a\",\"level\":" + written + ",\"muted\":true,\"channelVolumes\":[]}"), complaint);
    QVERIFY2(volumes, qPrintable(complaint));
    QTEST(volumes->front().level, "level");
    QVERIFY(volumes->front().muted);
}

void TestVolumeNote::limitsChannelVolumes_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<unsigned>("volume");

    QTest::newRow("100 %") << QByteArray("65536") << 65536U;
    QTest::newRow("the user's own 140 %") << QByteArray("91750") << 91750U;
    QTest::newRow("more than a mixer offers") << QByteArray("99958") << channelVolumeLimit;
    QTest::newRow("highest number of the server") << QByteArray("4294967295") << channelVolumeLimit;
    QTest::newRow("beyond") << QByteArray("1e300") << channelVolumeLimit;
}

void TestVolumeNote::limitsChannelVolumes()
{
    QFETCH(const QByteArray, written);
    QString complaint;
    const auto volumes = volumesIn(noteOfChannels(written), complaint);
    QVERIFY2(volumes, qPrintable(complaint));
    QTEST(volumes->front().channelVolumes.front(), "volume");
}

void TestVolumeNote::refuses_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zeros, as a power cut may leave them") << QByteArray(300, '\0');
    QTest::newRow("no object") << QByteArray("[]");
    QTest::newRow("another format") << QByteArray("{\"format\":\"x\",\"version\":1,\"endpoints\":[]}");
    QTest::newRow("another version") << QByteArray("{\"format\":\"module_audio.volume_note\",\"version\":2,\"endpoints\":[]}");
    QTest::newRow("no version") << QByteArray("{\"format\":\"module_audio.volume_note\",\"endpoints\":[]}");
    QTest::newRow("no endpoints") << QByteArray("{\"format\":\"module_audio.volume_note\",\"version\":1}");
    QTest::newRow("endpoint of another kind") << noteWith("7");
    QTest::newRow("no id") << noteWith("{\"level\":0.5,\"muted\":false,\"channelVolumes\":[]}");
    QTest::newRow("empty id") << noteWith("{\"id\":\"\",\"level\":0.5,\"muted\":false,\"channelVolumes\":[]}");
    QTest::newRow("level as text") << noteWith("{\"id\":\"a\",\"level\":\"1\",\"muted\":false,\"channelVolumes\":[]}");
    QTest::newRow("level not a number") << noteWith("{\"id\":\"a\",\"level\":NaN,\"muted\":false,\"channelVolumes\":[]}");
    QTest::newRow("mute as number") << noteWith("{\"id\":\"a\",\"level\":0.5,\"muted\":0,\"channelVolumes\":[]}");
    QTest::newRow("no channels") << noteWith("{\"id\":\"a\",\"level\":0.5,\"muted\":false}");
    QTest::newRow("negative channel") << noteOfChannels("-1");
    QTest::newRow("broken channel") << noteOfChannels("0.5");
    QTest::newRow("channel as text") << noteOfChannels("\"1\"");
    QTest::newRow("too many channels") << noteOfChannels("0" + QByteArray(",0").repeated(32));
    QTest::newRow("too many endpoints") << noteWith("0" + QByteArray(",0").repeated(512));
    QTest::newRow("deep nesting") << QByteArray(100'000, '[');
    QTest::newRow("the second endpoint only")
        << noteWith("{\"id\":\"a\",\"level\":0.5,\"muted\":false,\"channelVolumes\":[]},{\"id\":\"b\"}");
}

void TestVolumeNote::refuses()
{
    QFETCH(const QByteArray, text);
    QString complaint;
    QVERIFY(!volumesIn(text, complaint));
    QVERIFY(!complaint.isEmpty());
}

void TestVolumeNote::refusesEveryCutOfANote()
{
    const QByteArray whole = noteOf({{0.5F, false, u"a", {1, 2}}, {0.25F, true, u"b", {}}}).trimmed();
    QString complaint;
    QVERIFY(volumesIn(whole, complaint));
    for (qsizetype byteCount = 0; byteCount < whole.size(); ++byteCount)
        QVERIFY2(!volumesIn(whole.left(byteCount), complaint), qPrintable(QString::number(byteCount)));
}

QTEST_GUILESS_MAIN(TestVolumeNote)
#include "tst_volume_note.moc"

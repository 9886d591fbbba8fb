// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_volume.h"

#include <QObject>
#include <QTest>

using namespace ostra::audio;

namespace {

using Ids = std::vector<std::u16string>;

EndpointVolume record(std::u16string id, float level = 0.5F, bool muted = false, std::vector<std::uint32_t> channels = {})
{
    return {level, muted, std::move(id), std::move(channels)};
}

Ids idsOf(const EndpointVolumes &list)
{
    Ids ids;
    for (const EndpointVolume &entry : list)
        ids.push_back(entry.id);
    return ids;
}

} // namespace

class TestEndpointVolume : public QObject {
    Q_OBJECT

private slots:
    void choosesARecord_data();
    void choosesARecord();
    void comparesVolumes_data();
    void comparesVolumes();
    void findsChangedEndpoints();
    void completesAListByNewcomers();
};

void TestEndpointVolume::choosesARecord_data()
{
    QTest::addColumn<Ids>("list");
    QTest::addColumn<std::u16string>("id");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("chosen");

    QTest::newRow("by id, whatever the position") << Ids{u"a", u"b", u"c"} << std::u16string(u"c") << 0 << 2;
    QTest::newRow("the first of two with the id") << Ids{u"a", u"b", u"b"} << std::u16string(u"b") << 2 << 1;
    QTest::newRow("unknown id") << Ids{u"a", u"b"} << std::u16string(u"x") << 0 << -1;
    QTest::newRow("another case is another id") << Ids{u"a"} << std::u16string(u"A") << 0 << -1;
    QTest::newRow("a beginning is another id") << Ids{u"ab"} << std::u16string(u"a") << 0 << -1;
    QTest::newRow("no ids: by position") << Ids{u"", u"", u""} << std::u16string(u"x") << 2 << 2;
    QTest::newRow("no ids: beyond the end") << Ids{u"", u""} << std::u16string(u"x") << 2 << -1;
    QTest::newRow("id before the record without one") << Ids{u"a", u"", u"c"} << std::u16string(u"a") << 2 << 0;
    QTest::newRow("position, not the record without id") << Ids{u"a", u"", u"c"} << std::u16string(u"c") << 0 << 0;
    QTest::newRow("record without id hides a later id") << Ids{u"a", u"", u"c"} << std::u16string(u"c") << 3 << -1;
    QTest::newRow("endpoint without id meets ids") << Ids{u"a", u"b"} << std::u16string(u"") << 0 << -1;
    QTest::newRow("empty list") << Ids{} << std::u16string(u"a") << 0 << -1;
}

void TestEndpointVolume::choosesARecord()
{
    QFETCH(const Ids, list);
    QFETCH(const std::u16string, id);
    QFETCH(const int, position);
    EndpointVolumes records;
    for (const std::u16string &entry : list)
        records.push_back(record(entry));
    const EndpointVolume *chosen = chooseRecord(records, id, static_cast<std::size_t>(position));
    QTEST(chosen == nullptr ? -1 : static_cast<int>(chosen - records.data()), "chosen");
}

void TestEndpointVolume::comparesVolumes_data()
{
    QTest::addColumn<EndpointVolume>("one");
    QTest::addColumn<EndpointVolume>("other");
    QTest::addColumn<bool>("isSame");

    QTest::newRow("equal, another id") << record(u"a") << record(u"b") << true;
    QTest::newRow("level") << record(u"a", 0.5F) << record(u"a", 0.51F) << false;
    QTest::newRow("a driver's rounding") << record(u"a", 0.25F) << record(u"a", 0.2501F) << true;
    QTest::newRow("mute") << record(u"a", 0.5F, false) << record(u"a", 0.5F, true) << false;
    QTest::newRow("balance") << record(u"a", 0.5F, false, {100, 200}) << record(u"a", 0.5F, false, {200, 100}) << false;
    QTest::newRow("above 100 %") << record(u"a", 1.0F, false, {70000, 70000}) << record(u"a", 1.0F, false, {65536, 65536})
                                 << false;
    QTest::newRow("channels") << record(u"a", 0.5F, false, {100, 200}) << record(u"a", 0.6F, false, {100, 200}) << true;
    QTest::newRow("other channel count, same level")
        << record(u"a", 0.5F, false, {100}) << record(u"a", 0.5F, false, {100, 50}) << true;
}

void TestEndpointVolume::comparesVolumes()
{
    QFETCH(const EndpointVolume, one);
    QFETCH(const EndpointVolume, other);
    QTEST(hasSameVolume(one, other), "isSame");
    QCOMPARE(hasSameVolume(other, one), hasSameVolume(one, other));
}

void TestEndpointVolume::findsChangedEndpoints()
{
    const EndpointVolumes saved{record(u"same", 0.1F), record(u"louder", 0.2F), record(u"gone", 0.3F),
                                record(u"unmuted", 0.4F, true)};
    const EndpointVolumes current{record(u"unmuted", 0.4F), record(u"new", 0.9F), record(u"louder", 1.0F),
                                  record(u"same", 0.1F)};
    const EndpointVolumes changed = changedEndpoints(saved, current);
    QCOMPARE(idsOf(changed), (Ids{u"louder", u"unmuted"}));
    QCOMPARE(changed[0].level, 0.2F); // as it was saved
    QVERIFY(changed[1].muted);
}

void TestEndpointVolume::completesAListByNewcomers()
{
    const EndpointVolumes list =
        withNewcomers({record(u"a", 0.1F), record(u"gone")}, {record(u"new", 0.9F), record(u"a", 1.0F)});
    QCOMPARE(idsOf(list), (Ids{u"a", u"gone", u"new"}));
    QCOMPARE(list[0].level, 0.1F);
    QCOMPARE(list[2].level, 0.9F);
}

QTEST_GUILESS_MAIN(TestEndpointVolume)
#include "tst_endpoint_volume.moc"

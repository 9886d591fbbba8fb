// SPDX-License-Identifier: Apache-2.0
#include "host/core/device_list.h"

#include "contract/system_component_manager.h"

#include <QObject>
#include <QTest>

#include <memory>
#include <new>

using host::Device;
using host::DeviceList;

namespace {

class StubComponent final : public ostra::SystemComponent {
public:
    StubComponent(const std::string &name, const ostra::PropertyList &entries) : SystemComponent(name)
    {
        setId("id of " + name);
        properties() = entries;
    }
    void *reserved4() override { return nullptr; }
    bool reserved5() override { return true; }
    bool reserved6() override { return true; }
    void reserved7() override {}
    bool reserved8() override { return true; }
    void reserved9() override {}
};

using Machine = std::vector<std::pair<std::string, ostra::PropertyList>>;

/// Lists the given devices; with `isShortOfMemory` only the first.
class StubManager final : public ostra::SystemComponentManager {
public:
    explicit StubManager(Machine machine)
        : SystemComponentManager(ostra::identities::componentManager), machine_(std::move(machine))
    {}
    ~StubManager() override { clear(); }
    bool hasComponents() override { return !machine_.empty(); }
    ostra::SystemComponent *hintedComponentAt(std::uint32_t index) override { return componentAt(index); }
    void refresh() override
    {
        clear();
        for (const auto &[name, properties] : machine_) {
            if (isShortOfMemory && !components().empty())
                throw std::bad_alloc();
            components().push_back(new StubComponent(name, properties));
        }
        if (hasGap)
            components().insert(components().begin(), nullptr);
    }
    void unplugAll() { machine_.clear(); }

    bool isShortOfMemory = false;
    bool hasGap = false;

private:
    void clear()
    {
        for (ostra::SystemComponent *component : components())
            delete component;
        components().clear();
    }

    Machine machine_;
};

} // namespace

class TestDeviceList : public QObject {
    Q_OBJECT

private slots:
    void keepsTheOrderOfDevicesAndProperties();
    void outlivesTheModulesObjects();
    void listsAnew();
    void keepsWhatWasFoundBeforeMemoryRanOut();
    void skipsAGap();
    void readsTextAsUtf8();
    void findsPropertiesByKey();
    void finds_data();
    void finds();
};

void TestDeviceList::keepsTheOrderOfDevicesAndProperties()
{
    StubManager manager(Machine{{"Zeta", {{"UDI", "Zeta"}, {"B", "2"}, {"A", "1"}}}, {"Alpha", {}}});
    DeviceList list;
    QVERIFY(list.refresh(manager));
    QCOMPARE(list.devices().size(), 2);
    QCOMPARE(list.devices()[0].name, QStringLiteral("Zeta"));
    QCOMPARE(list.devices()[0].id, QStringLiteral("id of Zeta"));
    const QList<std::pair<QString, QString>> expected{{QStringLiteral("UDI"), QStringLiteral("Zeta")},
                                                      {QStringLiteral("B"), QStringLiteral("2")},
                                                      {QStringLiteral("A"), QStringLiteral("1")}};
    QCOMPARE(list.devices()[0].properties, expected);
    QCOMPARE(list.devices()[1].name, QStringLiteral("Alpha"));
}

void TestDeviceList::outlivesTheModulesObjects()
{
    auto manager = std::make_unique<StubManager>(Machine{{"A", {{"K", "V"}}}});
    DeviceList list;
    QVERIFY(list.refresh(*manager));
    manager.reset();
    QCOMPARE(list.devices().first().property("K"), std::optional(QStringLiteral("V")));
}

void TestDeviceList::listsAnew()
{
    StubManager manager(Machine{{"A", {}}});
    DeviceList list;
    QVERIFY(list.refresh(manager));
    manager.unplugAll();
    QVERIFY(list.refresh(manager));
    QVERIFY(list.devices().isEmpty());
}

void TestDeviceList::keepsWhatWasFoundBeforeMemoryRanOut()
{
    StubManager manager(Machine{{"A", {}}, {"B", {}}});
    manager.isShortOfMemory = true;
    DeviceList list;
    QVERIFY(!list.refresh(manager));
    QCOMPARE(list.devices().size(), 1);
    QCOMPARE(list.devices().first().name, QStringLiteral("A"));
}

void TestDeviceList::skipsAGap()
{
    StubManager manager(Machine{{"A", {}}});
    manager.hasGap = true;
    DeviceList list;
    QVERIFY(list.refresh(manager));
    QCOMPARE(list.devices().size(), 1);
}

void TestDeviceList::readsTextAsUtf8()
{
    StubManager manager(Machine{{"Kopfh\xC3\xB6rer \xE8\x80\xB3", {}}, {"bad \xFF", {}}});
    DeviceList list;
    QVERIFY(list.refresh(manager));
    QCOMPARE(list.devices()[0].name, QStringLiteral("Kopfh\u00F6rer \u8033"));
    QCOMPARE(list.devices()[1].name, QStringLiteral("bad \uFFFD"));
}

void TestDeviceList::findsPropertiesByKey()
{
    const Device device{
        {}, {}, {{QStringLiteral("K"), QStringLiteral("first")}, {QStringLiteral("K"), QStringLiteral("second")}}};
    QCOMPARE(device.property("K"), std::optional(QStringLiteral("first")));
    QCOMPARE(device.property("k"), std::nullopt);
}

void TestDeviceList::finds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::newRow("name") << QStringLiteral("Speakers") << 0;
    QTest::newRow("name of a duplicate") << QStringLiteral("Speakers (2)") << 1;
    QTest::newRow("number") << QStringLiteral("1") << 1;
    QTest::newRow("number with zeros in front") << QStringLiteral("01") << 1;
    QTest::newRow("a name goes before a number") << QStringLiteral("0") << 2;
    QTest::newRow("number beyond the end") << QStringLiteral("3") << -1;
    QTest::newRow("number beyond 64 bits") << QStringLiteral("18446744073709551616") << -1;
    QTest::newRow("sign") << QStringLiteral("+1") << -1;
    QTest::newRow("negative") << QStringLiteral("-1") << -1;
    QTest::newRow("blank") << QStringLiteral(" 1") << -1;
    QTest::newRow("digits of another script") << QStringLiteral("\u0661") << -1;
    QTest::newRow("other case") << QStringLiteral("speakers") << -1;
    QTest::newRow("part of a name") << QStringLiteral("Speak") << -1;
    QTest::newRow("empty") << QString() << -1;
}

void TestDeviceList::finds()
{
    QFETCH(QString, text);
    StubManager manager(Machine{{"Speakers", {}}, {"Speakers (2)", {}}, {"0", {}}});
    DeviceList list;
    QVERIFY(list.refresh(manager));
    QTEST(static_cast<int>(list.find(text)), "position");
}

QTEST_GUILESS_MAIN(TestDeviceList)
#include "tst_device_list.moc"

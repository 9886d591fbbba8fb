// SPDX-License-Identifier: Apache-2.0
#include "host/sal/driver_rows_linux.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTest>

#include <array>
#include <optional>
#include <string>
#include <vector>

using sal::CardFacts;
using sal::CimRow;
using sal::DriverProperty;
using sal::SinkFacts;
using sal::SoundFacts;

namespace {

constexpr std::array<DriverProperty, 3> allProperties{DriverProperty::description, DriverProperty::driverVersion,
                                                      DriverProperty::friendlyName};

std::string versionOfCard(std::optional<std::uint32_t> alsaCard)
{
    return alsaCard ? "version " + std::to_string(*alsaCard) : "kernel";
}

std::vector<CimRow> rowsOf(const SoundFacts &facts) { return sal::driverRows(facts, versionOfCard, allProperties); }

} // namespace

class TestSalDriverRows : public QObject {
    Q_OBJECT

private slots:
    void cardGivesVersionAndFriendlyName();
    void softwareDeviceHasNoRow();
    void deviceOfAnUnlistedCardHasNoRow();
    void emptyTextsAreAbsent();
    void rowsKeepTheServersOrder();
    void valuesComeInTheOrderAskedFor();
    void propertyNamesAreFoundInAnyCase_data();
    void propertyNamesAreFoundInAnyCase();
};

void TestSalDriverRows::cardGivesVersionAndFriendlyName()
{
    const SoundFacts facts{{{"USB Headset Analog Stereo", 7}}, {{3, "Built-in Audio", 0}, {7, "USB Headset", 2}}};
    const std::vector<CimRow> expected{{"USB Headset Analog Stereo", "version 2", "USB Headset"}};
    QVERIFY(rowsOf(facts) == expected);
}

void TestSalDriverRows::softwareDeviceHasNoRow()
{
    const SoundFacts facts{{{"Null Output", std::nullopt}}, {{0, "Built-in Audio", 0}}};
    QVERIFY(rowsOf(facts).empty());
}

void TestSalDriverRows::deviceOfAnUnlistedCardHasNoRow()
{
    const SoundFacts facts{{{"Gone Meanwhile", 9}}, {{0, "Built-in Audio", 0}}};
    QVERIFY(rowsOf(facts).empty());
}

void TestSalDriverRows::emptyTextsAreAbsent()
{
    const SoundFacts facts{{{"", 1}, {"Named", 2}}, {{1, "Card", 0}, {2, "", 1}}};
    const auto noVersion = [](std::optional<std::uint32_t>) { return std::string(); };
    const std::vector<CimRow> expected{{std::nullopt, std::nullopt, "Card"}, {"Named", std::nullopt, std::nullopt}};
    QVERIFY(sal::driverRows(facts, noVersion, allProperties) == expected);
}

void TestSalDriverRows::rowsKeepTheServersOrder()
{
    const SoundFacts facts{{{"B", 1}, {"A", 1}, {"C", 0}}, {{0, "Zero", std::nullopt}, {1, "One", 4}}};
    const std::vector<CimRow> expected{{"B", "version 4", "One"}, {"A", "version 4", "One"}, {"C", "kernel", "Zero"}};
    QVERIFY(rowsOf(facts) == expected);
}

void TestSalDriverRows::valuesComeInTheOrderAskedFor()
{
    const SoundFacts facts{{{"Sink", 1}}, {{1, "Card", 0}}};
    constexpr std::array<DriverProperty, 2> properties{DriverProperty::friendlyName, DriverProperty::description};
    const std::vector<CimRow> expected{{"Card", "Sink"}};
    QVERIFY(sal::driverRows(facts, versionOfCard, properties) == expected);
}

void TestSalDriverRows::propertyNamesAreFoundInAnyCase_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("property"); // -1: none
    QTest::newRow("Description") << QByteArray("Description") << static_cast<int>(DriverProperty::description);
    QTest::newRow("DriverVersion") << QByteArray("DriverVersion") << static_cast<int>(DriverProperty::driverVersion);
    QTest::newRow("FriendlyName") << QByteArray("FriendlyName") << static_cast<int>(DriverProperty::friendlyName);
    QTest::newRow("lower case") << QByteArray("friendlyname") << static_cast<int>(DriverProperty::friendlyName);
    QTest::newRow("only the beginning") << QByteArray("Friendly") << -1;
    QTest::newRow("more than the name") << QByteArray("DescriptionText") << -1;
    QTest::newRow("empty") << QByteArray() << -1;
    QTest::newRow("of another kind") << QByteArray("Manufacturer") << -1;
}

void TestSalDriverRows::propertyNamesAreFoundInAnyCase()
{
    QFETCH(QByteArray, name);
    QFETCH(int, property);
    const auto found = sal::driverProperty(name.toStdString());
    QCOMPARE(found ? static_cast<int>(*found) : -1, property);
}

QTEST_GUILESS_MAIN(TestSalDriverRows)
#include "tst_sal_driver_rows.moc"

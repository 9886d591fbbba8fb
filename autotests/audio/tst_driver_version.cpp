// SPDX-License-Identifier: Apache-2.0
#include "audio/driver_version.h"
#include "autotests/support/fake_sal.h"

#include <QTest>

#include <chrono>
#include <thread>

using namespace ostra::audio;
using Rows = std::vector<sal::CimRow>;
Q_DECLARE_METATYPE(Rows)

class TestDriverVersion : public QObject {
    Q_OBJECT

private slots:
    void init() { fake_sal::state() = {}; }
    void asksForTheSignedDriversOfAudioEndpoints();
    void takesTheFirstRowThatFits_data();
    void takesTheFirstRowThatFits();
    void isEmptyWhenTheQueryFails();
    void isEmptyWithoutTheService();
    void copesWithTenThousandRows();
    void waitsForASlowAnswer();
};

void TestDriverVersion::asksForTheSignedDriversOfAudioEndpoints()
{
    lookUpDriverVersion("Speakers");
    QCOMPARE(fake_sal::state().queries.size(), std::size_t(1));
    const fake_sal::Query &query = fake_sal::state().queries.front();
    QCOMPARE(query.nameSpace, std::string(R"(root\CIMV2)"));
    QCOMPARE(query.className, std::string("Win32_PnPSignedDriver"));
    QCOMPARE(query.condition, std::string("DeviceClass LIKE '%AUDIOENDPOINT%'"));
    QCOMPARE(query.propertyNames, (std::vector<std::string>{"Description", "DriverVersion", "FriendlyName"}));
}

void TestDriverVersion::takesTheFirstRowThatFits_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<std::string>("device");
    QTest::addColumn<std::string>("version");
    const std::string name = "Speakers (Realm Audio)";
    const auto row = [](const char *description, const char *version, const char *friendlyName) {
        return sal::CimRow{description, version, friendlyName};
    };

    QTest::newRow("no row") << Rows{} << name << std::string();
    QTest::newRow("name contains description") << Rows{row("Realm", "1.0", "zzz")} << name << std::string("1.0");
    QTest::newRow("description contains name")
        << Rows{row("The Speakers (Realm Audio) endpoint", "2.0", "zzz")} << name << std::string("2.0");
    QTest::newRow("name contains friendly name") << Rows{row("zzz", "3.0", "Speakers")} << name << std::string("3.0");
    QTest::newRow("friendly name contains name")
        << Rows{row("zzz", "4.0", "Speakers (Realm Audio) 2")} << name << std::string("4.0");
    QTest::newRow("nothing fits") << Rows{row("zzz", "1.0", "yyy")} << name << std::string();
    QTest::newRow("letter case counts") << Rows{row("speakers", "1.0", "REALM")} << name << std::string();
    QTest::newRow("first of several") << Rows{row("zzz", "1", "yyy"), row("Realm", "2", "y"), row("Realm", "3", "y")} << name
                                      << std::string("2");
    QTest::newRow("empty description fits every device") << Rows{row("", "5.0", "zzz")} << name << std::string("5.0");
    QTest::newRow("earlier row beats the empty description")
        << Rows{row("Realm", "6.0", "y"), row("", "5.0", "zzz")} << name << std::string("6.0");
    QTest::newRow("empty friendly name fits every device") << Rows{row("zzz", "7.0", "")} << name << std::string("7.0");
    QTest::newRow("empty device name fits the first complete row")
        << Rows{{std::nullopt, "1.0", "a"}, row("zzz", "8.0", "yyy")} << std::string() << std::string("8.0");
    QTest::newRow("absent description skips") << Rows{{std::nullopt, "1.0", "Speakers"}} << name << std::string();
    QTest::newRow("absent version skips") << Rows{{"Speakers", std::nullopt, "Speakers"}} << name << std::string();
    QTest::newRow("absent friendly name skips") << Rows{{"Speakers", "1.0", std::nullopt}} << name << std::string();
    QTest::newRow("short row skips") << Rows{{"Speakers", "1.0"}} << name << std::string();
    QTest::newRow("empty version of a fitting row")
        << Rows{row("Realm", "", "y"), row("Realm", "9", "y")} << name << std::string();
}

void TestDriverVersion::takesTheFirstRowThatFits()
{
    QFETCH(Rows, rows);
    QFETCH(std::string, device);
    fake_sal::state().rows = rows;
    QTEST(lookUpDriverVersion(device), "version");
}

void TestDriverVersion::isEmptyWhenTheQueryFails()
{
    fake_sal::state().rows = {{"Speakers", "1.0", "Speakers"}};
    fake_sal::state().queryResult = -2147217392;
    QCOMPARE(lookUpDriverVersion("Speakers"), std::string());
}

void TestDriverVersion::isEmptyWithoutTheService()
{
    fake_sal::state().hasCim = false;
    QCOMPARE(lookUpDriverVersion("Speakers"), std::string());
}

void TestDriverVersion::copesWithTenThousandRows()
{
    fake_sal::state().rows.assign(10000, sal::CimRow{"other", "1.0", "another"});
    fake_sal::state().rows.push_back({"Speakers", "2.0", "another"});
    QCOMPARE(lookUpDriverVersion("Speakers"), std::string("2.0"));
}

void TestDriverVersion::waitsForASlowAnswer()
{
    constexpr std::chrono::milliseconds delay{300};
    fake_sal::state().rows = {{"Speakers", "1.0", "Speakers"}};
    fake_sal::state().onCall = [delay](const std::string &) { std::this_thread::sleep_for(delay); };
    const auto start = std::chrono::steady_clock::now();
    QCOMPARE(lookUpDriverVersion("Speakers"), std::string("1.0"));
    QVERIFY(std::chrono::steady_clock::now() - start >= delay);
}

QTEST_GUILESS_MAIN(TestDriverVersion)
#include "tst_driver_version.moc"

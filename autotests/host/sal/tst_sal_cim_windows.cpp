// SPDX-License-Identifier: Apache-2.0
#include "contract/sal.h"

#include <QObject>
#include <QString>
#include <QTest>

#include <windows.h>

#include <objbase.h>
#include <wbemcli.h>

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr const char *cimNameSpace = "root\\CIMV2";
constexpr int noApartment = -1;

struct Answer {
    std::int32_t code = 0;
    std::vector<sal::CimRow> rows;
};

Answer ask(const std::string &className, const std::vector<const char *> &names, const std::string &condition = {},
           const std::string &nameSpace = cimNameSpace)
{
    Answer answer;
    answer.code =
        get_cim()->query(answer.rows, condition, className, static_cast<std::uint32_t>(names.size()), names.data(), nameSpace);
    return answer;
}

// What the thread's apartment looked like around a query. The test's own initialisation is balanced at the end.
struct ApartmentTrace {
    HRESULT own = S_OK;
    Answer answer;
    HRESULT sameModeAgain = S_OK;
    HRESULT otherModeAtTheEnd = S_OK;
};

DWORD otherMode(int mode) { return mode == COINIT_APARTMENTTHREADED ? COINIT_MULTITHREADED : COINIT_APARTMENTTHREADED; }

void enterAndLeave(DWORD mode, HRESULT &result)
{
    result = CoInitializeEx(nullptr, mode);
    if (SUCCEEDED(result))
        CoUninitialize();
}

void traceThread(int mode, ApartmentTrace &trace)
{
    if (mode != noApartment)
        trace.own = CoInitializeEx(nullptr, static_cast<DWORD>(mode));
    trace.answer = ask("Win32_OperatingSystem", {"Caption"});
    if (mode != noApartment) {
        enterAndLeave(static_cast<DWORD>(mode), trace.sameModeAgain);
        CoUninitialize();
    }
    enterAndLeave(otherMode(mode), trace.otherModeAtTheEnd);
}

} // namespace

class TestSalCimWindows : public QObject {
    Q_OBJECT

private slots:
    void answersOnEveryKindOfThread_data();
    void answersOnEveryKindOfThread();
    void valuesComeInTheOrderAskedFor();
    void conditionChoosesTheInstances_data();
    void conditionChoosesTheInstances();
    void absentValueIsNoValue();
    void rowsAreAppended();
    void refusedQueryGivesACode_data();
    void refusedQueryGivesACode();
    void requestWithoutPropertiesIsRefused();
};

void TestSalCimWindows::answersOnEveryKindOfThread_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("no apartment") << noApartment;
    QTest::newRow("single-threaded apartment") << static_cast<int>(COINIT_APARTMENTTHREADED);
    QTest::newRow("multithreaded apartment") << static_cast<int>(COINIT_MULTITHREADED);
}

void TestSalCimWindows::answersOnEveryKindOfThread()
{
    QFETCH(int, mode);
    ApartmentTrace trace;
    std::thread([&] { traceThread(mode, trace); }).join();
    QCOMPARE(trace.own, S_OK);
    QCOMPARE(trace.answer.code, 0);
    QCOMPARE(trace.answer.rows.size(), std::size_t{1});
    QVERIFY(trace.answer.rows[0][0].has_value() && !trace.answer.rows[0][0]->empty());
    // The apartment is still the thread's own, and nothing of the query's is left once it is given up.
    QCOMPARE(trace.sameModeAgain, mode == noApartment ? S_OK : S_FALSE);
    QCOMPARE(trace.otherModeAtTheEnd, S_OK);
}

void TestSalCimWindows::valuesComeInTheOrderAskedFor()
{
    const Answer forwards = ask("Win32_OperatingSystem", {"Caption", "Version", "OSLanguage"});
    const Answer backwards = ask("Win32_OperatingSystem", {"OSLanguage", "Version", "Caption"});
    QCOMPARE(forwards.code, 0);
    QCOMPARE(backwards.code, 0);
    QCOMPARE(forwards.rows.size(), std::size_t{1});
    QCOMPARE(backwards.rows.size(), std::size_t{1});
    const sal::CimRow &row = forwards.rows[0];
    QCOMPARE(row.size(), std::size_t{3});
    QVERIFY(QString::fromStdString(row[0].value()).contains(QStringLiteral("Windows")));
    QVERIFY(QString::fromStdString(row[1].value()).contains(QLatin1Char('.')));
    bool isNumber = false;
    QString::fromStdString(row[2].value()).toUInt(&isNumber); // a number arrives as its text
    QVERIFY(isNumber);
    QVERIFY(backwards.rows[0] == sal::CimRow(row.rbegin(), row.rend()));
}

void TestSalCimWindows::conditionChoosesTheInstances_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::addColumn<qulonglong>("rowCount");
    QTest::newRow("none") << QByteArray() << 1ULL;
    QTest::newRow("equal") << QByteArray("DeviceID = 'CPU0'") << 1ULL;
    QTest::newRow("pattern") << QByteArray("DeviceID LIKE '%CPU%'") << 1ULL;
    QTest::newRow("nothing matches") << QByteArray("DeviceID LIKE '%AUDIOENDPOINT%'") << 0ULL;
}

void TestSalCimWindows::conditionChoosesTheInstances()
{
    QFETCH(QByteArray, condition);
    QFETCH(qulonglong, rowCount);
    const Answer answer = ask("Win32_Processor", {"DeviceID"}, condition.toStdString());
    QCOMPARE(answer.code, 0);
    if (rowCount == 0)
        QCOMPARE(answer.rows.size(), std::size_t{0});
    else
        QVERIFY(answer.rows.size() >= rowCount);
}

void TestSalCimWindows::absentValueIsNoValue()
{
    const Answer answer = ask("Win32_BIOS", {"Name", "IdentificationCode"}); // the second is unused since DMI tables exist
    QCOMPARE(answer.code, 0);
    QVERIFY(!answer.rows.empty());
    QVERIFY(answer.rows[0][0].has_value());
    QVERIFY(!answer.rows[0][1].has_value());
}

void TestSalCimWindows::rowsAreAppended()
{
    std::vector<sal::CimRow> rows{{std::string("kept")}};
    const char *name = "Caption";
    QCOMPARE(get_cim()->query(rows, {}, "Win32_OperatingSystem", 1, &name, cimNameSpace), 0);
    QCOMPARE(rows.size(), std::size_t{2});
    QCOMPARE(rows[0][0].value(), std::string("kept"));
}

void TestSalCimWindows::refusedQueryGivesACode_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("nameSpace");
    QTest::addColumn<bool>("isRefusedBeforehand"); // by us: it could not be a name
    const auto row = [](const char *what, const char *className, const char *property, const char *nameSpace,
                        bool isBeforehand) {
        QTest::newRow(what) << QByteArray(className) << QByteArray(property) << QByteArray(nameSpace) << isBeforehand;
    };
    row("unknown class", "Win32_NoSuchClassAtAll", "Name", cimNameSpace, false);
    row("unknown property", "Win32_Processor", "NoSuchName", cimNameSpace, false);
    row("unknown namespace", "Win32_Processor", "Name", "root\\NoSuchSpace", false);
    row("query in the class name", "Win32_Processor WHERE 1=1", "Name", cimNameSpace, true);
    row("query in the property name", "Win32_Processor", "Name FROM Win32_BIOS --", cimNameSpace, true);
    row("empty class name", "", "Name", cimNameSpace, true);
    row("empty property name", "Win32_Processor", "", cimNameSpace, true);
}

void TestSalCimWindows::refusedQueryGivesACode()
{
    QFETCH(QByteArray, className);
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, nameSpace);
    QFETCH(bool, isRefusedBeforehand);
    const Answer answer = ask(className.toStdString(), {property.constData()}, {}, nameSpace.toStdString());
    QVERIFY(answer.code != 0);
    QCOMPARE(answer.code == static_cast<HRESULT>(WBEM_E_INVALID_PARAMETER), isRefusedBeforehand);
}

void TestSalCimWindows::requestWithoutPropertiesIsRefused()
{
    std::vector<sal::CimRow> rows;
    QVERIFY(get_cim()->query(rows, {}, "Win32_Processor", 0, nullptr, cimNameSpace) != 0);
    QVERIFY(get_cim()->query(rows, {}, "Win32_Processor", 1, nullptr, cimNameSpace) != 0);
    const char *missing = nullptr;
    QVERIFY(get_cim()->query(rows, {}, "Win32_Processor", 1, &missing, cimNameSpace) != 0);
}

QTEST_GUILESS_MAIN(TestSalCimWindows)
#include "tst_sal_cim_windows.moc"

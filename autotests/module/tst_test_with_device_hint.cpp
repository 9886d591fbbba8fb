// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_context.h"
#include "module/test_with_device_hint.h"

#include <QTest>

using namespace ostra;

namespace {

// What the wrapped test saw and answers; the wrapper makes the test itself, so it is kept outside.
struct Script {
    std::uint32_t code = 0;
    bool isSupported = false;
    std::vector<std::string> calls;
};
Script script;

class ScriptedTest final : public Test {
public:
    explicit ScriptedTest(const EntityId &id) : Test(id) { script.calls.push_back("made " + std::to_string(id.index)); }
    ~ScriptedTest() override { script.calls.emplace_back("destroyed"); }
    bool isSupported(SystemComponent *component) override
    {
        return note("isSupported"), component == nullptr && script.isSupported;
    }
    std::uint32_t run(TestContext * /*context*/) override { return note("run"), script.code; }
    bool firstFlag() override { return note("firstFlag"), false; }
    bool secondFlag() override { return note("secondFlag"), true; }
    std::vector<OpaqueRecord> firstList() override { return note("firstList"), std::vector<OpaqueRecord>(1); }
    void setOption(std::string text) override { note("setOption " + text); }
    std::vector<OpaqueRecord> secondList() override { return note("secondList"), std::vector<OpaqueRecord>(2); }
    bool thirdFlag() override { return note("thirdFlag"), false; }
    bool fourthFlag() override { return note("fourthFlag"), false; }
    bool configure(ParameterTable table, std::uint64_t value) override
    {
        return note("configure " + table.at(4) + " " + std::to_string(value)), false;
    }
    void reset() override { note("reset"); }

private:
    static void note(std::string call) { script.calls.push_back(std::move(call)); }
};

} // namespace

class TestTestWithDeviceHint : public QObject {
    Q_OBJECT

private slots:
    void init() { script = {}; }
    void hintsAfterAFailureAndNowhereElse_data();
    void hintsAfterAFailureAndNowhereElse();
    void neverTouchesTheContextOfAnInvalidCall();
    void forwardsEverythingElse();
    void givesItsIdentityToTheWrappedTest();
};

void TestTestWithDeviceHint::hintsAfterAFailureAndNowhereElse_data()
{
    QTest::addColumn<unsigned>("code");
    QTest::addColumn<std::vector<std::string>>("calls");
    const std::vector<std::string> none;
    QTest::newRow("passed") << 0U << none;
    QTest::newRow("failed") << 1U << std::vector<std::string>{"message HINT: A, B 0 0", "report 100 HINT: A, B"};
    QTest::newRow("cannot be performed") << 3U << none;
    QTest::newRow("not completed") << 4U << none;
    QTest::newRow("invalid call") << 6U << none;
}

void TestTestWithDeviceHint::hintsAfterAFailureAndNowhereElse()
{
    QFETCH(unsigned, code);
    script.code = code;
    FakeContext context;
    TestWithDeviceHint<ScriptedTest> test(EntityId(15, 1, 1), "HINT: A, B");
    QCOMPARE(test.run(&context), code);
    QTEST(context.calls, "calls");
}

void TestTestWithDeviceHint::neverTouchesTheContextOfAnInvalidCall()
{
    script.code = 6;
    TestWithDeviceHint<ScriptedTest> test(EntityId(15, 1, 1), "HINT");
    QCOMPARE(test.run(nullptr), 6U);
}

void TestTestWithDeviceHint::forwardsEverythingElse()
{
    {
        TestWithDeviceHint<ScriptedTest> test(EntityId(15, 1, 1), "HINT");
        script.isSupported = true;
        QVERIFY(test.isSupported(nullptr));
        QVERIFY(!test.firstFlag());
        QVERIFY(test.secondFlag());
        QCOMPARE(test.firstList().size(), std::size_t(1));
        test.setOption("text");
        QCOMPARE(test.secondList().size(), std::size_t(2));
        QVERIFY(!test.thirdFlag());
        QVERIFY(!test.fourthFlag());
        QVERIFY(!test.configure({{4, "four"}}, 5));
        test.reset();
    }
    QCOMPARE(script.calls,
             (std::vector<std::string>{"made 1", "isSupported", "firstFlag", "secondFlag", "firstList", "setOption text",
                                       "secondList", "thirdFlag", "fourthFlag", "configure four 5", "reset", "destroyed"}));
}

void TestTestWithDeviceHint::givesItsIdentityToTheWrappedTest()
{
    const TestWithDeviceHint<ScriptedTest> test(EntityId(15, 1, 2), "HINT");
    QCOMPARE(test.identity().key, EntityId(15, 1, 2).key);
    QCOMPARE(script.calls.front(), std::string("made 2"));
}

QTEST_GUILESS_MAIN(TestTestWithDeviceHint)
#include "tst_test_with_device_hint.moc"

// SPDX-License-Identifier: Apache-2.0
#include "module/audio_resource.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace ostra;

class TestAudioResource : public QObject {
    Q_OBJECT

private slots:
    void namesTheDiagnostic_data();
    void namesTheDiagnostic();
    void namesTheTests_data();
    void namesTheTests();
    void helpTextIsTheGoldenFile();
    void helpTextAlignsTheDisplayNames();
    void otherTextsAreEmpty();
    void listsTestNamesInIdentityOrderLetterFirst();
    void listsTheDiagnosticsNames();
    void takesTheParameterTable();
    void keepsItsOwnParameterTable();
    void answersHandleAndViewConstantly();

private:
    const AudioResource resource_{EntityId(15, 0, 0)};
};

void TestAudioResource::namesTheDiagnostic_data()
{
    QTest::addColumn<unsigned>("index");
    QTest::addColumn<std::string>("name");
    QTest::addColumn<std::string>("description");
    QTest::newRow("the diagnostic") << 0U << std::string("QUICK_AUDIO") << std::string("QUICK_AUDIO_TESTS_TOOLTIP");
    QTest::newRow("a test is no diagnostic") << 1U << std::string() << std::string();
    QTest::newRow("unknown") << 9U << std::string() << std::string();
}

void TestAudioResource::namesTheDiagnostic()
{
    QFETCH(unsigned, index);
    QTEST(resource_.diagnosticName(EntityId(15, 1, index)), "name");
    QTEST(resource_.diagnosticDescription(EntityId(15, 1, index)), "description");
}

void TestAudioResource::namesTheTests_data()
{
    QTest::addColumn<unsigned>("category");
    QTest::addColumn<unsigned>("index");
    QTest::addColumn<std::string>("name");
    QTest::addColumn<std::string>("description");
    QTest::newRow("playback") << 1U << 1U << std::string("AUDIO_PLAYBACK_TEST")
                              << std::string("AUDIO_PLAYBACK_TEST_DESCRIPTION");
    QTest::newRow("microphone") << 1U << 2U << std::string("MICROPHONE_INTERACTIVE_TEST")
                                << std::string("MICROPHONE_INTERACTIVE_TEST_DESCRIPTION");
    QTest::newRow("the diagnostic is no test") << 1U << 0U << std::string() << std::string();
    QTest::newRow("the unassigned test") << 1U << 3U << std::string() << std::string();
    // Only the packed key counts, and an overlong category overlaps the module number in it.
    QTest::newRow("another identity of the same key") << 0x01000001U << 2U << std::string("MICROPHONE_INTERACTIVE_TEST")
                                                      << std::string("MICROPHONE_INTERACTIVE_TEST_DESCRIPTION");
}

void TestAudioResource::namesTheTests()
{
    QFETCH(unsigned, category);
    QFETCH(unsigned, index);
    QTEST(resource_.testName(EntityId(15, category, index)), "name");
    QTEST(resource_.testDescription(EntityId(15, category, index)), "description");
}

void TestAudioResource::helpTextIsTheGoldenFile()
{
    QFile golden(QCoreApplication::applicationDirPath() + QStringLiteral("/" HELP_TEXT_GOLDEN));
    QVERIFY(golden.open(QIODevice::ReadOnly));
    QCOMPARE(QByteArray::fromStdString(resource_.helpText()), golden.readAll());
}

void TestAudioResource::helpTextAlignsTheDisplayNames()
{
    const std::string help = resource_.helpText();
    for (const std::string display : {"Audio Playback Test*", "Microphone Interactive Test*"}) {
        const std::size_t found = help.find(display);
        QVERIFY(found != std::string::npos);
        QCOMPARE(found - help.rfind('\t', found) - 1, std::size_t(41));
    }
}

void TestAudioResource::otherTextsAreEmpty()
{
    QVERIFY(resource_.secondText().empty());
    QVERIFY(resource_.thirdText().empty());
}

void TestAudioResource::listsTestNamesInIdentityOrderLetterFirst()
{
    const NameTable names = resource_.testNames();
    QCOMPARE(names.size(), std::size_t(2));
    QCOMPARE(names.begin()->first.key, EntityId(15, 1, 1).key);
    QCOMPARE(names.begin()->second, (std::vector<std::string>{"p", "audio_playback_test"}));
    QCOMPARE(names.rbegin()->first.key, EntityId(15, 1, 2).key);
    QCOMPARE(names.rbegin()->second, (std::vector<std::string>{"m", "microphone_interactive_test"}));
}

void TestAudioResource::listsTheDiagnosticsNames()
{
    const NameTable names = resource_.diagnosticNames();
    QCOMPARE(names.size(), std::size_t(1));
    QCOMPARE(names.begin()->first.key, EntityId(15, 1, 0).key);
    QCOMPARE(names.begin()->second, (std::vector<std::string>{"Q", "quick"}));
}

void TestAudioResource::takesTheParameterTable()
{
    AudioResource resource(EntityId(15, 0, 0));
    ParameterTable table{{7, "seven"}};
    resource.setParameterTable(table);
    table.clear();
    QCOMPARE(resource.parameterTable(), (ParameterTable{{7, "seven"}}));
    resource.setParameterTable({});
    QVERIFY(resource.parameterTable().empty());
}

void TestAudioResource::keepsItsOwnParameterTable()
{
    AudioResource resource(EntityId(15, 0, 0));
    resource.setParameterTable({{0, "0 - 2"}, {1, ""}});
    resource.setParameterTable(resource.parameterTable());
    QCOMPARE(resource.parameterTable(), (ParameterTable{{0, "0 - 2"}, {1, ""}}));
}

void TestAudioResource::answersHandleAndViewConstantly()
{
    AudioResource resource(EntityId(15, 0, 0));
    resource.setParameterTable({{0, "0 - 2"}});
    for (int turn = 0; turn < 2; ++turn) {
        QCOMPARE(resource.handle(), std::uintptr_t(0));
        QVERIFY(resource.parameterTableView().empty());
    }
}

QTEST_GUILESS_MAIN(TestAudioResource)
#include "tst_audio_resource.moc"

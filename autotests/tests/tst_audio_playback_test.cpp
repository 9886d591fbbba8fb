// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/scripted_playback_view.h"
#include "autotests/tests/playback_stage.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ostra;
using namespace playback;

/// When the playback test may run at all.
class TestAudioPlaybackTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void cancelsByTheMaskOnly_data();
    void cancelsByTheMaskOnly();
    void asksForTheServicesInOrderUpToTheFirstThatIsMissing_data();
    void asksForTheServicesInOrderUpToTheFirstThatIsMissing();
    void anInvalidContextEndsBeforeAnyProgress_data();
    void anInvalidContextEndsBeforeAnyProgress();
    void aNullContextIsAnInvalidCall();
    void isSupportedOnAnAudioComponentWithAllClips();
    void isUnsupportedOnAnythingElse();
    void isUnsupportedWithoutAClip_data();
    void isUnsupportedWithoutAClip();
    void aMissingClipOfNineIsReportedAtLevelZeroWithoutAHint();
    void aComponentThatIsNoAudioComponentCannotBeTested();
    void executeOnSuchAComponentIsAnInvalidCall();
    void anUnsupportedDeviceComesBeforeAPendingEvent();

private:
    QTemporaryDir folder_;
};

void TestAudioPlaybackTest::initTestCase() { QVERIFY(QDir::setCurrent(folder_.path())); }

void TestAudioPlaybackTest::init()
{
    writeClips();
    ScriptedView::script() = {};
}

void TestAudioPlaybackTest::cleanupTestCase() { removeClips(); }

void TestAudioPlaybackTest::cancelsByTheMaskOnly_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<bool>("cancels");
    QTest::newRow("nothing") << 0U << false;
    for (int bit = 0; bit < 32; ++bit)
        QTest::addRow("bit %d", bit) << (1U << bit) << (bit <= 8 && bit != 2);
    QTest::newRow("all that never cancel") << ~0x1FBU << false;
    QTest::newRow("one among them") << (~0x1FBU | 0x80U) << true;
}

void TestAudioPlaybackTest::cancelsByTheMaskOnly()
{
    QFETCH(quint32, flags);
    QTEST(AudioPlaybackTest(identity).isCancelingEvent(flags), "cancels");
}

void TestAudioPlaybackTest::asksForTheServicesInOrderUpToTheFirstThatIsMissing_data()
{
    QTest::addColumn<std::string>("missing");
    QTest::addColumn<Calls>("asked");
    QTest::newRow("reporter") << std::string("reporter") << Calls{"reporter"};
    QTest::newRow("messages") << std::string("messages") << Calls{"reporter", "messages"};
    QTest::newRow("events") << std::string("event source") << Calls{"reporter", "messages", "event source"};
    QTest::newRow("component") << std::string("component") << Calls{"reporter", "messages", "event source", "component"};
    QTest::newRow("nothing") << std::string() << Calls{"reporter", "messages", "event source", "component"};
}

void TestAudioPlaybackTest::asksForTheServicesInOrderUpToTheFirstThatIsMissing()
{
    QFETCH(std::string, missing);
    Stage stage;
    stage.context.notesServices = true;
    stage.context.missing = missing;
    QCOMPARE(AudioPlaybackTest(identity).isContextValid(&stage.context), missing.empty());
    QTEST(stage.context.calls, "asked");
}

void TestAudioPlaybackTest::anInvalidContextEndsBeforeAnyProgress_data()
{
    QTest::addColumn<std::string>("missing");
    for (const char *service : {"reporter", "messages", "event source", "component"})
        QTest::newRow(service) << std::string(service);
}

void TestAudioPlaybackTest::anInvalidContextEndsBeforeAnyProgress()
{
    QFETCH(std::string, missing);
    Stage stage;
    stage.context.missing = missing;
    QCOMPARE(stage.run(), 6U);
    QCOMPARE(stage.runWithHint(), 6U);
    QCOMPARE(stage.context.calls, Calls{});
}

void TestAudioPlaybackTest::aNullContextIsAnInvalidCall()
{
    AudioPlaybackTest test(identity);
    QVERIFY(!test.isContextValid(nullptr));
    QCOMPARE(test.run(nullptr), 6U);
    QCOMPARE(TestWithDeviceHint<AudioPlaybackTest>(identity, playbackHint()).run(nullptr), 6U);
}

void TestAudioPlaybackTest::isSupportedOnAnAudioComponentWithAllClips()
{
    Stage stage;
    AudioPlaybackTest test(identity);
    QVERIFY(test.isSupported(&stage.device));
    QVERIFY(test.firstFlag());
    QVERIFY(test.identity() == identity);
}

void TestAudioPlaybackTest::isUnsupportedOnAnythingElse()
{
    const Stage language;
    ForeignComponent disk;
    AudioPlaybackTest test(identity);
    QVERIFY(!test.isSupported(&disk));
    QVERIFY(!test.isSupported(nullptr));
}

void TestAudioPlaybackTest::isUnsupportedWithoutAClip_data()
{
    QTest::addColumn<int>("digit");
    for (int digit = 0; digit <= 9; ++digit)
        QTest::addRow("%d", digit) << digit;
}

void TestAudioPlaybackTest::isUnsupportedWithoutAClip()
{
    QFETCH(int, digit);
    Stage stage;
    QVERIFY(QFile::remove(playback::clip(digit)));
    QVERIFY(!AudioPlaybackTest(identity).isSupported(&stage.device));
}

void TestAudioPlaybackTest::aMissingClipOfNineIsReportedAtLevelZeroWithoutAHint()
{
    Stage stage(0);
    QVERIFY(QFile::remove(playback::clip(9)));
    QCOMPARE(stage.runWithHint(), 3U);
    QCOMPARE(stage.context.calls, Calls{started} + ending(unsupportedKey, 0));
    QCOMPARE(stage.device.instructionsState(), 0);
}

void TestAudioPlaybackTest::aComponentThatIsNoAudioComponentCannotBeTested()
{
    const Stage language;
    ForeignComponent disk;
    ScriptedContext context(&disk);
    QCOMPARE(AudioPlaybackTest(identity).run(&context), 3U);
    QCOMPARE(context.calls, Calls{started} + ending(unsupportedKey, 0));
}

void TestAudioPlaybackTest::executeOnSuchAComponentIsAnInvalidCall()
{
    ForeignComponent disk;
    ScriptedContext context(&disk);
    QCOMPARE(AudioPlaybackTest(identity).execute(&context), 6U);
    QCOMPARE(context.calls, Calls{});
}

void TestAudioPlaybackTest::anUnsupportedDeviceComesBeforeAPendingEvent()
{
    const Stage language;
    ForeignComponent disk;
    ScriptedContext context(&disk);
    context.pending = {0x1FB, 0x1FB};
    QCOMPARE(AudioPlaybackTest(identity).run(&context), 3U);
    QCOMPARE(context.calls, Calls{started} + ending(unsupportedKey, 0)); // nobody asked for events
}

QTEST_GUILESS_MAIN(TestAudioPlaybackTest)
#include "tst_audio_playback_test.moc"

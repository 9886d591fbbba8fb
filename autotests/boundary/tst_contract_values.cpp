// SPDX-License-Identifier: Apache-2.0
#include "contract/entity_id.h"
#include "contract/event_mask.h"
#include "contract/exports.h"
#include "contract/message_keys.h"
#include "contract/opaque_record.h"
#include "contract/product_version.h"
#include "contract/property_keys.h"
#include "contract/result_codes.h"

#include <QObject>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <type_traits>

using ostra::EntityId;

/// What host and module must agree on byte by byte; the expected values are typed here a second time, on purpose.
class TestContractValues : public QObject {
    Q_OBJECT

private slots:
    void packsAnIdentity_data();
    void packsAnIdentity();
    void comparesIdentitiesByKeyAlone();
    void copiesAllFieldsOfAnIdentity();
    void definesTheIdentities_data();
    void definesTheIdentities();
    void spellsKeysByteForByte_data();
    void spellsKeysByteForByte();
    void definesResultCodesAndLevels_data();
    void definesResultCodesAndLevels();
    void cancelsOnTheMaskedEventBitsOnly_data();
    void cancelsOnTheMaskedEventBitsOnly();
    void carriesFourVersionNumbers();
    void laysRecordsOutAsTheHostDoes();
};

void TestContractValues::packsAnIdentity_data()
{
    QTest::addColumn<quint16>("module");
    QTest::addColumn<quint32>("category");
    QTest::addColumn<quint32>("index");
    QTest::addColumn<quint32>("keptCategory");
    QTest::addColumn<quint32>("keptIndex");
    QTest::addColumn<quint64>("key");
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
    row("all zero") << quint16{0} << 0U << 0U << 0U << 0U << quint64{0};
    row("microphone test") << quint16{15} << 1U << 2U << 1U << 2U << quint64{0x000F000001000002};
    row("widest fields") << quint16{0xFFFF} << 0xFFFFFFU << 0xFFFFFFU << 0xFFFFFFU << 0xFFFFFFU << quint64{0xFFFFFFFFFFFFFFFF};
    row("distinct bytes") << quint16{0xFEDC} << 0xABCDEFU << 0x123456U << 0xABCDEFU << 0x123456U << quint64{0xFEDCABCDEF123456};
    row("overlong category overlaps the module") << quint16{15} << 0x01000001U << 2U << 1U << 2U << quint64{0x000F000001000002};
    row("overlong category adds to the module") << quint16{15} << 0xF0000001U << 2U << 1U << 2U << quint64{0x00FF000001000002};
    row("overlong index overlaps the category") << quint16{15} << 1U << 0x01000002U << 1U << 2U << quint64{0x000F000001000002};
    row("overlong index adds to the category") << quint16{15} << 1U << 0x02000002U << 1U << 2U << quint64{0x000F000003000002};
}

void TestContractValues::packsAnIdentity()
{
    QFETCH(quint16, module);
    QFETCH(quint32, category);
    QFETCH(quint32, index);
    const EntityId id(module, category, index);
    QCOMPARE(id.module, module);
    QTEST(id.category, "keptCategory");
    QTEST(id.index, "keptIndex");
    QTEST(quint64{id.key}, "key");
}

void TestContractValues::comparesIdentitiesByKeyAlone()
{
    const EntityId plain(15, 1, 2);
    const EntityId overlong(15, 0x01000001, 2);
    QVERIFY(plain == overlong && !(plain < overlong) && !(overlong < plain));
    EntityId otherFields = plain;
    otherFields.module = 7;
    otherFields.category = 8;
    otherFields.index = 9;
    QVERIFY(otherFields == plain);
    EntityId otherKey = plain;
    ++otherKey.key;
    QVERIFY(!(otherKey == plain) && plain < otherKey);
    // 9 is less than 15, but the key of the left one is greater.
    QVERIFY(EntityId(15, 0, 0) < EntityId(9, 0xF0000000, 0));
}

void TestContractValues::copiesAllFieldsOfAnIdentity()
{
    EntityId original(15, 1, 2);
    original.key = 42;
    const EntityId copy = original;
    QCOMPARE(copy.module, std::uint16_t{15});
    QCOMPARE(copy.category, 1U);
    QCOMPARE(copy.index, 2U);
    QCOMPARE(copy.key, std::uint64_t{42});
}

void TestContractValues::definesTheIdentities_data()
{
    QTest::addColumn<quint64>("defined");
    QTest::addColumn<quint64>("key");
    using namespace ostra::identities;
    QTest::newRow("component manager") << quint64{componentManager.key} << quint64{0x000F000000000000};
    QTest::newRow("resource") << quint64{resource.key} << quint64{0x000F000000000000};
    QTest::newRow("diagnostic") << quint64{audioDiagnostic.key} << quint64{0x000F000001000000};
    QTest::newRow("playback") << quint64{audioPlaybackTest.key} << quint64{0x000F000001000001};
    QTest::newRow("microphone") << quint64{microphoneInteractiveTest.key} << quint64{0x000F000001000002};
    QTest::newRow("unassigned") << quint64{unassignedTest.key} << quint64{0x000F000001000003};
}

void TestContractValues::definesTheIdentities()
{
    QFETCH(quint64, defined);
    QTEST(defined, "key");
}

void TestContractValues::spellsKeysByteForByte_data()
{
    QTest::addColumn<QByteArray>("defined");
    QTest::addColumn<QByteArray>("wanted");
    const auto row = [](const char *defined, const char *wanted) {
        QTest::newRow(wanted) << QByteArray(defined) << QByteArray(wanted);
    };
    using namespace ostra::keys;
    row(audioPlaybackTestWrongSequence, "AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE");
    row(userDidNotReportSound, "USER_DID_NOT_REPORT_SOUND");
    row(audioDeviceCouldNotBeAccessed, "AUDIO_DEVICE_COULD_NOT_BE_ACCESSED");
    row(testCanceledByEvent, "TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED");
    row(deviceNotIdentifiedOrDisconnected,
        "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED");
    row(deviceCannotReceiveInput, "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT");
    row(internalError, "AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.");
    row(noInputDevice, "NO_INPUT_DEVICE");
    row(possibleDefectiveComponents, "POSSIBLE_DEFECTIVE_COMPONENTS");
    row(speakers, "SPEAKERS");
    row(microphone, "MICROPHONE");
    row(cameraMicrophoneModule, "CAMERA_MICROPHONE_MODULE");
    row(quickAudio, "QUICK_AUDIO");
    row(quickAudioDescription, "QUICK_AUDIO_TESTS_TOOLTIP");
    row(audioPlaybackTest, "AUDIO_PLAYBACK_TEST");
    row(audioPlaybackTestDescription, "AUDIO_PLAYBACK_TEST_DESCRIPTION");
    row(microphoneInteractiveTest, "MICROPHONE_INTERACTIVE_TEST");
    row(microphoneInteractiveTestDescription, "MICROPHONE_INTERACTIVE_TEST_DESCRIPTION");
    row(ostra::properties::udi, "UDI");
    row(ostra::properties::numberOfChannels, "NUMBER_OF_CHANNELS");
    row(ostra::properties::sampleRate, "SAMPLE_RATE");
    row(ostra::properties::driverName, "DRIVER_NAME");
    row(ostra::properties::driverVersion, "DRIVER_VERSION");
    row(ostra::exports::getModuleInterfaceInstance, "GetModuleInterfaceInstance");
    row(ostra::exports::releaseModuleInterfaceInstance, "ReleaseModuleInterfaceInstance");
    row(ostra::exports::getProductVersion, "GetProductVersion");
}

void TestContractValues::spellsKeysByteForByte()
{
    QFETCH(QByteArray, defined);
    QTEST(defined, "wanted");
}

void TestContractValues::definesResultCodesAndLevels_data()
{
    QTest::addColumn<quint32>("defined");
    QTest::addColumn<quint32>("wanted");
    QTest::newRow("passed") << quint32{ostra::result::passed} << 0U;
    QTest::newRow("failed") << quint32{ostra::result::failed} << 1U;
    QTest::newRow("cannot be performed") << quint32{ostra::result::cannotBePerformed} << 3U;
    QTest::newRow("not completed") << quint32{ostra::result::notCompleted} << 4U;
    QTest::newRow("invalid call") << quint32{ostra::result::invalidCall} << 6U;
    QTest::newRow("level of a note") << quint32{ostra::message_level::note} << 0U;
    QTest::newRow("level of an error") << quint32{ostra::message_level::error} << 2U;
}

void TestContractValues::definesResultCodesAndLevels()
{
    QFETCH(quint32, defined);
    QTEST(defined, "wanted");
}

void TestContractValues::cancelsOnTheMaskedEventBitsOnly_data()
{
    QTest::addColumn<unsigned>("bit");
    QTest::addColumn<bool>("cancels");
    for (unsigned bit = 0; bit < 32; ++bit)
        QTest::addRow("bit %u", bit) << bit << (bit <= 8 && bit != 2);
}

void TestContractValues::cancelsOnTheMaskedEventBitsOnly()
{
    QFETCH(unsigned, bit);
    QTEST((ostra::cancelingEventMask & (1U << bit)) != 0, "cancels");
}

void TestContractValues::carriesFourVersionNumbers()
{
    const ostra::ProductVersion version(4, 42, 0, 92);
    QCOMPARE(version.major(), 4U);
    QCOMPARE(version.minor(), 42U);
    QCOMPARE(version.build(), 0U);
    QCOMPARE(version.revision(), 92U);
    QCOMPARE(sizeof(version), sizeof(void *) + 4 * sizeof(std::uint32_t));
}

void TestContractValues::laysRecordsOutAsTheHostDoes()
{
    QCOMPARE(sizeof(ostra::OpaqueRecord), 3 * sizeof(void *));
    const ostra::OpaqueRecord record;
    QVERIFY(record.first == nullptr && record.second == nullptr && record.third == nullptr);
    QVERIFY(std::is_trivially_copyable_v<EntityId>);
    QCOMPARE(offsetof(EntityId, module), std::size_t{0});
    QCOMPARE(offsetof(EntityId, category), std::size_t{4});
    QCOMPARE(offsetof(EntityId, index), std::size_t{8});
    QCOMPARE(offsetof(EntityId, key), std::size_t{16});
    QCOMPARE(sizeof(EntityId), std::size_t{24});
}

QTEST_GUILESS_MAIN(TestContractValues)
#include "tst_contract_values.moc"

// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_names.h"

#include "autotests/support/fake_core_audio_windows.h"

#include <QObject>
#include <QTest>

using namespace ostra::audio;
using fake_core_audio::Call;
using fake_core_audio::FakeCoreAudio;

namespace {

void addAll(FakeCoreAudio &fake)
{
    fake.add(L"one", 0.1F, false);
    fake.endpoints.back()->name = L"Kopfh\u00f6rer \u8033 \U0001F50A";
    fake.add(L"two", 0.2F, true); // tells no name
    fake.add(std::nullopt, 0.3F, false);
    fake.endpoints.back()->name = L"Microphone";
}

void verifyEverythingGivenBack(const FakeCoreAudio &fake)
{
    QCOMPARE(fake.referenceCount(), 0);
    QCOMPARE(fake.outstandingIdCount(), std::size_t{0});
    QCOMPARE(fake.openApartmentCount(), 0);
    QCOMPARE(fake.referencesAtLeaving(), 0);
    QCOMPARE(fake.complaints(), std::vector<std::string>());
}

} // namespace

class TestEndpointNamesWindows : public QObject {
    Q_OBJECT

private slots:
    void readsIdAndFriendlyName();
    void survivesAFailureOf_data();
    void survivesAFailureOf();
};

void TestEndpointNamesWindows::readsIdAndFriendlyName()
{
    FakeCoreAudio fake;
    addAll(fake);
    EndpointNames names;
    QCOMPARE(readEndpointNames(names), 0);
    QCOMPARE(names.size(), std::size_t{3});
    QCOMPARE(names[0].id, std::u16string(u"one"));
    QCOMPARE(QByteArray::fromStdString(names[0].description), QByteArray("Kopfh\xC3\xB6rer \xE8\x80\xB3 \xF0\x9F\x94\x8A"));
    QCOMPARE(names[1].id, std::u16string(u"two"));
    QCOMPARE(names[1].description, std::string());
    QCOMPARE(names[2].id, std::u16string());
    QCOMPARE(names[2].description, std::string("Microphone"));
    verifyEverythingGivenBack(fake);
}

void TestEndpointNamesWindows::survivesAFailureOf_data()
{
    QTest::addColumn<int>("failingCall");
    FakeCoreAudio fake;
    addAll(fake);
    EndpointNames names;
    readEndpointNames(names);
    for (int i = 0; i < static_cast<int>(fake.events.size()); ++i)
        QTest::addRow("call %d: %s", i, fake_core_audio::nameOf(fake.events[static_cast<std::size_t>(i)].call)) << i;
}

void TestEndpointNamesWindows::survivesAFailureOf()
{
    QFETCH(const int, failingCall);
    FakeCoreAudio fake;
    addAll(fake);
    fake.failAt(static_cast<std::size_t>(failingCall));
    EndpointNames names;
    const int result = readEndpointNames(names);
    // What one endpoint does not tell is missing in its name; without the list there is nothing to read.
    const Call failing = fake.events[static_cast<std::size_t>(failingCall)].call;
    const bool isOneEndpoints = failing == Call::getId || failing == Call::openProperties || failing == Call::getProperty;
    QCOMPARE(result, isOneEndpoints ? 0 : 1);
    QCOMPARE(names.size() == 3, isOneEndpoints);
    verifyEverythingGivenBack(fake);
}

QTEST_GUILESS_MAIN(TestEndpointNamesWindows)
#include "tst_endpoint_names_windows.moc"

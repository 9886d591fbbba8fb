// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with a sink and a microphone.
#include "audio/endpoints/endpoint_names.h"

#include "audio/endpoints/endpoint_volume.h"
#include "autotests/support/pulse_truth_linux.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTest>

using namespace ostra::audio;

class TestEndpointNamesSound : public QObject {
    Q_OBJECT

private slots:
    void readsSinksAndMicrophonesWithoutMonitors();
    void standInTheOrderOfTheVolumes();
    void failsWithoutServer();
    void endsInTimeWhenTheServerIsFrozen();
};

void TestEndpointNamesSound::readsSinksAndMicrophonesWithoutMonitors()
{
    EndpointNames names;
    QCOMPARE(readEndpointNames(names), 0);
    QCOMPARE(names.size(), std::size_t{3});
    QCOMPARE(names[0].id, std::u16string(u"sink1"));
    QCOMPARE(names[0].description, std::string("Kopfh\xC3\xB6rer \xE8\x80\xB3"));
    QCOMPARE(names[1].description, std::string("Speakers"));
    QCOMPARE(names[2].id, std::u16string(u"mic1"));
    QCOMPARE(names[2].description, std::string("Microphone"));
}

void TestEndpointNamesSound::standInTheOrderOfTheVolumes()
{
    EndpointNames names;
    EndpointVolumes volumes;
    QCOMPARE(readEndpointNames(names), 0);
    QCOMPARE(readEndpointVolumes(volumes), 0);
    QCOMPARE(names.size(), volumes.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        QCOMPARE(names[i].id, volumes[i].id);
}

void TestEndpointNamesSound::failsWithoutServer()
{
    const pulse_truth::OtherServer nowhere("unix:nowhere");
    EndpointNames names;
    QCOMPARE(readEndpointNames(names), 1);
    QVERIFY(names.empty());
}

void TestEndpointNamesSound::endsInTimeWhenTheServerIsFrozen()
{
    const pulse_truth::FrozenServer frozen;
    EndpointNames names;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(readEndpointNames(names), 1);
    const auto duration = std::chrono::milliseconds(timer.elapsed());
    QVERIFY2(duration >= passBound && duration < 5 * passBound, qPrintable(QString::number(duration.count())));
}

QTEST_GUILESS_MAIN(TestEndpointNamesSound)
#include "tst_endpoint_names_sound.moc"

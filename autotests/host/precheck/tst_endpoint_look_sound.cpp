// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/endpoint_look.h"
#include "host/precheck/machine.h"

#include <QObject>
#include <QProcess>
#include <QSysInfo>
#include <QTest>

namespace {

bool pactl(const char *arguments)
{
    return QProcess::execute(QStringLiteral("pactl"), QString::fromLatin1(arguments).split(u' ')) == 0;
}

host::RunRecord recordOf(const char *device, const char *microphone)
{
    host::RunRecord record;
    record.device.name = QString::fromLatin1(device);
    record.microphone = QString::fromLatin1(microphone);
    return record;
}

} // namespace

// The virtual card has two sinks "Speakers", one "Desk" and an input of that name too.
class TestEndpointLookSound : public QObject {
    Q_OBJECT

private slots:
    void tellsOutputsFromInputs();
    void notesBothVolumes();
    void knowsWhatItCannotKnow();
    void noticesADeviceThatDisappears();
    void namesTheMachine();
};

void TestEndpointLookSound::tellsOutputsFromInputs()
{
    const host::EndpointLook look = host::lookAtEndpoints();
    QVERIFY(look.isComplete);
    for (const char *output : {"Speakers", "Speakers (2)", "Desk"})
        QVERIFY2(look.outputs.contains(QLatin1String(output)), output);
    QCOMPARE(look.outputs.size(), 3);
    QCOMPARE(look.inputs.keys(), QStringList{QStringLiteral("Desk")});
}

void TestEndpointLookSound::notesBothVolumes()
{
    QVERIFY(pactl("set-sink-volume sink2 37%") && pactl("set-sink-mute sink2 1"));
    QVERIFY(pactl("set-sink-volume sink3 80%") && pactl("set-source-volume mic1 55%"));
    const host::EndpointLook before = host::lookAtEndpoints();
    QVERIFY(pactl("set-sink-mute sink2 0"));
    host::RunRecord record = recordOf("Speakers (2)", "Desk");
    host::noteVolumes(record, before, host::lookAtEndpoints());
    QCOMPARE(record.deviceVolume.before->percent, 37);
    QVERIFY(record.deviceVolume.before->isMuted && !record.deviceVolume.after->isMuted);
    QCOMPARE(record.microphoneVolume.before->percent, 55);
    QVERIFY(!record.microphoneVolume.before->isMuted);
    host::RunRecord playback = recordOf("Desk", "");
    host::noteVolumes(playback, before);
    QCOMPARE(playback.deviceVolume.before->percent, 80); // not the input of that name
    QVERIFY(!playback.deviceVolume.after && !playback.microphoneVolume.before);
}

void TestEndpointLookSound::knowsWhatItCannotKnow()
{
    const host::EndpointLook before = host::lookAtEndpoints();
    const QByteArray server = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", "unix:/no/such/server");
    const host::EndpointLook silent = host::lookAtEndpoints();
    const QString name = host::soundServerName();
    qputenv("PULSE_SERVER", server);
    QVERIFY(!silent.isComplete && silent.outputs.isEmpty());
    QVERIFY(!host::hasGone(QStringLiteral("Desk"), before, silent)); // the server has, perhaps
    QVERIFY(name.isEmpty());
}

void TestEndpointLookSound::noticesADeviceThatDisappears()
{
    const host::EndpointLook before = host::lookAtEndpoints();
    QVERIFY(!host::hasGone(QStringLiteral("Desk"), before, host::lookAtEndpoints()));
    host::EndpointLook after = host::lookAtEndpoints();
    after.outputs.remove(QStringLiteral("Desk"));
    QVERIFY(host::hasGone(QStringLiteral("Desk"), before, after));
    QVERIFY(!host::hasGone(QStringLiteral("Never there"), before, after));
}

void TestEndpointLookSound::namesTheMachine()
{
    const host::Machine machine = host::readMachine();
    QCOMPARE(machine.hostName, QSysInfo::machineHostName());
    QCOMPARE(machine.architecture, QSysInfo::currentCpuArchitecture());
    QVERIFY(machine.kernel.contains(QSysInfo::kernelVersion()) && !machine.system.isEmpty());
    QVERIFY2(machine.soundServer.startsWith(QStringLiteral("pulseaudio ")), qPrintable(machine.soundServer));
}

QTEST_GUILESS_MAIN(TestEndpointLookSound)
#include "tst_endpoint_look_sound.moc"

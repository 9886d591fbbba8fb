// SPDX-License-Identifier: Apache-2.0
// Against a real sound server with two sinks and a microphone that hears one of them.
#include "audio/endpoints/endpoint_volume.h"
#include "autotests/support/pulse_truth_linux.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTest>

#include <dlfcn.h>
#include <pulse/introspect.h>

#include <functional>

using namespace ostra::audio;
using pulse_truth::Device;

namespace {

std::function<void()> beforeSettingASink;

}

// Found before the sound library's own function, which it calls: so that something can happen in the midst of a pass.
extern "C" pa_operation *pa_context_set_sink_volume_by_index(pa_context *context, std::uint32_t index, const pa_cvolume *volume,
                                                             pa_context_success_cb_t callback, void *user)
{
    if (beforeSettingASink)
        beforeSettingASink();
    static const auto original = reinterpret_cast<decltype(&pa_context_set_sink_volume_by_index)>(
        dlsym(RTLD_NEXT, "pa_context_set_sink_volume_by_index"));
    return original(context, index, volume, callback, user);
}

class TestEndpointPassesSound : public QObject {
    Q_OBJECT

private slots:
    void init();
    void readsSinksAndMicrophonesWithoutMonitors();
    void appliesChannelsWhereTheirNumberFits();
    void appliesTheLevelWhereTheNumberOfChannelsChanged();
    void neverSetsALevelAbove100Percent();
    void stopsAtAnEndpointWithoutRecord();
    void stopsAtAVolumeThatIsNone();
    void stopsAtAnEndpointThatVanishesMeanwhile();
    void failsWithoutServer();
    void endsInTimeWhenTheServerIsFrozen();

private:
    static EndpointVolumes currentVolumes();
};

EndpointVolumes TestEndpointPassesSound::currentVolumes()
{
    EndpointVolumes list;
    if (readEndpointVolumes(list) != 0)
        qFatal("the sound server does not answer");
    return list;
}

void TestEndpointPassesSound::init()
{
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink1"), {16384, 32768}, false);
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink2"), {91750, 91750}, true);
    pulse_truth::set(QStringLiteral("source"), QStringLiteral("mic1"), {6554, 6554}, false);
}

void TestEndpointPassesSound::readsSinksAndMicrophonesWithoutMonitors()
{
    const EndpointVolumes list = currentVolumes();
    QCOMPARE(list.size(), std::size_t{3});
    QCOMPARE(list[0].id, std::u16string(u"sink1"));
    QCOMPARE(list[0].level, 0.5F); // the louder channel's
    QVERIFY(!list[0].muted);
    QCOMPARE(list[0].channelVolumes, (std::vector<std::uint32_t>{16384, 32768}));
    QCOMPARE(list[1].id, std::u16string(u"sink2"));
    QCOMPARE(list[1].level, 1.0F); // 140 % in truth
    QVERIFY(list[1].muted);
    QCOMPARE(list[1].channelVolumes, (std::vector<std::uint32_t>{91750, 91750}));
    QCOMPARE(list[2].id, std::u16string(u"mic1"));
}

void TestEndpointPassesSound::appliesChannelsWhereTheirNumberFits()
{
    EndpointVolumes list = currentVolumes();
    list[0].channelVolumes = {65536, 0};
    list[0].level = 0.3F;
    QCOMPARE(applyEndpointVolumes(list), 0);
    QCOMPARE(pulse_truth::devices()["sink1"], (Device{{65536, 0}, false}));
}

void TestEndpointPassesSound::appliesTheLevelWhereTheNumberOfChannelsChanged()
{
    EndpointVolumes list = currentVolumes();
    list[1].channelVolumes = {91750, 91750, 91750};
    QCOMPARE(applyEndpointVolumes(list), 0);
    QCOMPARE(pulse_truth::devices()["sink2"], (Device{{65536, 65536}, true}));
}

void TestEndpointPassesSound::neverSetsALevelAbove100Percent()
{
    QCOMPARE(applyEndpointVolumes(EndpointVolumes(3, EndpointVolume{7.0F, false, {}, {}})), 0);
    QCOMPARE(pulse_truth::devices()["sink1"], (Device{{65536, 65536}, false}));
    QCOMPARE(pulse_truth::devices()["sink2"], (Device{{65536, 65536}, false}));
    QCOMPARE(pulse_truth::devices()["mic1"], (Device{{65536, 65536}, false}));
}

void TestEndpointPassesSound::stopsAtAnEndpointWithoutRecord()
{
    EndpointVolumes list = currentVolumes();
    list[0].channelVolumes = {65536, 65536};
    list[2].channelVolumes = {65536, 65536};
    list[1].id = u"sink";
    QCOMPARE(applyEndpointVolumes(list), 1);
    QCOMPARE(pulse_truth::devices()["sink1"], (Device{{65536, 65536}, false}));
    QCOMPARE(pulse_truth::devices()["mic1"], (Device{{6554, 6554}, false}));
}

void TestEndpointPassesSound::stopsAtAVolumeThatIsNone()
{
    EndpointVolumes list = currentVolumes();
    list[1].channelVolumes = {0xFFFFFFFF, 0xFFFFFFFF}; // as a damaged note might hold them
    list[2].channelVolumes = {65536, 65536};
    QCOMPARE(applyEndpointVolumes(list), 1);
    QCOMPARE(pulse_truth::devices()["sink2"], (Device{{91750, 91750}, true}));
    QCOMPARE(pulse_truth::devices()["mic1"], (Device{{6554, 6554}, false}));
}

void TestEndpointPassesSound::stopsAtAnEndpointThatVanishesMeanwhile()
{
    pulse_truth::addSink(QStringLiteral("short_lived"));
    const EndpointVolumes list = currentVolumes();
    beforeSettingASink = [calls = 0]() mutable {
        if (++calls == 3)
            pulse_truth::remove(QStringLiteral("short_lived"));
    };
    const int result = applyEndpointVolumes(EndpointVolumes(list.size(), EndpointVolume{1.0F, false, {}, {}}));
    beforeSettingASink = nullptr;
    QCOMPARE(result, 1); // the server refuses to set what is not there
    QCOMPARE(pulse_truth::devices()["sink2"], (Device{{65536, 65536}, false}));
    QCOMPARE(pulse_truth::devices()["mic1"], (Device{{6554, 6554}, false}));
}

void TestEndpointPassesSound::failsWithoutServer()
{
    const pulse_truth::OtherServer nowhere("unix:nowhere");
    EndpointVolumes list;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(readEndpointVolumes(list), 1);
    QCOMPARE(applyEndpointVolumes(list), 1);
    QVERIFY(list.empty());
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed()))); // refused, not timed out
}

void TestEndpointPassesSound::endsInTimeWhenTheServerIsFrozen()
{
    const EndpointVolumes list = currentVolumes();
    const pulse_truth::FrozenServer frozen;
    QElapsedTimer timer;
    timer.start();
    EndpointVolumes unread;
    QCOMPARE(readEndpointVolumes(unread), 1);
    const auto readDuration = std::chrono::milliseconds(timer.restart());
    QCOMPARE(applyEndpointVolumes(list), 1);
    const auto applyDuration = std::chrono::milliseconds(timer.elapsed());
    QVERIFY(unread.empty());
    QVERIFY2(readDuration >= passBound && readDuration < 5 * passBound, qPrintable(QString::number(readDuration.count())));
    QVERIFY2(applyDuration >= passBound && applyDuration < 5 * passBound, qPrintable(QString::number(applyDuration.count())));
}

QTEST_GUILESS_MAIN(TestEndpointPassesSound)
#include "tst_endpoint_passes_sound.moc"

// SPDX-License-Identifier: Apache-2.0
#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/visit_endpoints_windows.h"
#include "host/listener/endpoint_capture_windows.h"
#include "host/listener/loopback_capture.h"

#include <SDL.h>

#include <QObject>
#include <QTest>

#include <mmreg.h>

#include <algorithm>
#include <cmath>

using host::BlockRing;
using host::LoopbackCapture;
using host::SampleKind;

namespace {

constexpr float amplitude = 0.25F;

std::u16string idOf(const char *name)
{
    ostra::audio::EndpointNames endpoints;
    readEndpointNames(endpoints);
    for (const ostra::audio::EndpointName &endpoint : endpoints) {
        if (endpoint.description == name)
            return endpoint.id;
    }
    return {};
}

/// Plays half full scale of a square wave on the left only, as long as it lives.
class Tone {
public:
    Tone()
    {
        SDL_AudioSpec wanted{};
        wanted.freq = 48000;
        wanted.format = AUDIO_F32SYS;
        wanted.channels = 2;
        wanted.samples = 1024;
        wanted.callback = [](void *, Uint8 *bytes, int byteCount) {
            auto *samples = static_cast<float *>(static_cast<void *>(bytes));
            for (int index = 0; index < byteCount / static_cast<int>(sizeof(float)); ++index)
                samples[index] = index % 2 == 0 ? (index % 100 < 50 ? amplitude : -amplitude) : 0.0F;
        };
        device_ = SDL_OpenAudioDevice("Speakers", SDL_FALSE, &wanted, nullptr, 0);
        SDL_PauseAudioDevice(device_, SDL_FALSE);
    }
    ~Tone() { SDL_CloseAudioDevice(device_); }
    Tone(const Tone &) = delete;
    Tone &operator=(const Tone &) = delete;

    bool isPlaying() const { return device_ != 0; }

private:
    SDL_AudioDeviceID device_ = 0;
};

/// Loudest sample of each channel in what waits in the ring, and whether any of it was heard.
struct Heard {
    float left = 0;
    float right = 0;
    bool isHeard = false;

    void take(BlockRing &ring)
    {
        for (; const host::SoundBlock *block = ring.oldest(); ring.release()) {
            isHeard = isHeard || block->isHeard;
            const auto samples = block->frames();
            for (std::size_t index = 0; index + 1 < samples.size(); index += 2) {
                left = std::max(left, std::abs(samples[index]));
                right = std::max(right, std::abs(samples[index + 1]));
            }
        }
    }
};

WAVEFORMATEXTENSIBLE mixOf(ULONG number, WORD bitCount)
{
    WAVEFORMATEXTENSIBLE format{};
    format.Format.wFormatTag = WAVE_FORMAT_EXTENSIBLE;
    format.Format.nChannels = 6;
    format.Format.nSamplesPerSec = 44100;
    format.Format.wBitsPerSample = bitCount;
    format.Format.cbSize = sizeof(WAVEFORMATEXTENSIBLE) - sizeof(WAVEFORMATEX);
    format.SubFormat = {number, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};
    return format;
}

} // namespace

class TestLoopbackCapture : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void readsTheSystemsFormats();
    void hearsAnEndpoint();
    void goesOnWhileNothingComes();
    void hearsAnOutputOrSaysWhyNot();
    void knowsNoOtherOutputs();
    void knowsNoOtherEndpoints();
};

void TestLoopbackCapture::initTestCase()
{
    QCOMPARE(SDL_setenv("SDL_AUDIODRIVER", "wasapi", 1), 0);
    QVERIFY2(SDL_InitSubSystem(SDL_INIT_AUDIO) == 0, SDL_GetError());
}

void TestLoopbackCapture::cleanupTestCase() { SDL_Quit(); }

void TestLoopbackCapture::readsTheSystemsFormats()
{
    const auto read = [](const WAVEFORMATEXTENSIBLE &format) { return host::mixFormatOf(format.Format); };
    QCOMPARE(read(mixOf(WAVE_FORMAT_IEEE_FLOAT, 32)).kind, SampleKind::float32);
    QCOMPARE(read(mixOf(WAVE_FORMAT_PCM, 16)).kind, SampleKind::int16);
    QCOMPARE(read(mixOf(WAVE_FORMAT_PCM, 24)).kind, SampleKind::int24);
    QCOMPARE(read(mixOf(WAVE_FORMAT_PCM, 32)).kind, SampleKind::int32);
    QCOMPARE(read(mixOf(WAVE_FORMAT_PCM, 8)).kind, SampleKind::unknown);
    QCOMPARE(read(mixOf(WAVE_FORMAT_IEEE_FLOAT, 64)).kind, SampleKind::unknown);
    WAVEFORMATEXTENSIBLE format = mixOf(WAVE_FORMAT_PCM, 16);
    QCOMPARE(read(format).channelCount, std::size_t{6});
    QCOMPARE(read(format).rate, 44100U);
    format.SubFormat.Data4[7] = 0; // a format that has no number
    QCOMPARE(read(format).kind, SampleKind::unknown);
    format = mixOf(WAVE_FORMAT_PCM, 16);
    format.Format.cbSize = 0;
    QCOMPARE(read(format).kind, SampleKind::unknown);
    format.Format.wFormatTag = WAVE_FORMAT_IEEE_FLOAT;
    format.Format.wBitsPerSample = 32;
    QCOMPARE(read(format).kind, SampleKind::float32);
}

// An input's packets come by the same way as a loopback's.
void TestLoopbackCapture::hearsAnEndpoint()
{
    BlockRing ring;
    LoopbackCapture capture;
    QVERIFY2(capture.openEndpoint(idOf("Monitor of Speakers"), ring), qPrintable(capture.errorText()));
    QVERIFY(capture.channelCount() > 0);
    const Tone tone;
    QVERIFY(tone.isPlaying());
    Heard heard;
    const auto isLoud = [&] {
        heard.take(ring);
        return heard.left > amplitude / 2;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isLoud(), 20'000);
    QVERIFY2(heard.left < 2 * amplitude && heard.right < amplitude / 4, qPrintable(QString::number(double{heard.right})));
    QVERIFY(heard.isHeard);
    QVERIFY(!capture.isLost());
}

void TestLoopbackCapture::goesOnWhileNothingComes()
{
    BlockRing ring;
    std::int64_t frameCount = 0;
    {
        LoopbackCapture capture;
        QVERIFY(capture.openEndpoint(idOf("Monitor of Speakers"), ring));
        const auto isLongEnough = [&] {
            for (; const host::SoundBlock *block = ring.oldest(); ring.release())
                frameCount += static_cast<std::int64_t>(block->frameCount);
            return frameCount > host::captureRate;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isLongEnough(), 20'000);
    }
    QVERIFY(ring.oldest() == nullptr || ring.oldest()->frameCount > 0); // nobody writes any more
}

// Wine takes the stream and then hands no packets out: that is told, and nothing is offered.
void TestLoopbackCapture::hearsAnOutputOrSaysWhyNot()
{
    BlockRing ring;
    LoopbackCapture capture;
    const bool isOffered = LoopbackCapture::devices().contains(QStringLiteral("Speakers"));
    const bool isOpen = capture.open(QStringLiteral("Speakers"), ring);
    QCOMPARE(isOpen, isOffered);
    QVERIFY2(isOpen || capture.errorText().contains(QStringLiteral("does not let it be heard (0x8889")),
             qPrintable(capture.errorText()));
}

void TestLoopbackCapture::knowsNoOtherOutputs()
{
    BlockRing ring;
    for (const char *name : {"Speaker", "speakers", "Monitor of Speakers", "Speakers (2)"}) {
        LoopbackCapture capture;
        QVERIFY(!capture.open(QLatin1String(name), ring));
        QCOMPARE(capture.errorText(), QStringLiteral("no output is named '%1'").arg(QLatin1String(name)));
    }
    LoopbackCapture twins;
    QVERIFY(!twins.open(QStringLiteral("Twin"), ring));
    QCOMPARE(twins.errorText(), QStringLiteral("2 outputs are named 'Twin'"));
}

void TestLoopbackCapture::knowsNoOtherEndpoints()
{
    BlockRing ring;
    LoopbackCapture capture;
    QVERIFY(!capture.openEndpoint(u"{no such endpoint}", ring));
    QVERIFY(!capture.isLost());
    QVERIFY(ring.oldest() == nullptr);
}

QTEST_GUILESS_MAIN(TestLoopbackCapture)
#include "tst_loopback_capture_windows.moc"

// SPDX-License-Identifier: Apache-2.0
#include "audio/clip_buffer.h"
#include "audio/fallback_sound.h"

#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <vector>

using namespace ostra::audio;

class TestFallbackSound : public QObject {
    Q_OBJECT

private slots:
    void hasTheDocumentedHeader();
    void loadsAsStereo22050();
    void isAudibleAndNeverClips();
    void fadesOut();
};

namespace {

struct Loaded {
    SDL_AudioSpec spec{};
    ClipBuffer samples;
    Uint32 byteCount = 0;
};

Loaded load()
{
    Loaded sound;
    Uint8 *samples = nullptr;
    SDL_RWops *stream = SDL_RWFromConstMem(fallbackSound().data(), static_cast<int>(fallbackSound().size()));
    if (SDL_LoadWAV_RW(stream, 1, &sound.spec, &samples, &sound.byteCount) != nullptr)
        sound.samples.reset(samples);
    return sound;
}

std::vector<int> sampleValues(const Loaded &sound)
{
    std::vector<int> values;
    for (Uint32 byte = 0; byte + 1 < sound.byteCount; byte += 2)
        values.push_back(static_cast<std::int16_t>(sound.samples.get()[byte] | (sound.samples.get()[byte + 1] << 8)));
    return values;
}

int peak(std::vector<int>::const_iterator begin, std::vector<int>::const_iterator end)
{
    return std::abs(*std::max_element(begin, end, [](int left, int right) { return std::abs(left) < std::abs(right); }));
}

} // namespace

void TestFallbackSound::hasTheDocumentedHeader()
{
    const QByteArray file(reinterpret_cast<const char *>(fallbackSound().data()), 55374);
    QCOMPARE(file.size(), 55374);
    QCOMPARE(file.left(16), QByteArray("RIFF\x46\xD8\x00\x00WAVEfmt ", 16)); // 55366 bytes follow the size
    QCOMPARE(file.mid(16, 20), QByteArray("\x10\0\0\0\x01\0\x02\0\x22\x56\0\0\x88\x58\x01\0\x04\0\x10\0", 20));
    QCOMPARE(file.mid(36, 34), QByteArray("LIST\x1A\0\0\0INFOISFT\x0E\0\0\0Lavf58.39.101\0", 34));
    QCOMPARE(file.mid(70, 8), QByteArray("data\0\xD8\0\0", 8)); // 55296 bytes
}

void TestFallbackSound::loadsAsStereo22050()
{
    const Loaded sound = load();
    QVERIFY(sound.samples);
    QCOMPARE(sound.spec.freq, 22050);
    QCOMPARE(int(sound.spec.channels), 2);
    QCOMPARE(sound.spec.format, SDL_AudioFormat(AUDIO_S16LSB));
    QCOMPARE(sound.byteCount, Uint32(13824 * 4));
}

void TestFallbackSound::isAudibleAndNeverClips()
{
    const std::vector<int> values = sampleValues(load());
    QCOMPARE(values.size(), std::size_t(13824 * 2));
    const int loudest = peak(values.begin(), values.end());
    QVERIFY2(loudest > 4000 && loudest < 16384, qPrintable(QString::number(loudest)));
}

void TestFallbackSound::fadesOut()
{
    const std::vector<int> values = sampleValues(load());
    QVERIFY(peak(values.end() - 200, values.end()) < peak(values.begin(), values.begin() + 2000) / 20);
}

QTEST_GUILESS_MAIN(TestFallbackSound)
#include "tst_fallback_sound.moc"

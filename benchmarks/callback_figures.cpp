// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "audio/transfer_buffer.h"
#include "benchmarks/pairs.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace bench {

namespace {

constexpr std::uint32_t bytesPerFrame = 8; // two channels of 32-bit floats
constexpr std::uint32_t bufferByteCount = 1U << 20U;

using Callback = void(SDLCALL *)(void *, Uint8 *, int);

// What a callback cannot do without: the copy, and a place in the buffer that moves on. Called the same way.
struct Copier {
    std::uint8_t *bytes = nullptr;
    std::uint32_t position = 0;

    static void SDLCALL capture(void *context, Uint8 *stream, int byteCount) noexcept
    {
        Copier &self = *static_cast<Copier *>(context);
        std::memcpy(self.bytes + self.position, stream, static_cast<std::size_t>(byteCount));
        self.position += static_cast<std::uint32_t>(byteCount);
    }
    static void SDLCALL playback(void *context, Uint8 *stream, int byteCount) noexcept
    {
        Copier &self = *static_cast<Copier *>(context);
        std::memcpy(stream, self.bytes + self.position, static_cast<std::size_t>(byteCount));
        self.position += static_cast<std::uint32_t>(byteCount);
    }
};

// One second-long buffer's worth of calls; the last byte of the buffer is the callback's own.
double secondsOfCalls(Callback function, void *context, std::vector<std::uint8_t> &stream)
{
    const volatile Callback callback = function; // not to be dissolved into the loop
    const std::size_t callCount = (bufferByteCount - 1) / stream.size();
    return secondsOf([&] {
        for (std::size_t call = 0; call < callCount; ++call)
            callback(context, stream.data(), static_cast<int>(stream.size()));
    });
}

std::unique_ptr<std::uint8_t[]> touchedBytes() { return std::make_unique<std::uint8_t[]>(bufferByteCount); }

void compareCallback(const char *name, Callback ours, Callback peer, std::uint32_t frameCount)
{
    std::vector<std::uint8_t> stream(std::size_t{frameCount} * bytesPerFrame, 1);
    ostra::audio::TransferBuffer buffer;
    const std::unique_ptr<std::uint8_t[]> bytes = touchedBytes();
    // Several buffers' worth for one measurement: one alone is over in some microseconds.
    constexpr int turns = 4;
    const auto measureOurs = [&] {
        double sum = 0;
        for (int turn = 0; turn < turns; ++turn) {
            buffer.bind(touchedBytes(), bufferByteCount);
            std::memset(buffer.data(), turn, bufferByteCount);
            sum += secondsOfCalls(ours, &buffer, stream);
        }
        return sum;
    };
    const auto measurePeer = [&] {
        double sum = 0;
        for (int turn = 0; turn < turns; ++turn) {
            const std::unique_ptr<std::uint8_t[]> fresh = touchedBytes();
            std::memset(fresh.get(), turn, bufferByteCount);
            Copier copier{fresh.get()};
            sum += secondsOfCalls(peer, &copier, stream);
        }
        return sum;
    };
    Comparison comparison = compare([&] { return fastest(measureOurs); }, [&] { return fastest(measurePeer); });
    const double callCount = turns * static_cast<double>((bufferByteCount - 1) / stream.size());
    comparison.subject /= callCount;
    comparison.peer /= callCount;
    print(ratioRow(std::string(name) + " callback, " + std::to_string(frameCount) + (frameCount == 1 ? " frame" : " frames"),
                   "memcpy of the same bytes, called the same way", 1.1, comparison, {1e9, "ns"}));
}

} // namespace

void callbackFigures()
{
    using ostra::audio::TransferBuffer;
    for (const std::uint32_t frameCount : {1U, 16U, 64U, 512U, 4096U}) {
        compareCallback("capture", &TransferBuffer::capture, &Copier::capture, frameCount);
        compareCallback("playback", &TransferBuffer::playback, &Copier::playback, frameCount);
    }
}

} // namespace bench

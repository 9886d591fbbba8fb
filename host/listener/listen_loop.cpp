// SPDX-License-Identifier: Apache-2.0
#include "host/listener/listen_loop.h"

#include "host/listener/event_lines.h"
#include "host/listener/parent_link.h"
#include "host/listener/signal_meter.h"
#include "host/listener/wave_writer.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <optional>
#include <thread>
#include <utility>

namespace host {

namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto pollInterval = 20ms; // the ring holds 5 s
constexpr auto levelInterval = 1s;
/// A source that sleeps delivers nothing: it is ready all the same.
constexpr auto firstSoundLimit = 3s;

volatile std::sig_atomic_t isAskedToEnd = 0;

extern "C" void noteEndSignal(int /*signal*/) { isAskedToEnd = 1; }

class Listening {
public:
    Listening(Capture &capture, const EarMaker &makeEar, const ListenerOptions &options)
        : capture_(capture), options_(options), ear_(makeEar([this](const QByteArray &line) { write(line); }))
    {
        if (options.isMetered)
            meter_.emplace([this](const MeterReading &reading) { write(meterLine(reading)); });
    }

    ListenerExit run()
    {
        if (!options_.recordFile.isEmpty() && !recording_.open(options_.recordFile))
            return refuseFile();
        while (isWanted()) {
            drain();
            if (capture_.isLost())
                return end(ListenerExit::lost);
            tellReady();
            tellLevel();
            std::this_thread::sleep_for(pollInterval);
        }
        return end(ListenerExit::told);
    }

private:
    bool isWanted() const { return isAskedToEnd == 0 && isRead_ && !hasInputEnded(); }

    void write(const QByteArray &line) { isRead_ = writeLine(line) && isRead_; }

    void drain()
    {
        while (const SoundBlock *block = capture_.ring().oldest()) {
            ear_->feed(block->frames(), block->end);
            arrivedFrameCount_ += block->isHeard ? block->frameCount : 0;
            if (recording_.isOpen() && isReady_)
                recording_.append(block->frames());
            if (meter_ && isReady_) // the first event is "ready"
                meter_->feed(block->frames(), block->end);
            capture_.ring().release();
            hasSound_ = true;
        }
    }

    ListenerExit refuseFile() const
    {
        std::fprintf(stderr, "audio_listener: '%s' cannot be written: %s\n", options_.recordFile.toUtf8().constData(),
                     recording_.errorText().toUtf8().constData());
        return ListenerExit::usage;
    }

    void tellReady()
    {
        if (isReady_ || !(hasSound_ || steady_clock::now() - start_ > firstSoundLimit))
            return;
        isReady_ = true;
        write(readyLine(options_.source, options_.language, capture_.sourceChannelCount()));
    }

    void tellLevel()
    {
        if (!isReady_ || steady_clock::now() - levelTold_ < levelInterval)
            return;
        levelTold_ = steady_clock::now();
        write(levelLine(ear_->takeLoudestDbfs(), std::exchange(arrivedFrameCount_, 0), capture_.ring().droppedFrameCount()));
    }

    ListenerExit end(ListenerExit how)
    {
        drain();
        ear_->finish();
        if (how == ListenerExit::lost)
            write(lostLine());
        return how;
    }

    Capture &capture_;
    const ListenerOptions &options_;
    std::unique_ptr<Ear> ear_;
    std::optional<SignalMeter> meter_;
    WaveWriter recording_;
    steady_clock::time_point start_ = steady_clock::now();
    steady_clock::time_point levelTold_ = start_;
    std::uint64_t arrivedFrameCount_ = 0; ///< since the last level
    bool hasSound_ = false;
    bool isReady_ = false;
    bool isRead_ = true;
};

} // namespace

void catchEndSignals()
{
    std::signal(SIGTERM, &noteEndSignal);
    std::signal(SIGINT, &noteEndSignal);
}

bool writeLine(const QByteArray &line)
{
    const auto byteCount = static_cast<std::size_t>(line.size());
    return std::fwrite(line.constData(), 1, byteCount, stdout) == byteCount && std::fputc('\n', stdout) != EOF &&
           std::fflush(stdout) == 0;
}

ListenerExit listen(Capture &capture, const EarMaker &makeEar, const ListenerOptions &options)
{
    return Listening(capture, makeEar, options).run();
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "audio/audio_recording.h"
#include "audio/player_helper.h"
#include "audio/sdl_api.h"
#include "audio/worker_status.h"
#include "benchmarks/pairs.h"
#include "benchmarks/playback_stage.h"

#include <QProcess>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;
constexpr double pollMilliseconds = 500;
constexpr double allowedMilliseconds = 20;

std::atomic<SDL_AudioDeviceID> openedDevice = 0;

SDL_AudioDeviceID SDLCALL openNoted(const char *name, int capture, const SDL_AudioSpec *wish, SDL_AudioSpec *got, int changes)
{
    openedDevice = SDL_OpenAudioDevice(name, capture, wish, got, changes);
    return openedDevice;
}

// So long that the playback is never over before the device is lost.
constexpr int playedSeconds = 4;

std::shared_ptr<ostra::audio::AudioRecording> silence()
{
    auto recording = std::make_shared<ostra::audio::AudioRecording>();
    recording->seconds = playedSeconds;
    recording->frequency = 48000;
    recording->format = AUDIO_F32LSB;
    recording->channels = 2;
    recording->framesPerCallback = 1024;
    recording->byteCount = (playedSeconds + 1) * 48000 * 8;
    recording->samples = std::make_unique<std::uint8_t[]>(recording->byteCount);
    return recording;
}

bool waitFor(const std::function<bool()> &isTrue, std::chrono::seconds limit)
{
    const auto end = Clock::now() + limit;
    while (!isTrue()) {
        if (Clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

// From the moment at which the sound library tells that the device is gone until the report; negative when either never came.
double millisecondsToReport(const std::string &device, const std::function<void()> &unplug, double phase)
{
    openedDevice = 0;
    std::atomic<bool> isReported = false;
    Clock::time_point reported;
    const auto mayGoOn = std::make_shared<std::atomic<bool>>(true);
    std::thread thread([&] {
        ostra::audio::PlayerHelper worker(silence(), mayGoOn, QString::fromStdString(device));
        const auto note = [&](int status) {
            reported = Clock::now();
            isReported = status == ostra::audio::worker_status::disconnected;
        };
        QObject::connect(&worker, &ostra::audio::PlayerHelper::SendResultStatus, &worker, note, Qt::DirectConnection);
        worker.PlayAudio();
    });
    double result = -1;
    if (waitFor([] { return openedDevice != 0; }, std::chrono::seconds(10))) {
        // The losses are spread over the whole interval between two looks at the device.
        std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(pollMilliseconds * (1 + phase)));
        unplug();
        const bool isGone =
            waitFor([] { return SDL_GetAudioDeviceStatus(openedDevice) == SDL_AUDIO_STOPPED; }, std::chrono::seconds(10));
        const auto gone = Clock::now();
        if (isGone && waitFor([&] { return isReported.load(); }, std::chrono::seconds(10)))
            result = std::chrono::duration<double, std::milli>(reported - gone).count();
    }
    *mayGoOn = false;
    thread.join();
    return result;
}

} // namespace

void deviceLossFigure(const QStringList &arguments)
{
    ostra::audio::sdl().openDevice = &openNoted;
    std::vector<double> delays;
    for (qsizetype round = 1; round < arguments.size(); ++round) {
        const std::string device = deviceName(QStringLiteral("Speakers %1").arg(round, 2, 10, QLatin1Char('0')));
        const auto unplug = [&] {
            QProcess::startDetached(arguments.at(0), {QStringLiteral("unload-module"), arguments.at(round)});
        };
        const double phase = static_cast<double>(round % 5) / 5;
        const double delay = millisecondsToReport(device, unplug, phase);
        if (delay < 0)
            std::fprintf(stderr, "round %lld: no report of the loss\n", static_cast<long long>(round));
        else
            delays.push_back(delay);
    }
    if (delays.empty())
        return;
    const bool areAllReported = static_cast<qsizetype>(delays.size()) == arguments.size() - 1;
    const double longest = *std::max_element(delays.begin(), delays.end());
    print({"playing device lost → status signal, the longest", "SDL's own flag + the prescribed poll of 500 ms", "≤ 520 ms",
           shown(longest) + " ms",
           shown(quantile(delays, 0.25)) + "–" + shown(quantile(delays, 0.75)) + " ms, median " + shown(median(delays)) +
               ", in " + std::to_string(delays.size()) + " of " + std::to_string(arguments.size() - 1) + " losses",
           areAllReported && longest <= pollMilliseconds + allowedMilliseconds});
}

} // namespace bench

// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "benchmarks/pairs.h"
#include "benchmarks/playback_stage.h"
#include "views/audio_playback_test_view.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <thread>
#include <vector>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::size_t pairCount = 21;
constexpr double framesPerSecond = 48000;
constexpr int soundLevel = 8; // of 32,768; the silence of a virtual device is exact

double secondsAt(Clock::time_point moment) { return std::chrono::duration<double>(moment.time_since_epoch()).count(); }
double secondsNow() { return secondsAt(Clock::now()); }

// From the slot that the user's button and the view's timer call.
double playByView(ostra::audio::AudioComponent &component)
{
    ostra::AudioPlaybackTestView view(nullptr, nullptr, 0, &component, nullptr);
    view.show();
    QCoreApplication::processEvents();
    const int closedBefore = PlaybackStage::closedCount();
    const double start = secondsNow();
    view.PlayAudio();
    while (PlaybackStage::closedCount() == closedBefore)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return start;
}

double playBare(const BarePlayer &player)
{
    const double start = secondsNow();
    player.play(PlaybackStage::digits[0]);
    return start;
}

// Where sound begins after a quarter of a second of silence.
std::vector<double> onsets(const QByteArray &bytes)
{
    std::vector<double> result;
    qsizetype silentCount = static_cast<qsizetype>(framesPerSecond);
    for (qsizetype frame = 0; frame < bytes.size() / 2; ++frame) {
        const auto low = static_cast<std::uint8_t>(bytes[2 * frame]);
        const auto sample = static_cast<std::int16_t>(low | static_cast<std::uint8_t>(bytes[2 * frame + 1]) << 8U);
        if (std::abs(int{sample}) < soundLevel) {
            ++silentCount;
            continue;
        }
        if (silentCount > static_cast<qsizetype>(framesPerSecond / 4))
            result.push_back(static_cast<double>(frame) / framesPerSecond);
        silentCount = 0;
    }
    return result;
}

// For each start what lies between it and its sound, up to the same amount for all; nothing for one that the recorder missed.
std::vector<std::optional<double>> delaysAt(double offset, const std::vector<double> &starts, const std::vector<double> &heard)
{
    std::vector<std::optional<double>> delays;
    for (const double start : starts) {
        const auto isNear = [=](double onset) { return std::abs(onset - start - offset) < 0.4; };
        const auto found = std::find_if(heard.begin(), heard.end(), isNear);
        delays.push_back(found == heard.end() ? std::nullopt : std::optional(*found - start));
    }
    return delays;
}

// Which sound belongs to the first start is not known: of the possible ones that counts which explains most of the others.
std::vector<std::optional<double>> delaysOf(const std::vector<double> &starts, const std::vector<double> &heard)
{
    std::vector<std::optional<double>> best(starts.size());
    for (std::size_t first = 0; first < std::min<std::size_t>(3, heard.size()); ++first) {
        for (std::size_t start = 0; start < 3; ++start) {
            const auto delays = delaysAt(heard[first] - starts[start], starts, heard);
            if (std::count(delays.begin(), delays.end(), std::nullopt) < std::count(best.begin(), best.end(), std::nullopt))
                best = delays;
        }
    }
    return best;
}

// What the module itself takes; the rest of the difference is the sound library's and the server's.
void printOwnTime(const char *what, const std::vector<double> &milliseconds)
{
    print({what, "-", "-", shown(median(milliseconds)) + " ms",
           shown(quantile(milliseconds, 0.25)) + "–" + shown(quantile(milliseconds, 0.75)) + " ms, " +
               std::to_string(milliseconds.size()) + " times"});
}

QByteArray recorded(const QString &path)
{
    std::this_thread::sleep_for(std::chrono::seconds(2)); // until what was played last has reached the file
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// The recorder's clock and ours begin at different moments, but by the same amount for both of a pair.
void firstDigitFigure(const QStringList &arguments)
{
    const std::string device = deviceName(QStringLiteral("Speakers"));
    const PlaybackStage stage;
    const BarePlayer player(device);
    ostra::audio::AudioComponent component(device);
    std::vector<double> starts;
    std::vector<bool> isOurs;
    std::vector<double> toOpening;
    std::vector<double> toStart;
    for (std::size_t turn = 0; turn < 2 * pairCount; ++turn) {
        isOurs.push_back((turn % 2 == 0) != (turn / 2 % 2 == 0));
        // The digits go round: each view takes three, the first of them is the one that is heard.
        starts.push_back(isOurs.back() ? playByView(component) : playBare(player));
        if (!isOurs.back())
            continue;
        const PlaybackStage::Start start = PlaybackStage::lastStart();
        toOpening.push_back(1e3 * (secondsAt(start.opening) - starts.back()));
        toStart.push_back(1e3 * (secondsAt(start.started) - secondsAt(start.opened)));
    }
    const std::vector<std::optional<double>> delays = delaysOf(starts, onsets(recorded(arguments.value(0))));
    std::vector<double> differences;
    for (std::size_t pair = 0; pair < pairCount; ++pair) {
        const std::size_t ours = isOurs[2 * pair] ? 2 * pair : 2 * pair + 1;
        const std::size_t bare = isOurs[2 * pair] ? 2 * pair + 1 : 2 * pair;
        if (delays[ours] && delays[bare])
            differences.push_back(1e3 * (*delays[ours] - *delays[bare]));
        else
            std::fprintf(stderr, "pair %zu: a digit was not recorded\n", pair);
    }
    printOwnTime("first digit: from PlayAudio to the opening of the device", toOpening);
    printOwnTime("first digit: from the opened device to its start", toStart);
    Row row{"first digit: from PlayAudio to the first frame at the monitor",
            "bare SDL: open, queue, unpause",
            "+ ≤ 5 ms",
            "none",
            "only " + std::to_string(differences.size()) + " pairs were recorded",
            false};
    if (differences.size() >= usualPairCount) {
        const double later = median(differences);
        row.measured = "+ " + shown(later) + " ms";
        row.spread = shown(quantile(differences, 0.25)) + "–" + shown(quantile(differences, 0.75)) + " ms in " +
                     std::to_string(differences.size()) + " pairs";
        row.isMet = later <= 5;
    }
    print(row);
}

} // namespace bench

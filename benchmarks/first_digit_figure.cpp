// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "benchmarks/pairs.h"
#include "benchmarks/playback_stage.h"
#include "views/audio_playback_test_view.h"

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::size_t pairCount = 21;
constexpr double framesPerSecond = 48000;
constexpr int soundLevel = 8; // of 32,768; the silence of a virtual device is exact

double secondsNow() { return std::chrono::duration<double>(Clock::now().time_since_epoch()).count(); }

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

// Where sound begins after half a second of silence.
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
        if (silentCount > static_cast<qsizetype>(framesPerSecond / 2))
            result.push_back(static_cast<double>(frame) / framesPerSecond);
        silentCount = 0;
    }
    return result;
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
    for (std::size_t turn = 0; turn < 2 * pairCount; ++turn) {
        isOurs.push_back((turn % 2 == 0) != (turn / 2 % 2 == 0));
        // The digits go round: each view takes three, the first of them is the one that is heard.
        starts.push_back(isOurs.back() ? playByView(component) : playBare(player));
    }
    const std::vector<double> heard = onsets(recorded(arguments.value(0)));
    if (heard.size() != starts.size()) {
        std::fprintf(stderr, "%zu digits were played, %zu heard\n", starts.size(), heard.size());
        return;
    }
    std::vector<double> differences;
    for (std::size_t pair = 0; pair < pairCount; ++pair) {
        const std::size_t ours = isOurs[2 * pair] ? 2 * pair : 2 * pair + 1;
        const std::size_t bare = isOurs[2 * pair] ? 2 * pair + 1 : 2 * pair;
        differences.push_back(1e3 * ((heard[ours] - starts[ours]) - (heard[bare] - starts[bare])));
    }
    const double later = median(differences);
    print({"first digit: from PlayAudio to the first frame at the monitor", "bare SDL: open, queue, unpause", "+ ≤ 5 ms",
           "+ " + shown(later) + " ms",
           shown(quantile(differences, 0.25)) + "–" + shown(quantile(differences, 0.75)) + " ms in " +
               std::to_string(pairCount) + " pairs",
           later <= 5});
}

} // namespace bench

// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "autotests/support/scripted_context.h"
#include "benchmarks/pairs.h"
#include "benchmarks/playback_stage.h"
#include "benchmarks/playback_widgets.h"
#include "benchmarks/turn_watch.h"
#include "benchmarks/workloads.h"
#include "contract/abstract_widget_wrapper.h"
#include "contract/message_keys.h"
#include "contract/result_codes.h"
#include "tests/audio_playback_test.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace bench {

namespace {

using std::chrono::milliseconds;

void typeDigits()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr)
        return;
    for (const int digit : PlaybackStage::digits)
        QApplication::postEvent(dialog, new QKeyEvent(QEvent::KeyPress, Qt::Key_0 + digit, Qt::NoModifier));
}

// The digits are typed as soon as the third is over.
double secondsOfRun(const std::string &device)
{
    ostra::audio::AudioComponent component(device);
    component.setInstructionsState(1);
    ScriptedContext context(&component);
    context.onWidget = [](ostra::InputRequest &request) { request.widget->exec(nullptr, nullptr); };
    const int closedBefore = PlaybackStage::closedCount();
    PlaybackStage::onClosed([closedBefore](int closedCount) {
        if (closedCount == closedBefore + 3)
            typeDigits();
    });
    ostra::AudioPlaybackTest test(ostra::identities::audioPlaybackTest);
    std::uint32_t code = 0;
    const double seconds = secondsOf([&] { code = test.run(&context); });
    if (code != ostra::result::passed) {
        std::fprintf(stderr, "the run ended with %u\n", code);
        std::exit(2);
    }
    return seconds;
}

// A second before the first digit and between two of them, a millisecond before each is opened, a second while it sounds.
double secondsOfDesign(const BarePlayer &player)
{
    return secondsOf([&] {
        for (const int digit : PlaybackStage::digits) {
            std::this_thread::sleep_for(milliseconds(1000));
            std::this_thread::sleep_for(milliseconds(1));
            player.play(digit);
        }
    });
}

void inEventLoop(const std::function<void()> &action)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds(50), &loop, [&] {
        action();
        loop.quit();
    });
    loop.exec();
}

// The same form in the same style, shown for a moment in a loop of its own, as the module shows it: QDialog's own loop never
// ends where a platform without a screen does not tell a window that it is closed, as Qt's for Windows does not.
double longestBlockOfBareForm(TurnWatch &watch)
{
    inEventLoop([&] {
        watch.reset();
        PlaybackWidgets widgets;
        widgets.dialog.setModal(true);
        widgets.dialog.setStyleSheet(productSheet());
        QEventLoop loop;
        QTimer::singleShot(milliseconds(500), &loop, &QEventLoop::quit);
        widgets.dialog.show();
        loop.exec();
    });
    return watch.longest();
}

} // namespace

void playbackRunFigures(const QStringList &arguments)
{
    const std::size_t pairCount = arguments.isEmpty() ? usualPairCount : static_cast<std::size_t>(arguments.front().toUInt());
    const std::string device = deviceName(QStringLiteral("Speakers"));
    const PlaybackStage stage;
    const BarePlayer player(device);
    TurnWatch watch(&PlaybackStage::timeInSoundLibrary);
    std::vector<double> blocks;
    const auto run = [&] {
        double seconds = 0;
        inEventLoop([&] {
            watch.reset();
            seconds = secondsOfRun(device);
        });
        blocks.push_back(watch.longest());
        return seconds;
    };
    std::vector<double> bareBlocks;
    const auto design = [&] {
        bareBlocks.push_back(longestBlockOfBareForm(watch));
        return secondsOfDesign(player);
    };
    const Comparison runs = compare(run, design, pairCount);
    print(ratioRow("a whole right-first-time playback run", "its designed waits and SDL's open and close", 1.03, runs));
    const Comparison ofBlocks = compareLists({blocks.begin() + 1, blocks.end()}, {bareBlocks.begin() + 1, bareBlocks.end()});
    print(ratioRow("GUI thread: longest block outside holds, opening and closing",
                   "the same form and stylesheet shown by bare Qt", 1.5, ofBlocks));
}

} // namespace bench

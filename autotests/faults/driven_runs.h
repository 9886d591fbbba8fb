// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/support/scripted_context.h"
#include "autotests/views/fake_sound.h"
#include "contract/module_interface.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdint>
#include <optional>
#include <string>

/// Whole runs of both tests with the real dialogs, the real workers on their threads and sound devices that do not exist. The
/// seconds of the dialogs are not waited for: what their timers call is called at once.
namespace driven_runs {

/// A folder with a configuration, and clips beside the program, for as long as it lives.
class Place {
public:
    Place();
    ~Place();

private:
    QTemporaryDir folder_;
};

/// Devices that answer at once. One at a time.
class Devices {
public:
    Devices();
    FakeSound sound;
};

/// The digits that `Driver` knows: 0, 1 and 2 in every run.
int nextDigit();

/// How a run ended.
struct Outcome {
    std::optional<std::uint32_t> code; ///< none: the run itself threw
    bool hasSlotThrown = false;        ///< a slot of a dialog let an exception out
    bool isStuck = false;              ///< nothing went on for a minute
    std::size_t callCount = 0;         ///< calls of the host's services
};

enum class Kind { playback, microphone };

/// Plays the user who hears every digit, or records, listens and answers yes.
class Driver {
public:
    explicit Driver(Kind kind) : kind_(kind) {}
    /// Prepares `context` and runs the test of `module`.
    Outcome run(ostra::ModuleInterface &module, ScriptedContext &context);

    bool waits = false;     ///< the user does nothing, and the test must end by itself
    bool isPatient = false; ///< the seconds are waited for, as with real devices

private:
    void prepare(ScriptedContext &context);
    void step();
    void advance();
    void advancePlayback();
    void advanceMicrophone();
    void advancePlaybackPatiently();
    void advanceMicrophonePatiently();
    void giveUp();

    Kind kind_;
    Outcome outcome_;
    int stage_ = 0;
    QTimer timer_;
    QElapsedTimer sinceStart_;
};

/// Hidden widgets without a class of their own: what a form's generated code has made when it gets no more memory, before it
/// finds a place for it. Only runs without memory may leave any.
enum class LooseWidgets { areLeftovers, areDeleted };

/// What must be as before when a run is over, as text to compare; waits for threads that are about to end.
std::string leftovers(std::size_t threadCount, LooseWidgets loose = LooseWidgets::areLeftovers);

} // namespace driven_runs

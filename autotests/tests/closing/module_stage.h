// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/tests/closing/live_devices.h"
#include "contract/system_component.h"
#include "contract/test.h"

#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <functional>

/// The two tests, by their place in the catalogue.
enum class Kind : std::uint32_t { playback = 0, microphone = 1 };

/// A whole module on devices that do not exist, `divisor` times as fast as designed. The folder of the program must hold no
/// clips, and the current folder is its own while it lives.
class ModuleStage {
public:
    explicit ModuleStage(int divisor = 200);
    ~ModuleStage();
    ModuleStage(const ModuleStage &) = delete;
    ModuleStage &operator=(const ModuleStage &) = delete;

    LiveDevices devices;

    /// Gets the module, lists the devices, calls `action` with the test and the one device within the application's loop, and
    /// releases the module again. Answers what `action` did.
    std::uint32_t run(Kind kind, const std::function<std::uint32_t(ostra::Test &, ostra::SystemComponent &)> &action);

    /// What is left of the module after its release, in words; empty when that is nothing. Waits for threads that are ending.
    QString leftovers() const;
    /// Counts from now on: what is there already is the system's.
    void begin();

private:
    QTemporaryDir folder_;
    std::size_t threadCount_ = 0;
};

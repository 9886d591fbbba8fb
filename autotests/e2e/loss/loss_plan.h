// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/e2e/loss/fault.h"

#include <chrono>
#include <optional>
#include <string>

/// What is lost, while what is done, and when.
enum class Job { record, play, digits };
enum class Harm { unload, kill, term, freeze, suspend };
enum class Moment { early, middle, late };

struct LossPlan {
    Job job;
    Harm harm;
    Moment moment;

    /// From the words of a command line: "record", "unload", "early". None where one is unknown.
    static std::optional<LossPlan> parse(const std::string &job, const std::string &harm, const std::string &moment);

    /// The device or its server is gone: nothing brings it back.
    bool isLoss() const { return harm != Harm::freeze && harm != Harm::suspend; }
    /// Whether the sound server can be asked while the harm lasts.
    bool leavesServer() const { return harm == Harm::unload || harm == Harm::suspend; }
    /// Number of the device's start from which the delay counts, the first being 1.
    int startNumber() const;
    std::chrono::milliseconds delay() const;
    Fault::Commands commands() const;
};

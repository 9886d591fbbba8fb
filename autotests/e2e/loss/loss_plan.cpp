// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/loss_plan.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

using namespace std::chrono_literals;

constexpr std::array jobs = {"record", "play", "digits"};
constexpr std::array harms = {"unload", "kill", "term", "freeze", "suspend"};
constexpr std::array moments = {"early", "middle", "late"};

template <typename Value, std::size_t size>
std::optional<Value> find(const std::array<const char *, size> &words, const std::string &word)
{
    const auto found = std::find(words.begin(), words.end(), word);
    return found == words.end() ? std::nullopt : std::optional(static_cast<Value>(found - words.begin()));
}

std::string signalServer(const char *name) { return std::string("kill -") + name + " $(cat \"$VIRTUAL_SOUND_CARD_DIR/pid\")"; }

} // namespace

std::optional<LossPlan> LossPlan::parse(const std::string &job, const std::string &harm, const std::string &moment)
{
    const auto foundJob = find<Job>(jobs, job);
    const auto foundHarm = find<Harm>(harms, harm);
    const auto foundMoment = find<Moment>(moments, moment);
    if (!foundJob || !foundHarm || !foundMoment)
        return std::nullopt;
    return LossPlan{*foundJob, *foundHarm, *foundMoment};
}

int LossPlan::startNumber() const
{
    if (job == Job::digits)
        return moment == Moment::late ? 3 : 1;
    return job == Job::play ? 2 : 1; // what is played has been recorded before
}

std::chrono::milliseconds LossPlan::delay() const
{
    if (job == Job::digits) // a digit sounds for a second; then it is quiet for another
        return moment == Moment::middle ? 1700ms : 300ms;
    return std::array{100ms, 900ms, 2400ms}[static_cast<std::size_t>(moment)];
}

Fault::Commands LossPlan::commands() const
{
    const std::string device = job == Job::record ? "source mic1 " : "sink sink1 ";
    // Nobody else may hear of the end of a digit: there the thread of the dialog is the one that is blocked.
    const auto repairAfter = job == Job::digits ? std::optional<std::chrono::milliseconds>(5s) : std::nullopt;
    switch (harm) {
    case Harm::unload:
        return {
            std::string("pactl unload-module ") + (job == Job::record ? "module-remap-source" : "module-null-sink"), {}, {}};
    case Harm::kill:
        return {signalServer("KILL"), {}, {}};
    case Harm::term:
        return {signalServer("TERM"), {}, {}};
    case Harm::freeze:
        return {signalServer("STOP"), signalServer("CONT"), repairAfter};
    case Harm::suspend:
        return {"pactl suspend-" + device + "1", "pactl suspend-" + device + "0", repairAfter};
    }
    return {};
}

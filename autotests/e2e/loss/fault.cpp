// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/fault.h"

#include "autotests/e2e/loss/call_watch.h"
#include "autotests/e2e/loss/system_ways.h"

#include <QProcess>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

constexpr std::chrono::milliseconds lookInterval{1};

// Not waited for: a Windows program cannot wait for a program of the system below it.
void give(const std::string &command)
{
    const QStringList arguments{QStringLiteral("-c"), QString::fromStdString(command)};
    if (!QProcess::startDetached(QString::fromLatin1(system_ways::shell()), arguments))
        std::fprintf(stderr, "FAIL: '%s' cannot be started\n", command.c_str());
}

} // namespace

long long nowMs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

Fault::Fault(Commands commands, std::chrono::milliseconds delay) : commands_(std::move(commands)), delay_(delay)
{
    thread_ = std::thread([this] { work(); });
}

Fault::~Fault()
{
    finish();
    thread_.join();
}

void Fault::arm()
{
    const std::lock_guard lock(mutex_);
    isArmed_ = true;
    changed_.notify_all();
}

void Fault::repair() { give(commands_.repair); }

void Fault::finish()
{
    const std::lock_guard lock(mutex_);
    isFinished_ = true;
    changed_.notify_all();
}

// False when it is all over before.
bool Fault::waitUntil(long long moment)
{
    std::unique_lock lock(mutex_);
    const auto left = std::chrono::milliseconds(moment - nowMs());
    return !changed_.wait_for(lock, left, [this] { return isFinished_; });
}

void Fault::work()
{
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return isArmed_ || isFinished_; });
    }
    if (!waitUntil(nowMs() + delay_.count()))
        return;
    give(commands_.harm);
    harmMs_ = nowMs();
    long long repairMs = commands_.repairAfter ? harmMs_ + commands_.repairAfter->count() : 0;
    while (waitUntil(nowMs() + lookInterval.count())) {
        if (toldMs_ == 0 && call_watch::isSomeDeviceStopped())
            toldMs_ = nowMs();
        if (repairMs != 0 && nowMs() >= repairMs) {
            repairMs = 0;
            repair();
        }
    }
}

Watchdog::Watchdog(std::string what, std::chrono::seconds limit)
{
    thread_ = std::thread([this, what = std::move(what), limit] {
        std::unique_lock lock(mutex_);
        if (changed_.wait_for(lock, limit, [this] { return isOver_; }))
            return;
        const std::string calls = call_watch::callsInProgress();
        std::fprintf(stderr, "FAIL: %s hangs; calls that did not return: %s\n", what.c_str(),
                     calls.empty() ? "none into the sound library" : calls.c_str());
        std::fflush(nullptr);
        std::_Exit(3);
    });
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

/// Milliseconds of a steady clock.
long long nowMs();

/// Does one thing to the sound server a while after something began, on a thread of its own: the thread that is being watched
/// may be blocked.
class Fault {
public:
    /// Shell commands. `repair` is given `repairAfter` the fault, when it is given.
    struct Commands {
        std::string harm;
        std::string repair;
        std::optional<std::chrono::milliseconds> repairAfter;
    };

    Fault(Commands commands, std::chrono::milliseconds delay);
    ~Fault();
    Fault(const Fault &) = delete;
    Fault &operator=(const Fault &) = delete;

    /// From now the delay counts; any thread, the first time only.
    void arm();
    /// Repairs now.
    void repair();
    /// Looks no longer for what the sound library says of it.
    void finish();

    /// When the harm was done; 0 before.
    long long harmMs() const { return harmMs_; }
    /// When the sound library stopped a device; 0 before.
    long long toldMs() const { return toldMs_; }

private:
    void work();
    bool waitUntil(long long moment);

    Commands commands_;
    std::chrono::milliseconds delay_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isArmed_ = false;
    bool isFinished_ = false;
    std::atomic<long long> harmMs_ = 0;
    std::atomic<long long> toldMs_ = 0;
    std::thread thread_;
};

/// Ends the process, with a line that names `what` and the calls of the sound library that hang, unless it is destroyed before
/// `limit`.
class Watchdog {
public:
    Watchdog(std::string what, std::chrono::seconds limit);
    ~Watchdog();
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isOver_ = false;
    std::thread thread_;
};

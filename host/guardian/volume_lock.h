// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLockFile>
#include <QString>

#include <chrono>

namespace host {

/// The lock of a state folder: it says whose turn it is with the volumes, and with the ears of the machine. Given back at the
/// end of its life, at the latest; that of a dead process holds nobody up. One thread.
class VolumeLock {
public:
    /// A guardian whose host has just crashed is done within this time.
    static constexpr std::chrono::milliseconds usualWait{1500};

    explicit VolumeLock(const QString &stateFolder);

    /// Makes the folder. False with `errorText()`.
    bool take(std::chrono::milliseconds wait = usualWait);
    void giveBack() { lock_.unlock(); }
    const QString &errorText() const noexcept { return errorText_; }
    /// Whether `take` failed because another run is under way.
    bool isHeldByAnother() const noexcept { return isHeldByAnother_; }

private:
    QString folder_;
    QLockFile lock_;
    QString errorText_;
    bool isHeldByAnother_ = false;
};

} // namespace host

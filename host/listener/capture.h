// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/block_ring.h"
#include "host/listener/loopback_capture.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace host {

/// The sound library's capture side. It is never shut down: closing a source that its server has put to sleep would wait for
/// ever, so the process ends with it open.
class Capture {
public:
    /// Starts the sound library so that it also lists what devices play. False with `errorText()` when there is no sound
    /// server.
    bool startLibrary();
    /// What can be captured: what the sound library lists, and a loopback of each output where that is another thing.
    QStringList sources() const;
    /// Captures from the source of that exact name; a loopback needs not be listed. False with `errorText()`.
    bool open(const QString &source);
    const QString &errorText() const { return errorText_; }
    /// Channels that the source itself has, however many are captured; 0 when that is not known.
    int sourceChannelCount() const { return sourceChannelCount_; }

    /// What has arrived.
    BlockRing &ring() { return ring_; }
    /// The source has vanished, or its server has.
    bool isLost() const;

private:
    bool openLoopback(const QString &device);
    static void receive(void *ring, std::uint8_t *bytes, int byteCount) noexcept;

    BlockRing ring_;
    LoopbackCapture loopback_; ///< ends before the ring does
    std::uint32_t device_ = 0;
    int sourceChannelCount_ = 0;
    QString errorText_;
};

/// Name of the sound library's driver.
const char *captureDriverName();

} // namespace host

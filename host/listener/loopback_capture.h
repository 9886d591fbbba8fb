// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/block_ring.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <string>

namespace host {

/// Hears what an output device is given to play, where the system's list of inputs has no monitor of it. While nothing plays it
/// writes silence, so that time goes on; only silence beside sound counts as heard.
class LoopbackCapture {
public:
    LoopbackCapture();
    ~LoopbackCapture();
    LoopbackCapture(const LoopbackCapture &) = delete;
    LoopbackCapture &operator=(const LoopbackCapture &) = delete;

    /// Names of the outputs that can be heard in this way; none where the system has monitors, or lets none be heard. Outputs
    /// of the same name are left out: nobody could tell them apart.
    static QStringList devices();

    /// Hears the output of that exact name and writes to the ring on a thread of its own, until the end of this object. False
    /// with `errorText()`. Once per object.
    bool open(const QString &device, BlockRing &ring);
    /// The same for the system's identifier of an endpoint; an input is heard as it is.
    bool openEndpoint(const std::u16string &id, BlockRing &ring);
    const QString &errorText() const { return errorText_; }

    /// Channels of the format that the system mixes in.
    int channelCount() const;
    /// The device has vanished or was taken away. Any thread.
    bool isLost() const;

private:
    class Worker;

    std::unique_ptr<Worker> worker_;
    QString errorText_;
};

} // namespace host

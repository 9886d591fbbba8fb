// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QFile>

/// What the fake listener says; it is read while it grows.
class ListenerScript {
public:
    /// Begins anew, with "ready" when the listener shall start.
    explicit ListenerScript(bool isReady = true);

    void say(const QByteArray &line);
    /// A digit that began now.
    void digit(int digit, double score = 0.9);
    /// A sound that is none, began now.
    void sound(double levelDbfs);
    /// Everything up to three seconds from now has been listened to.
    /// \param share how much of the sound since the last level has arrived
    void level(double levelDbfs, double share = 1, int droppedFrameCount = 0);
    void end(int exitCode);

private:
    QFile file_;
    qint64 levelToldMs_ = 0;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <string>
#include <vector>

/// What the sound server says of itself through its own command-line tool, as another program sees it.
namespace pulse_truth {

struct Device {
    std::vector<unsigned> volumes; ///< of each channel; 65536 is 100 %
    bool muted = false;

    bool operator==(const Device &) const = default;
};

/// By name; monitors among them, with their names ending in ".monitor".
using Devices = std::map<std::string, Device>;

/// Runs the tool with these arguments; its output, or a failed test.
QString run(const QStringList &arguments);

/// Every sink and source.
Devices devices();

/// Sets one device's channels (0 to 65536 is up to 100 %) and mute state. `kind` is "sink" or "source".
void set(const QString &kind, const QString &name, const std::vector<unsigned> &volumes, bool muted);

/// Adds a sink that plays to nowhere, with that many channels.
void addSink(const QString &name, int channelCount = 2);
/// Adds a microphone that hears silence.
void addSource(const QString &name);
/// Removes a sink or microphone added by the two functions above.
void remove(const QString &name);

/// The number by which the server knows a sink; empty without such a sink.
QString numberOf(const QString &sinkName);
/// Whether a stream plays on that sink.
bool isPlayedOn(const QString &sinkName);

/// Freezes the server's process, and at the end of the scope wakes it and waits until it answers, 10 s at most.
class FrozenServer {
public:
    FrozenServer();
    ~FrozenServer();
    FrozenServer(const FrozenServer &) = delete;
    FrozenServer &operator=(const FrozenServer &) = delete;
};

/// Another server address for this process, until the end of the scope.
class OtherServer {
public:
    explicit OtherServer(const QByteArray &address) : before_(qgetenv("PULSE_SERVER")) { qputenv("PULSE_SERVER", address); }
    ~OtherServer() { qputenv("PULSE_SERVER", before_); }
    OtherServer(const OtherServer &) = delete;
    OtherServer &operator=(const OtherServer &) = delete;

private:
    QByteArray before_;
};

} // namespace pulse_truth

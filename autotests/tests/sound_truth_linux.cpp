// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/sound_truth.h"

#include "autotests/support/pulse_truth_linux.h"

#include <vector>

namespace sound_truth {

bool canTell() { return true; }

std::string levels()
{
    std::string text;
    for (const auto &[name, device] : pulse_truth::devices()) {
        text += name + (device.muted ? " muted" : "");
        for (const unsigned volume : device.volumes)
            text += ' ' + std::to_string(volume);
        text += '\n';
    }
    return text;
}

void turnDown()
{
    const pulse_truth::Devices devices = pulse_truth::devices();
    for (const auto &[name, device] : devices) {
        const bool isSink = devices.contains(name + ".monitor");
        const unsigned share = isSink ? 37 : 52;
        pulse_truth::set(isSink ? QStringLiteral("sink") : QStringLiteral("source"), QString::fromStdString(name),
                         std::vector<unsigned>(device.volumes.size(), 65536 * share / 100), isSink);
    }
}

int openStreamCount()
{
    int count = 0;
    for (const QString &kind : {QStringLiteral("sink-inputs"), QStringLiteral("source-outputs")}) {
        const QString streams = pulse_truth::run({QStringLiteral("list"), QStringLiteral("short"), kind});
        for (const QString &line : streams.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            count += line.contains(QLatin1String("protocol-native")) ? 1 : 0; // not the card's own remapping
    }
    return count;
}

} // namespace sound_truth

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace host {

/// In front of an output device's name: the input by which a sound server passes on what that device plays.
inline constexpr QLatin1StringView monitorPrefix{"Monitor of "};
/// In front of an output device's name: what that device itself is given to play.
inline constexpr QLatin1StringView loopbackPrefix{"loopback:"};

/// The output device that a loopback source names, as the sound library lists it; empty for every other source.
inline QString loopbackDevice(const QString &source)
{
    return source.startsWith(loopbackPrefix) ? source.mid(loopbackPrefix.size()) : QString();
}

/// Whether a capture source hears a device's digital signal and not the air, by what sound servers call such sources.
inline bool isMonitor(const QString &source)
{
    return source.startsWith(monitorPrefix) || source.endsWith(QStringLiteral(".monitor")) || !loopbackDevice(source).isEmpty();
}

/// The source by the name under which this system has it: where sound servers keep a monitor of each output, a loopback is that
/// monitor. Every other source, and every source where there are no monitors, stays as it is.
QString systemSource(const QString &source);

} // namespace host

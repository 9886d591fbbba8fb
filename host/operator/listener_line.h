// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/operator/heard_log.h"

#include <QByteArray>

namespace host {

/// What one line of the listener's output tells.
struct ListenerLine {
    enum class Kind {
        unknown, ///< none of these, or without its numbers: to be passed over
        ready,   ///< from `sound.startMs` on
        sound,   ///< `sound`
        level,   ///< `sound.levelDbfs`, at `sound.startMs`
        clip,    ///< `place`
        meter,   ///< `moment`
        lost,
    };
    Kind kind = Kind::unknown;
    HeardEvent sound;
    HeardPlace place;
    MeteredMoment moment;
    int sourceChannelCount = 0;   ///< of ready: channels that the source itself has; 0 when not known
    double frameCount = 0;        ///< of a level: frames that arrived since the one before
    double droppedFrameCount = 0; ///< of a level: frames lost since the beginning
};

/// Reads a line of JSON. Moments are whole milliseconds from 0 to 2^53, a digit is 0 to 9. Never fails otherwise than by
/// `unknown`.
ListenerLine readListenerLine(const QByteArray &line);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace host {

/// Where a sound was heard that one channel alone played.
enum class HeardSide { nothing, left, right, both };

enum class ChannelMapping {
    straight,      ///< left on the left, right on the right
    swapped,       ///< each on the other side
    mixed,         ///< the sides cannot be told apart
    leftSilent,    ///< nothing of the left channel, something of the right one
    rightSilent,   ///< the other way round
    notMeasurable, ///< nothing is known of it
};

/// RMS levels of left and right of the capture while one channel of the device played.
struct SideLevels {
    double leftDbfs = -120.0;
    double rightDbfs = -120.0;
};

/// What came of a check of the front left and the front right channel. It is shown and reported, and no verdict.
struct ChannelCheck {
    ChannelMapping mapping = ChannelMapping::notMeasurable;
    QString source;                    ///< capture source that was measured; empty: a person told what was heard
    std::optional<HeardSide> left;     ///< where the left channel's sound was heard; nothing when that is not known
    std::optional<HeardSide> right;    ///< the same of the right channel
    std::optional<SideLevels> ofLeft;  ///< measured while the left channel played
    std::optional<SideLevels> ofRight; ///< measured while the right channel played
    QString reason;                    ///< why it was not measurable, in English words that `reasonOf` knows; empty otherwise
};

/// What was captured while one channel spoke its digit.
struct SideEvidence {
    std::optional<SideLevels> digit; ///< nothing: the digit was not recognised
    double loudestDbfs = -120.0;     ///< of the louder side in any tenth of a second
};

/// What the sounds of both channels were measured as, and how the source hears.
struct ChannelEvidence {
    SideEvidence left;
    SideEvidence right;
    int sourceChannelCount = 0; ///< of the source itself, however many are captured; 0 when not known
    bool isMonitor = false;     ///< the source hears the device's signal, not the air
};

/// A side that much softer than the other heard nothing of its own.
constexpr double sidesApartDb = 10.0;
/// A channel is silent, and not just soft, when nothing comes within that of the other one.
constexpr double silentBelowDb = 30.0;

ChannelMapping mappingOf(HeardSide left, HeardSide right);

HeardSide sideOf(const SideLevels &levels);

/// Claims nothing that the source cannot tell: one with a single channel hears no sides, and a microphone may hear both alike.
ChannelCheck judgeChannels(const ChannelEvidence &evidence);

/// What a person heard of both channels.
ChannelCheck answeredCheck(HeardSide left, HeardSide right);

/// Words for a report: "straight", "swapped", "mixed", "left silent", "right silent", "not measurable".
QString mappingName(ChannelMapping mapping);

/// Words for a report: "nothing", "left", "right", "both".
QString sideName(HeardSide side);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "host/core/channel_check.h"

#include <algorithm>

namespace host {

namespace {

HeardSide sideOrNothing(const std::optional<SideLevels> &levels) { return levels ? sideOf(*levels) : HeardSide::nothing; }

bool isSilentBeside(const SideEvidence &unheard, const SideLevels &heard)
{
    return unheard.loudestDbfs <= std::max(heard.leftDbfs, heard.rightDbfs) - silentBelowDb;
}

// Why the evidence tells nothing of the sides; empty when it does.
QString doubtOf(const ChannelEvidence &evidence, ChannelMapping mapping)
{
    if (evidence.sourceChannelCount <= 0)
        return QStringLiteral("it is not known how many channels the source has");
    if (evidence.sourceChannelCount == 1)
        return QStringLiteral("the source has one channel only");
    const SideEvidence &left = evidence.left;
    const SideEvidence &right = evidence.right;
    if (!left.digit && !right.digit)
        return QStringLiteral("nothing was heard");
    const bool isOneSoft =
        (!left.digit && !isSilentBeside(left, *right.digit)) || (!right.digit && !isSilentBeside(right, *left.digit));
    if (isOneSoft)
        return QStringLiteral("one channel was too soft to be recognised, and too loud to be called silent");
    if (mapping == ChannelMapping::mixed && !evidence.isMonitor)
        return QStringLiteral("the microphone hears both sides alike");
    return {};
}

} // namespace

ChannelMapping mappingOf(HeardSide left, HeardSide right)
{
    if (left == HeardSide::nothing && right == HeardSide::nothing)
        return ChannelMapping::notMeasurable;
    if (left == HeardSide::nothing)
        return ChannelMapping::leftSilent;
    if (right == HeardSide::nothing)
        return ChannelMapping::rightSilent;
    if (left == HeardSide::left && right == HeardSide::right)
        return ChannelMapping::straight;
    const bool isSwapped = left == HeardSide::right && right == HeardSide::left;
    return isSwapped ? ChannelMapping::swapped : ChannelMapping::mixed;
}

HeardSide sideOf(const SideLevels &levels)
{
    const double difference = levels.leftDbfs - levels.rightDbfs;
    if (difference >= sidesApartDb)
        return HeardSide::left;
    return difference <= -sidesApartDb ? HeardSide::right : HeardSide::both;
}

std::optional<std::size_t> silentSide(ChannelMapping mapping)
{
    if (mapping == ChannelMapping::leftSilent)
        return 0;
    return mapping == ChannelMapping::rightSilent ? std::optional<std::size_t>(1) : std::nullopt;
}

ChannelCheck judgeChannels(const ChannelEvidence &evidence)
{
    ChannelCheck check;
    check.left = sideOrNothing(evidence.left.digit);
    check.right = sideOrNothing(evidence.right.digit);
    check.ofLeft = evidence.left.digit;
    check.ofRight = evidence.right.digit;
    check.mapping = mappingOf(*check.left, *check.right);
    check.reason = doubtOf(evidence, check.mapping);
    if (!check.reason.isEmpty())
        check.mapping = ChannelMapping::notMeasurable;
    return check;
}

ChannelCheck answeredCheck(HeardSide left, HeardSide right)
{
    ChannelCheck check;
    check.mapping = mappingOf(left, right);
    check.left = left;
    check.right = right;
    if (check.mapping == ChannelMapping::notMeasurable)
        check.reason = QStringLiteral("nothing was heard");
    return check;
}

QString mappingName(ChannelMapping mapping)
{
    switch (mapping) {
    case ChannelMapping::straight:
        return QStringLiteral("straight");
    case ChannelMapping::swapped:
        return QStringLiteral("swapped");
    case ChannelMapping::mixed:
        return QStringLiteral("mixed");
    case ChannelMapping::leftSilent:
        return QStringLiteral("left silent");
    case ChannelMapping::rightSilent:
        return QStringLiteral("right silent");
    case ChannelMapping::notMeasurable:
        break;
    }
    return QStringLiteral("not measurable");
}

QString sideName(HeardSide side)
{
    switch (side) {
    case HeardSide::left:
        return QStringLiteral("left");
    case HeardSide::right:
        return QStringLiteral("right");
    case HeardSide::both:
        return QStringLiteral("both");
    case HeardSide::nothing:
        break;
    }
    return QStringLiteral("nothing");
}

} // namespace host

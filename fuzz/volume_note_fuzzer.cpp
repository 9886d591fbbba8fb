// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "host/guardian/volume_note.h"

using namespace host;
using fuzz::require;
using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

namespace {

bool isSame(const EndpointVolume &one, const EndpointVolume &other)
{
    return one.id == other.id && one.level == other.level && one.muted == other.muted &&
           one.channelVolumes == other.channelVolumes;
}

void checkVolume(const EndpointVolume &volume)
{
    require(!volume.id.empty(), "a record belongs to a named endpoint");
    require(volume.level >= 0.0F && volume.level <= 1.0F, "a level is within 0 to 1");
    require(volume.channelVolumes.size() <= 32, "an endpoint has no more channels than a sound server");
    for (const std::uint32_t channel : volume.channelVolumes)
        require(channel <= channelVolumeLimit, "no channel is louder than a mixer goes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    QString complaint;
    const auto note = fromNote(fuzz::bytes(data, byteCount), complaint);
    require(note.has_value() == complaint.isEmpty(), "a note is taken, or refused with the reason");
    if (!note)
        return 0;
    const EndpointVolumes &volumes = note->volumes;
    require(volumes.size() <= 512, "a note has no more endpoints than a machine");
    for (const EndpointVolume &volume : volumes)
        checkVolume(volume);
    const auto again = fromNote(toNote(*note), complaint);
    require(again && again->server == note->server &&
                std::equal(again->volumes.begin(), again->volumes.end(), volumes.begin(), volumes.end(), isSame),
            "what was read can be noted and read again");
    return 0;
}

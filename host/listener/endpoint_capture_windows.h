// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/com_owner_windows.h"
#include "host/listener/mix_format.h"

#include <mmdeviceapi.h>

#include <audioclient.h>

#include <vector>

namespace host {

/// Hears one endpoint in the format that the system mixes in: of an output what it is given to play, of an input what it
/// records. Shared with every other program, changes nothing. One thread, which is in an apartment for as long as this lives.
class EndpointCapture {
public:
    EndpointCapture() = default;
    ~EndpointCapture();
    EndpointCapture(const EndpointCapture &) = delete;
    EndpointCapture &operator=(const EndpointCapture &) = delete;

    /// Once per object. The system's own result; a failing one too where it takes the stream but hands nothing out.
    HRESULT open(IMMDevice &endpoint);
    HRESULT start();
    /// Appends what has come since, as front left and front right. While nothing plays on an output nothing comes.
    HRESULT read(std::vector<float> &stereo);

    const MixFormat &format() const { return format_; }

private:
    HRESULT openStream(IMMDevice &endpoint);
    HRESULT takePacket(std::vector<float> &stereo);

    ostra::audio::ComPointer<IAudioClient> client_;
    ostra::audio::ComPointer<IAudioCaptureClient> packets_;
    MixFormat format_;
    bool isStarted_ = false;
};

/// `kind` is unknown for what is neither whole numbers nor floating point.
MixFormat mixFormatOf(const WAVEFORMATEX &format);

} // namespace host

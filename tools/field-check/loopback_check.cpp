// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/endpoint.h"

#include <audioclient.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace field_check {

namespace {

constexpr IID audioClientId{0x1CB9AD4C, 0xDBFA, 0x4C32, {0xB1, 0x78, 0xC2, 0xF5, 0x68, 0xA7, 0x03, 0xB2}};
constexpr IID renderClientId{0xF294ACFC, 0x3146, 0x4483, {0xA7, 0xBF, 0xAD, 0xDC, 0xA7, 0xC2, 0x60, 0xE2}};
constexpr IID captureClientId{0xC8ADBD64, 0xE71E, 0x48A0, {0xA4, 0xDE, 0x18, 0x5C, 0x39, 0x5C, 0xD3, 0x17}};
constexpr REFERENCE_TIME bufferTime = 10'000'000; ///< a second in units of 100 ns
constexpr DWORD playTime = 1000;                  ///< milliseconds
constexpr double toneHertz = 997;
constexpr double amplitude = 0.1;
constexpr double audible = 0.001;
constexpr double pi = 3.14159265358979323846;

/// A client of the default output in the format that the system mixes in.
class Client {
public:
    ComPointer<IAudioClient> client;
    WAVEFORMATEX *format = nullptr;
    ~Client() { CoTaskMemFree(format); }

    HRESULT open(IMMDevice &endpoint, DWORD flags)
    {
        HRESULT result = endpoint.Activate(audioClientId, CLSCTX_ALL, nullptr, client.receiveAny());
        if (SUCCEEDED(result))
            result = client->GetMixFormat(&format);
        return FAILED(result) ? result : client->Initialize(AUDCLNT_SHAREMODE_SHARED, flags, bufferTime, 0, format, nullptr);
    }
    bool isFloat() const { return format->wBitsPerSample == 32; } // the mixer's only 32-bit format
};

HRESULT fillWithTone(Client &output)
{
    UINT32 frames = 0;
    BYTE *bytes = nullptr;
    ComPointer<IAudioRenderClient> render;
    HRESULT result = output.client->GetService(renderClientId, render.receiveAny());
    if (SUCCEEDED(result))
        result = output.client->GetBufferSize(&frames);
    if (SUCCEEDED(result))
        result = render->GetBuffer(frames, &bytes);
    if (FAILED(result))
        return result;
    auto *sample = reinterpret_cast<float *>(bytes);
    for (UINT32 frame = 0; frame < frames; ++frame) {
        const double value = amplitude * std::sin(2 * pi * toneHertz * frame / output.format->nSamplesPerSec);
        sample = std::fill_n(sample, output.format->nChannels, static_cast<float>(value));
    }
    return render->ReleaseBuffer(frames, 0);
}

HRESULT readPeak(Client &ear, double &peak)
{
    ComPointer<IAudioCaptureClient> capture;
    HRESULT result = ear.client->GetService(captureClientId, capture.receiveAny());
    UINT32 waiting = 0;
    while (SUCCEEDED(result) && SUCCEEDED(result = capture->GetNextPacketSize(&waiting)) && waiting > 0) {
        BYTE *bytes = nullptr;
        UINT32 frames = 0;
        DWORD flags = 0;
        result = capture->GetBuffer(&bytes, &frames, &flags, nullptr, nullptr);
        if (FAILED(result))
            break;
        const auto *samples = reinterpret_cast<const float *>(bytes);
        for (UINT32 index = 0; index < frames * ear.format->nChannels && (flags & AUDCLNT_BUFFERFLAGS_SILENT) == 0; ++index)
            peak = std::max(peak, std::abs(static_cast<double>(samples[index])));
        result = capture->ReleaseBuffer(frames);
    }
    return result;
}

HRESULT playAndHear(IMMDevice &endpoint, double &peak)
{
    Client ear;
    Client output;
    HRESULT result = ear.open(endpoint, AUDCLNT_STREAMFLAGS_LOOPBACK);
    if (SUCCEEDED(result))
        result = output.open(endpoint, 0);
    if (SUCCEEDED(result) && !(output.isFloat() && ear.isFloat()))
        return AUDCLNT_E_UNSUPPORTED_FORMAT;
    if (SUCCEEDED(result))
        result = fillWithTone(output);
    if (SUCCEEDED(result))
        result = ear.client->Start();
    if (SUCCEEDED(result))
        result = output.client->Start();
    if (FAILED(result))
        return result;
    Sleep(playTime);
    result = readPeak(ear, peak);
    output.client->Stop();
    ear.client->Stop();
    return result;
}

} // namespace

Finding checkLoopback(const Surroundings &)
{
    Finding finding{"wasapi-loopback", "What an output plays can be captured from the output itself.", {}, {}, {}};
    const ComApartment apartment;
    ComPointer<IMMDevice> endpoint;
    if (FAILED(openDefaultEndpoint(eRender, endpoint))) {
        finding.conclude(State::notPossible, "There is no output.");
        return finding;
    }
    double peak = 0;
    const HRESULT result = playAndHear(*endpoint.get(), peak);
    finding.add("result", hexadecimal(result));
    finding.add("peakPerMille", std::lround(peak * 1000));
    if (SUCCEEDED(result) && peak > audible)
        finding.conclude(State::proved, "The tone was captured.");
    else if (isWine())
        finding.conclude(State::notPossible, "This system captures nothing from an output.");
    else
        finding.conclude(State::failed, "The tone was not captured. Was the output muted or taken by a program?");
    return finding;
}

} // namespace field_check

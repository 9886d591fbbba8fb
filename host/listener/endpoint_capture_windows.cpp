// SPDX-License-Identifier: Apache-2.0
#include "host/listener/endpoint_capture_windows.h"

#include <mmreg.h>

#include <cstring>
#include <memory>
#include <span>

namespace host {

namespace {

using ostra::audio::ComPointer;

// Spelled out: the import libraries of some compilers do not hold them.
constexpr IID audioClientId{0x1CB9AD4C, 0xDBFA, 0x4C32, {0xB1, 0x78, 0xC2, 0xF5, 0x68, 0xA7, 0x03, 0xB2}};
constexpr IID captureClientId{0xC8ADBD64, 0xE71E, 0x48A0, {0xA4, 0xDE, 0x18, 0x5C, 0x39, 0x5C, 0xD3, 0x17}};
constexpr IID endpointId{0x1BE09788, 0x6894, 0x4089, {0x85, 0x86, 0x9A, 0x2A, 0x6C, 0x26, 0x5A, 0xC5}};
/// The first field of the two sub-formats; their other fields are the same and belong to every format that has a number.
constexpr unsigned long pcmNumber = WAVE_FORMAT_PCM;
constexpr unsigned long floatNumber = WAVE_FORMAT_IEEE_FLOAT;
constexpr GUID numberedFormat{0x00000000, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};
/// A second in units of 100 ns: who is held up for less than that loses nothing.
constexpr REFERENCE_TIME bufferTime = 10'000'000;

struct FreeFormat {
    void operator()(WAVEFORMATEX *format) const { CoTaskMemFree(format); }
};

unsigned long formatNumber(const WAVEFORMATEX &format)
{
    constexpr WORD extraByteCount = sizeof(WAVEFORMATEXTENSIBLE) - sizeof(WAVEFORMATEX);
    if (format.wFormatTag != WAVE_FORMAT_EXTENSIBLE)
        return format.wFormatTag;
    if (format.cbSize < extraByteCount)
        return WAVE_FORMAT_UNKNOWN;
    WAVEFORMATEXTENSIBLE extensible{};
    std::memcpy(&extensible, &format, sizeof extensible);
    GUID rest = extensible.SubFormat;
    rest.Data1 = 0;
    return std::memcmp(&rest, &numberedFormat, sizeof rest) == 0 ? extensible.SubFormat.Data1 : WAVE_FORMAT_UNKNOWN;
}

SampleKind kindOf(unsigned long number, unsigned bitCount)
{
    if (number == floatNumber)
        return bitCount == 32 ? SampleKind::float32 : SampleKind::unknown;
    if (number != pcmNumber)
        return SampleKind::unknown;
    switch (bitCount) {
    case 16:
        return SampleKind::int16;
    case 24:
        return SampleKind::int24;
    case 32:
        return SampleKind::int32;
    default:
        return SampleKind::unknown;
    }
}

bool isOutput(IMMDevice &endpoint)
{
    ComPointer<IMMEndpoint> ends;
    EDataFlow flow = eRender;
    const bool isKnown =
        SUCCEEDED(endpoint.QueryInterface(endpointId, ends.receiveAny())) && SUCCEEDED(ends->GetDataFlow(&flow));
    return !isKnown || flow == eRender;
}

} // namespace

MixFormat mixFormatOf(const WAVEFORMATEX &format)
{
    return {kindOf(formatNumber(format), format.wBitsPerSample), format.nChannels, format.nSamplesPerSec};
}

EndpointCapture::~EndpointCapture()
{
    if (isStarted_)
        client_->Stop();
}

HRESULT EndpointCapture::openStream(IMMDevice &endpoint)
{
    WAVEFORMATEX *received = nullptr;
    HRESULT result = endpoint.Activate(audioClientId, CLSCTX_ALL, nullptr, client_.receiveAny());
    if (SUCCEEDED(result))
        result = client_->GetMixFormat(&received);
    const std::unique_ptr<WAVEFORMATEX, FreeFormat> format(received);
    if (FAILED(result))
        return result;
    format_ = mixFormatOf(*format);
    if (!format_.isKnown() || format_.frameByteCount() != format->nBlockAlign)
        return AUDCLNT_E_UNSUPPORTED_FORMAT;
    const DWORD flags = isOutput(endpoint) ? AUDCLNT_STREAMFLAGS_LOOPBACK : 0;
    return client_->Initialize(AUDCLNT_SHAREMODE_SHARED, flags, bufferTime, 0, format.get(), nullptr);
}

HRESULT EndpointCapture::open(IMMDevice &endpoint)
{
    const HRESULT result = openStream(endpoint);
    return FAILED(result) ? result : client_->GetService(captureClientId, packets_.receiveAny());
}

HRESULT EndpointCapture::start()
{
    const HRESULT result = client_->Start();
    isStarted_ = SUCCEEDED(result);
    return result;
}

HRESULT EndpointCapture::takePacket(std::vector<float> &stereo)
{
    BYTE *bytes = nullptr;
    UINT32 frameCount = 0;
    DWORD flags = 0;
    const HRESULT result = packets_->GetBuffer(&bytes, &frameCount, &flags, nullptr, nullptr);
    if (FAILED(result) || result == AUDCLNT_S_BUFFER_EMPTY)
        return result;
    const bool isSilent = (flags & AUDCLNT_BUFFERFLAGS_SILENT) != 0; // the bytes mean nothing then
    if (isSilent)
        stereo.resize(stereo.size() + std::size_t{frameCount} * 2);
    else
        appendStereo(std::as_bytes(std::span(bytes, frameCount * format_.frameByteCount())), format_, stereo);
    return packets_->ReleaseBuffer(frameCount);
}

HRESULT EndpointCapture::read(std::vector<float> &stereo)
{
    UINT32 waiting = 0;
    HRESULT result = packets_->GetNextPacketSize(&waiting);
    while (SUCCEEDED(result) && waiting > 0) {
        result = takePacket(stereo);
        if (SUCCEEDED(result))
            result = packets_->GetNextPacketSize(&waiting);
    }
    return result;
}

} // namespace host

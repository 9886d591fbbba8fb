// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"
#include "tools/field-check/endpoint.h"

#include <audioclient.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace field_check {

namespace {

constexpr IID audioClientId{0x1CB9AD4C, 0xDBFA, 0x4C32, {0xB1, 0x78, 0xC2, 0xF5, 0x68, 0xA7, 0x03, 0xB2}};
constexpr IID renderClientId{0xF294ACFC, 0x3146, 0x4483, {0xA7, 0xBF, 0xAD, 0xDC, 0xA7, 0xC2, 0x60, 0xE2}};
constexpr REFERENCE_TIME bufferTime = 10'000'000; ///< a second in units of 100 ns
constexpr DWORD playTime = 1500;                  ///< milliseconds
constexpr double toneHertz = 997;
constexpr double amplitude = 0.1; ///< -20 dBFS
constexpr double audibleDbfs = -60;
constexpr double silenceDbfs = -120;
constexpr double pi = 3.14159265358979323846;
constexpr DWORD lookTime = 50; ///< milliseconds
constexpr std::chrono::seconds startLimit{20};
constexpr std::chrono::seconds endLimit{10};
constexpr std::chrono::minutes longestRun{9};

/// A client of the default output in the format that the system mixes in.
class Client {
public:
    ComPointer<IAudioClient> client;
    WAVEFORMATEX *format = nullptr;
    ~Client() { CoTaskMemFree(format); }

    HRESULT open(IMMDevice &endpoint)
    {
        HRESULT result = endpoint.Activate(audioClientId, CLSCTX_ALL, nullptr, client.receiveAny());
        if (SUCCEEDED(result))
            result = client->GetMixFormat(&format);
        if (SUCCEEDED(result))
            result = client->Initialize(AUDCLNT_SHAREMODE_SHARED, 0, bufferTime, 0, format, nullptr);
        return SUCCEEDED(result) && format->wBitsPerSample != 32 ? AUDCLNT_E_UNSUPPORTED_FORMAT : result;
    }
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
    auto *sample = reinterpret_cast<float *>(bytes); // the mixer's only 32-bit format
    for (UINT32 frame = 0; frame < frames; ++frame) {
        const double value = amplitude * std::sin(2 * pi * toneHertz * frame / output.format->nSamplesPerSec);
        sample = std::fill_n(sample, output.format->nChannels, static_cast<float>(value));
    }
    return render->ReleaseBuffer(frames, 0);
}

HRESULT playTone()
{
    ComPointer<IMMDevice> endpoint;
    Client output;
    HRESULT result = openDefaultEndpoint(eRender, endpoint);
    if (SUCCEEDED(result))
        result = output.open(*endpoint.get());
    if (SUCCEEDED(result))
        result = fillWithTone(output);
    if (SUCCEEDED(result))
        result = output.client->Start();
    if (FAILED(result))
        return result;
    Sleep(playTime);
    return output.client->Stop();
}

double loudestIn(const std::string &events)
{
    constexpr char member[] = "\"peakDbfs\":";
    double loudest = silenceDbfs;
    for (std::size_t place = events.find(member); place != std::string::npos; place = events.find(member, place + 1))
        loudest = std::max(loudest, std::strtod(events.c_str() + place + sizeof member - 1, nullptr));
    return loudest;
}

bool isReady(const ChildProcess &listener, const std::filesystem::path &events)
{
    const auto end = std::chrono::steady_clock::now() + startLimit;
    while (listener.isRunning() && std::chrono::steady_clock::now() < end) {
        if (contents(events).find("\"ready\"") != std::string::npos)
            return true;
        Sleep(lookTime);
    }
    return false;
}

// The program's own listener hears a tone of ours. It waits in silence first, in which no packets come.
void hearTone(const Surroundings &surroundings, Finding &finding, double &loudest)
{
    const auto events = surroundings.results / L"loopback.log";
    ChildProcess listener(L'"' + (surroundings.program / L"audio_listener.exe").wstring() + L"\" --source \"loopback:" +
                              wide(surroundings.device) + L"\" --meter",
                          surroundings.scratch, events);
    if (isReady(listener, events))
        finding.add("playing", hexadecimal(playTone()));
    listener.endInput();
    const auto code = listener.waitFor(endLimit);
    finding.add("listenerCode", code ? std::to_string(*code) : std::string("none"));
    loudest = loudestIn(contents(events));
    finding.add("loudestDbfs", std::lround(loudest));
}

// A whole run that names no source: it listens to the loopback by itself.
std::optional<DWORD> runByLoopback(const Surroundings &surroundings, Finding &finding)
{
    const auto report = surroundings.results / L"loopback-run.json";
    const auto code = runToEnd(L'"' + (surroundings.program / L"TamrexDiagnosticsCLI.exe").wstring() + L"\" run --device \"" +
                                   wide(surroundings.device) + L"\" --report \"" + report.wstring() + L'"',
                               surroundings.scratch, surroundings.results / L"loopback-run.log", longestRun);
    finding.add("runCode", code ? std::to_string(*code) : std::string("none"));
    const bool isByLoopback = contents(report).find("\"listenedTo\": \"loopback:") != std::string::npos;
    finding.add("runListenedTo", isByLoopback ? "loopback" : "something else");
    return isByLoopback ? code : std::nullopt;
}

} // namespace

Finding checkLoopback(const Surroundings &surroundings)
{
    Finding finding{"wasapi-loopback", "The listener hears what an output plays from the output itself.", {}, {}, {}};
    if (surroundings.device.empty()) {
        finding.conclude(State::notPossible, "There is no output.");
        return finding;
    }
    const ComApartment apartment;
    double loudest = silenceDbfs;
    hearTone(surroundings, finding, loudest);
    if (loudest <= audibleDbfs) {
        finding.conclude(isWine() ? State::notPossible : State::failed,
                         isWine() ? "This system captures nothing from an output."
                                  : "The tone was not heard. Was the output taken by a program?");
        return finding;
    }
    if (runByLoopback(surroundings, finding) == DWORD{0})
        finding.conclude(State::proved, "The tone was heard, and a run without a microphone passed.");
    else
        finding.conclude(State::failed, "The tone was heard, but a run without a microphone did not pass.");
    return finding;
}

} // namespace field_check

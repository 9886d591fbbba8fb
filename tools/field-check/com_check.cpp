// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/checks.h"
#include "tools/field-check/child_process.h"
#include "tools/field-check/endpoint.h"

#include <thread>

namespace field_check {

namespace {

constexpr std::chrono::minutes longestRun{6};
constexpr DWORD firstSystemFault = 0xC0000000;

HRESULT volumeInApartment(DWORD apartment)
{
    HRESULT result = CoInitializeEx(nullptr, apartment);
    if (FAILED(result))
        return result;
    {
        ComPointer<IMMDevice> endpoint;
        ComPointer<IAudioEndpointVolume> volume;
        result = openDefaultEndpoint(eRender, endpoint);
        if (SUCCEEDED(result))
            result = openVolume(*endpoint.get(), volume);
    }
    CoUninitialize();
    return result;
}

HRESULT onThread(DWORD apartment)
{
    HRESULT result = E_FAIL;
    std::thread worker([&] { result = volumeInApartment(apartment); });
    worker.join();
    return result;
}

} // namespace

Finding checkCom(const Surroundings &surroundings)
{
    Finding finding{"com-on-worker-threads", "Volumes and recordings work on threads of their own.", {}, {}, {}};
    if (surroundings.device.empty() || surroundings.microphone.empty()) {
        finding.conclude(State::notPossible, "There is no output or no microphone.");
        return finding;
    }
    const HRESULT multithreaded = onThread(COINIT_MULTITHREADED);
    const HRESULT singleThreaded = onThread(COINIT_APARTMENTTHREADED);
    finding.add("multithreaded", hexadecimal(multithreaded));
    finding.add("singleThreaded", hexadecimal(singleThreaded));
    // The microphone test records and plays on the module's worker threads, whatever its verdict on this room is.
    const auto code =
        runToEnd(hostCommand(surroundings, L"--test m --microphone \"" + wide(surroundings.microphone) + L"\" --report \"" +
                                               (surroundings.results / L"microphone-run.json").wstring() + L'"'),
                 surroundings.scratch, surroundings.results / L"microphone-run.log", longestRun);
    finding.add("microphoneRunCode", code ? std::to_string(*code) : std::string("none"));
    const bool isRun = code && *code < firstSystemFault && *code != 2 && *code != 6;
    if (SUCCEEDED(multithreaded) && SUCCEEDED(singleThreaded) && isRun)
        finding.conclude(State::proved, "Both apartments work, and a microphone run ended by itself.");
    else
        finding.conclude(State::failed, "An apartment has no volumes, or the microphone run did not come to an end.");
    return finding;
}

} // namespace field_check

// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "benchmarks/pairs.h"
#include "contract/sal.h"

#include <windows.h>

#include <objbase.h>
#include <wbemidl.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace bench {

namespace {

// Wine has no class of signed drivers: another one stands in for it, asked for as many properties.
constexpr const char *className = "Win32_SoundDevice";
constexpr std::array<const char *, 3> propertyNames{"Name", "Manufacturer", "StatusInfo"};
constexpr long waitForEver = -1; // the header's constant is no long
constexpr const wchar_t *query = L"SELECT Name,Manufacturer,StatusInfo FROM Win32_SoundDevice";

void require(bool isGood, const char *what)
{
    if (isGood)
        return;
    std::fprintf(stderr, "the management service: %s\n", what);
    std::exit(2);
}

double secondsToAskTwice()
{
    return secondsOf([] {
        for (int time = 0; time < 2; ++time) {
            std::vector<sal::CimRow> rows;
            const std::int32_t code = get_cim()->query(rows, "", className, 3, propertyNames.data(), "root\\CIMV2");
            require(code == 0, "our query");
        }
    });
}

// The tutorial's way with nothing around it: no bound, no text of numbers, no check of what comes back.
void readAll(IWbemServices *services)
{
    BSTR language = SysAllocString(L"WQL");
    BSTR text = SysAllocString(query);
    IEnumWbemClassObject *instances = nullptr;
    require(SUCCEEDED(services->ExecQuery(language, text, WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr,
                                          &instances)),
            "the bare query");
    IWbemClassObject *instance = nullptr;
    ULONG count = 0;
    while (instances->Next(waitForEver, 1, &instance, &count) == WBEM_S_NO_ERROR && count == 1) {
        for (const wchar_t *name : {L"Name", L"Manufacturer", L"StatusInfo"}) {
            VARIANT value;
            VariantInit(&value);
            instance->Get(name, 0, &value, nullptr, nullptr);
            VariantClear(&value);
        }
        instance->Release();
    }
    instances->Release();
    SysFreeString(text);
    SysFreeString(language);
}

void askByBareProgram()
{
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    IWbemLocator *locator = nullptr;
    require(SUCCEEDED(CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                                       reinterpret_cast<void **>(&locator))),
            "the locator");
    BSTR path = SysAllocString(L"root\\CIMV2");
    IWbemServices *services = nullptr;
    require(SUCCEEDED(locator->ConnectServer(path, nullptr, nullptr, nullptr, 0, nullptr, nullptr, &services)),
            "the connection");
    SysFreeString(path);
    CoSetProxyBlanket(services, RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                      RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE);
    readAll(services);
    services->Release();
    locator->Release();
    CoUninitialize();
}

// Both of one measurement, as ours are: twice the fastest of several single ones would be less than the fastest two.
double secondsOfBareProgram()
{
    return secondsOf([] {
        askByBareProgram();
        askByBareProgram();
    });
}

} // namespace

void queryFigures()
{
    print(ratioRow("driver-version look-up: two queries through the host's library (class Win32_SoundDevice)",
                   "twice the same query by a bare COM program", 1.1,
                   compare([] { return fastest(&secondsToAskTwice); }, [] { return fastest(&secondsOfBareProgram); }, 31)));
}

} // namespace bench

// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

#include "host/sal/com_owner_windows.h"
#include "host/sal/text_windows.h"

#include <wbemidl.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <new>
#include <span>
#include <string_view>
#include <utility>

namespace sal {
namespace {

// WMI answers from its repository in well under a second; the signed-driver class walks all devices and was designed for a few.
// Rows of a service that hangs are waited for no longer than this; connecting to it has the system's own bound, two minutes.
constexpr std::chrono::milliseconds answerBound{10000};

using Names = std::span<const char *const>;
using Deadline = std::chrono::steady_clock::time_point;

// Names become part of the query text: only what can be a name of a class or property may.
bool isIdentifier(std::string_view name)
{
    const auto isNameCharacter = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    };
    return !name.empty() && std::ranges::all_of(name, isNameCharacter);
}

bool isRequest(const std::string &className, Names names)
{
    const auto isName = [](const char *name) { return name != nullptr && isIdentifier(name); };
    return isIdentifier(className) && !names.empty() && std::ranges::all_of(names, isName);
}

std::wstring queryText(const std::string &condition, const std::string &className, Names names)
{
    std::string text = "SELECT ";
    for (std::size_t i = 0; i < names.size(); ++i)
        text.append(i == 0 ? "" : ",").append(names[i]);
    text.append(" FROM ").append(className);
    if (!condition.empty())
        text.append(" WHERE ").append(condition);
    return toWide(text);
}

// WMI acts with the caller's rights and refuses proxies at COM's default level. Set per proxy: the process-wide
// CoInitializeSecurity can be called once only, and that call belongs to the program, not to a library inside it. An object
// that lives in this process has no proxy to set anything on.
HRESULT allowImpersonation(IUnknown *proxy)
{
    const HRESULT result = CoSetProxyBlanket(proxy, RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                                             RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE);
    return result == E_NOINTERFACE ? S_OK : result;
}

HRESULT connectTo(const std::string &nameSpace, ComPointer<IWbemServices> &services)
{
    ComPointer<IWbemLocator> locator;
    const HRESULT created = CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                                             reinterpret_cast<void **>(locator.receive()));
    if (FAILED(created))
        return created;
    const BasicString path(toWide(nameSpace));
    const HRESULT connected = locator->ConnectServer(path.get(), nullptr, nullptr, nullptr, WBEM_FLAG_CONNECT_USE_MAX_WAIT,
                                                     nullptr, nullptr, services.receive());
    return FAILED(connected) ? connected : allowImpersonation(services.get());
}

HRESULT execute(IWbemServices *services, const std::wstring &text, ComPointer<IEnumWbemClassObject> &instances)
{
    const BasicString language(L"WQL");
    const BasicString query(text);
    const HRESULT executed = services->ExecQuery(
        language.get(), query.get(), WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr, instances.receive());
    return FAILED(executed) ? executed : allowImpersonation(instances.get());
}

std::optional<std::string> textOf(Variant &variant)
{
    const VARTYPE type = V_VT(variant.get());
    if (type == VT_NULL || type == VT_EMPTY)
        return std::nullopt;
    Variant text;
    // The neutral locale keeps numbers and dates the same on every machine.
    if (FAILED(VariantChangeTypeEx(text.receive(), variant.get(), LOCALE_INVARIANT, VARIANT_ALPHABOOL, VT_BSTR)))
        return std::nullopt;
    const BSTR value = V_BSTR(text.get());
    return toUtf8({value, SysStringLen(value)});
}

HRESULT readRow(IWbemClassObject *instance, Names names, CimRow &row)
{
    for (const char *name : names) {
        Variant value;
        const HRESULT result = instance->Get(toWide(name).c_str(), 0, value.receive(), nullptr, nullptr);
        if (FAILED(result))
            return result;
        row.push_back(textOf(value));
    }
    return S_OK;
}

// WBEM_S_NO_ERROR with an instance, WBEM_S_FALSE at the end, WBEM_S_TIMEDOUT at the deadline, or a failure.
HRESULT nextInstance(IEnumWbemClassObject *instances, Deadline deadline, ComPointer<IWbemClassObject> &instance)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0)
        return WBEM_S_TIMEDOUT;
    ULONG count = 0;
    const HRESULT result = instances->Next(static_cast<long>(left.count()), 1, instance.receive(), &count);
    if (result == WBEM_S_NO_ERROR && !instance)
        return WBEM_S_FALSE;
    return result;
}

HRESULT readRows(IEnumWbemClassObject *instances, Names names, std::vector<CimRow> &rows)
{
    const Deadline deadline = std::chrono::steady_clock::now() + answerBound;
    ComPointer<IWbemClassObject> instance;
    for (;;) {
        HRESULT result = nextInstance(instances, deadline, instance);
        if (result == WBEM_S_FALSE)
            return S_OK;
        if (result != WBEM_S_NO_ERROR)
            return result;
        CimRow row;
        result = readRow(instance.get(), names, row);
        if (FAILED(result))
            return result;
        rows.push_back(std::move(row));
    }
}

// An implementation of the service may answer a query of a class that it does not have with no instances: only the class's own
// definition tells the two apart.
HRESULT requireClass(IWbemServices *services, const std::string &className)
{
    ComPointer<IWbemClassObject> definition;
    const BasicString path(toWide(className));
    return services->GetObject(path.get(), WBEM_FLAG_RETURN_WBEM_COMPLETE, nullptr, definition.receive(), nullptr);
}

// Every COM pointer dies in here, before the caller leaves the apartment.
HRESULT runQuery(const std::string &condition, const std::string &className, Names names, const std::string &nameSpace,
                 std::vector<CimRow> &rows)
{
    ComPointer<IWbemServices> services;
    HRESULT result = connectTo(nameSpace, services);
    if (FAILED(result))
        return result;
    ComPointer<IEnumWbemClassObject> instances;
    result = execute(services.get(), queryText(condition, className, names), instances);
    if (FAILED(result))
        return result;
    const std::size_t rowCount = rows.size();
    result = readRows(instances.get(), names, rows);
    return result == S_OK && rows.size() == rowCount ? requireClass(services.get(), className) : result;
}

class WmiCim final : public Cim {
public:
    std::int32_t query(std::vector<CimRow> &rows, const std::string &condition, const std::string &className,
                       std::uint32_t propertyCount, const char *const *propertyNames, const std::string &nameSpace) override
    try {
        const Names names(propertyNames, propertyNames == nullptr ? 0 : propertyCount);
        if (!isRequest(className, names))
            return static_cast<HRESULT>(WBEM_E_INVALID_PARAMETER);
        const ComApartment apartment;
        if (FAILED(apartment.state()))
            return apartment.state();
        return runQuery(condition, className, names, nameSpace, rows);
    } catch (const std::bad_alloc &) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL; // the host's library promises a code, whatever happens below it
    }
};

} // namespace

Cim &cimService()
{
    static WmiCim service;
    return service;
}

} // namespace sal

// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

#include "host/sal/driver_rows_linux.h"
#include "host/sal/driver_version_linux.h"
#include "host/sal/sound_server_linux.h"

#include <cerrno>
#include <iterator>
#include <new>

namespace sal {
namespace {

constexpr std::string_view driverNameSpace = "root\\CIMV2";
constexpr std::string_view driverClass = "Win32_PnPSignedDriver";
constexpr std::string_view driverCondition = "DeviceClass LIKE '%AUDIOENDPOINT%'";

std::int32_t readProperties(std::vector<DriverProperty> &properties, std::span<const char *const> names)
{
    for (const char *name : names) {
        if (name == nullptr)
            return EINVAL;
        const auto property = driverProperty(name);
        if (!property)
            return ENOTSUP;
        properties.push_back(*property);
    }
    return 0;
}

std::int32_t appendDriverRows(std::vector<CimRow> &rows, std::span<const char *const> names)
{
    std::vector<DriverProperty> properties;
    if (const std::int32_t code = readProperties(properties, names); code != 0)
        return code;
    SoundFacts facts;
    if (const std::int32_t code = readSoundServer(facts); code != 0)
        return code;
    const auto versionOf = [](std::optional<std::uint32_t> alsaCard) { return kernelDriverVersion(alsaCard); };
    std::vector<CimRow> found = driverRows(facts, versionOf, properties);
    rows.insert(rows.end(), std::move_iterator(found.begin()), std::move_iterator(found.end()));
    return 0;
}

class SoundServerCim final : public Cim {
public:
    std::int32_t query(std::vector<CimRow> &rows, const std::string &condition, const std::string &className,
                       std::uint32_t propertyCount, const char *const *propertyNames, const std::string &nameSpace) override
    try {
        if (propertyCount == 0 || propertyNames == nullptr)
            return EINVAL;
        if (nameSpace != driverNameSpace || className != driverClass || condition != driverCondition)
            return ENOTSUP;
        return appendDriverRows(rows, {propertyNames, propertyCount});
    } catch (const std::bad_alloc &) {
        return ENOMEM;
    } catch (...) {
        return EIO; // the host's library promises a code, whatever happens below it
    }
};

} // namespace

Cim &cimService()
{
    static SoundServerCim service;
    return service;
}

} // namespace sal

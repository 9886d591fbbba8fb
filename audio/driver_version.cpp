// SPDX-License-Identifier: Apache-2.0
#include "audio/driver_version.h"

#include "contract/sal.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ostra::audio {

namespace {

constexpr std::array<const char *, 3> propertyNames{"Description", "DriverVersion", "FriendlyName"};
constexpr std::size_t descriptionColumn = 0;
constexpr std::size_t versionColumn = 1;
constexpr std::size_t friendlyNameColumn = 2;

bool isComplete(const sal::CimRow &row)
{
    return row.size() >= propertyNames.size() &&
           std::all_of(row.begin(), row.begin() + propertyNames.size(), [](const auto &value) { return value.has_value(); });
}

bool eitherContains(const std::string &left, const std::string &right)
{
    return left.find(right) != std::string::npos || right.find(left) != std::string::npos;
}

bool matches(const sal::CimRow &row, const std::string &deviceName)
{
    return isComplete(row) &&
           (eitherContains(deviceName, *row[descriptionColumn]) || eitherContains(deviceName, *row[friendlyNameColumn]));
}

std::optional<std::vector<sal::CimRow>> queryAudioEndpoints()
{
    sal::Cim *service = get_cim();
    std::vector<sal::CimRow> rows;
    if (service == nullptr ||
        service->query(rows, "DeviceClass LIKE '%AUDIOENDPOINT%'", "Win32_PnPSignedDriver",
                       static_cast<std::uint32_t>(propertyNames.size()), propertyNames.data(), "root\\CIMV2") != 0)
        return std::nullopt;
    return rows;
}

} // namespace

std::string lookUpDriverVersion(const std::string &deviceName)
{
    const auto rows = queryAudioEndpoints();
    if (!rows)
        return {};
    const auto found =
        std::find_if(rows->begin(), rows->end(), [&deviceName](const sal::CimRow &row) { return matches(row, deviceName); });
    return found != rows->end() ? *(*found)[versionColumn] : std::string();
}

} // namespace ostra::audio

// SPDX-License-Identifier: Apache-2.0
#include "host/core/device_list.h"

#include "contract/system_component.h"
#include "contract/system_component_manager.h"

#include <algorithm>
#include <new>

namespace host {

namespace {

// QString::toLongLong would also take signs and blanks.
bool isDecimal(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

} // namespace

std::optional<QString> Device::property(const char *key) const
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [wanted = QLatin1String(key)](const auto &entry) { return entry.first == wanted; });
    return found != properties.end() ? std::optional<QString>(found->second) : std::nullopt;
}

Device describeDevice(const ostra::SystemComponent &component)
{
    const ostra::SystemComponentInfo info = component.info();
    Device device{QString::fromStdString(component.name()), QString::fromStdString(info.id), {}};
    for (const auto &[key, value] : info.properties)
        device.properties.append({QString::fromStdString(key), QString::fromStdString(value)});
    return device;
}

bool DeviceList::refresh(ostra::SystemComponentManager &manager)
{
    bool isComplete = true;
    try {
        manager.refresh();
    } catch (const std::bad_alloc &) {
        isComplete = false;
    }
    copyFrom(manager);
    return isComplete;
}

qsizetype DeviceList::find(const QString &text) const
{
    for (qsizetype index = 0; index < devices_.size(); ++index) {
        if (devices_[index].name == text)
            return index;
    }
    bool isNumber = isDecimal(text);
    const qlonglong number = isNumber ? text.toLongLong(&isNumber) : -1;
    return isNumber && number < devices_.size() ? static_cast<qsizetype>(number) : -1;
}

void DeviceList::copyFrom(const ostra::SystemComponentManager &manager)
{
    devices_.clear();
    for (std::uint32_t index = 0; index < manager.componentCount(); ++index) {
        if (const ostra::SystemComponent *component = manager.componentAt(index))
            devices_.append(describeDevice(*component));
    }
}

} // namespace host

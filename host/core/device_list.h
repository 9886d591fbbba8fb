// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace ostra {
class SystemComponent;
class SystemComponentManager;
} // namespace ostra

namespace host {

/// Copy of what one device tells about itself; it outlives the module's own object. Texts that are no UTF-8 hold U+FFFD.
struct Device {
    QString name;
    QString id;
    QList<std::pair<QString, QString>> properties; ///< key and value, in the module's order

    /// Value of the first property of that key; nothing when the device has none.
    std::optional<QString> property(const char *key) const;
};

Device describeDevice(const ostra::SystemComponent &component);

/// The devices of a component manager, as of the last refresh.
class DeviceList {
public:
    /// Lists the machine's devices anew: opens each of them once and blocks for that. False when memory ran out: the devices
    /// found before that are listed.
    bool refresh(ostra::SystemComponentManager &manager);

    const QList<Device> &devices() const noexcept { return devices_; }
    /// Position of the device that `text` names: its exact name or, where no device has that name, its position in decimal
    /// digits. -1 when there is none.
    qsizetype find(const QString &text) const;

private:
    void copyFrom(const ostra::SystemComponentManager &manager);

    QList<Device> devices_;
};

} // namespace host

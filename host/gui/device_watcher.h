// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <memory>

namespace host {

/// Tells when the machine's playback devices have come or gone, through a connection of its own to the sound system: the module
/// has no such notice. GUI thread; the notices of the sound system's threads are handed over to it.
class DeviceWatcher : public QObject {
    Q_OBJECT

public:
    explicit DeviceWatcher(QObject *parent = nullptr);
    ~DeviceWatcher() override; ///< no notice comes any more

signals:
    /// Something has changed; a device that is plugged in makes several of these within a second.
    void devicesChanged();

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/device_list.h"
#include "host/precheck/sound_state.h"

#include <QTableWidget>

namespace host {

/// The devices with their properties, one a row. The chosen one stays chosen over a new list, by its name;
/// where it is gone none is, until it is back or the person chooses another.
class DeviceTable : public QTableWidget {
    Q_OBJECT

public:
    explicit DeviceTable(QWidget *parent = nullptr);

    void setDevices(const QList<Device> &devices);
    /// Shows volume, mute and the like as they are now; nothing of them without it.
    void setState(const SoundState &state);
    /// Position of the chosen device in the list; -1 when none is chosen.
    int chosen() const;
    QString chosenName() const { return devices_.value(chosen()).name; }
    /// False when the list has no such position.
    bool choose(qsizetype position);
    void retranslate();

private:
    void fillRow(int row, const Device &device);
    QString stateWords(const QString &device) const;
    int rowOf(const QString &name, int preferred) const;

    QList<Device> devices_;
    SoundState state_;
    QString wanted_; ///< chosen last; a device that was gone for a while is it again
};

} // namespace host

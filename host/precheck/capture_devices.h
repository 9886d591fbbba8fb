// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

namespace host {

/// One of the machine's microphones or other inputs.
struct CaptureDevice {
    QString name; ///< as the sound library, and so the dialog of the microphone test, lists it
    QString id;   ///< the system's
    bool isVirtual = false;
    bool isMonitor = false; ///< hears what an output plays; no microphone
};

/// The machine's inputs in the system's order, 2 s at most; without an answer none. Monitors of outputs are no inputs. Asks the
/// system itself and opens no device; any thread. With the sound library's drivers "dummy" and "disk" there are none to ask
/// for.
///
/// Virtual: see `VirtualDevices`.
QList<CaptureDevice> readCaptureDevices();

/// The monitors of the outputs under the same rules, as the listener takes them by name. Windows: none; Wine shows those of the
/// other system among the inputs.
QList<CaptureDevice> readMonitors();

} // namespace host

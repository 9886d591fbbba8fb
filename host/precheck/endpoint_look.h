// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QHash>
#include <QString>

namespace host {

/// Every output and input of the machine with its volume, at one moment, by the names that the sound library lists them with.
struct EndpointLook {
    bool isComplete = false; ///< false: the system did not answer, and what is missing need not be gone
    QHash<QString, EndpointState> outputs;
    QHash<QString, EndpointState> inputs;
};

/// Looks and changes nothing. Without a sound server at once, with a frozen one after 2 s. Any thread.
EndpointLook lookAtEndpoints();

/// Notes the volumes of a record's device and, of the microphone test, of its microphone.
void noteVolumes(RunRecord &record, const EndpointLook &before, const EndpointLook &after = {});

/// Whether an output that was there before has disappeared, as far as both looks can tell.
bool hasGone(const QString &output, const EndpointLook &before, const EndpointLook &after);

} // namespace host

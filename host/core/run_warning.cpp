// SPDX-License-Identifier: Apache-2.0
#include "host/core/run_warning.h"

namespace host {

namespace {

bool isMuted(const std::optional<EndpointState> &state) { return state && state->isMuted; }

bool isAtZero(const std::optional<EndpointState> &state) { return state && state->percent == 0; }

void addWarnings(QList<RunReason> &warnings, const EndpointChange &volume, const QString &name)
{
    if (isMuted(volume.before))
        warnings.append({QLatin1String(isMuted(volume.after) ? "WARNING_IS_MUTED_AGAIN" : "WARNING_WAS_MUTED"), {name}, {}});
    if (isAtZero(volume.before))
        warnings.append(
            {QLatin1String(isAtZero(volume.after) ? "WARNING_IS_AT_ZERO_AGAIN" : "WARNING_WAS_AT_ZERO"), {name}, {}});
}

} // namespace

QList<RunReason> warningsOf(const RunRecord &record)
{
    QList<RunReason> warnings;
    addWarnings(warnings, record.deviceVolume, record.device.name);
    addWarnings(warnings, record.microphoneVolume, record.microphone);
    return warnings;
}

} // namespace host

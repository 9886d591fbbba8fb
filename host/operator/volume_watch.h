// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/endpoint_volume.h"

#include <QStringList>

#include <utility>

namespace host {

/// Whether every endpoint that is called by one of `wanted` is unmuted and at full volume; where none is called so, every
/// endpoint at all.
bool areRaised(const ostra::audio::EndpointVolumes &volumes, const ostra::audio::EndpointNames &names,
               const QStringList &wanted);

/// Looks after the volumes while a dialog plays: the module raises them and says nothing where it could not. Goes by what the
/// system tells, which need not be true of every driver.
class VolumeWatch {
public:
    /// \param wanted names of the endpoints that must be raised, as people see them
    explicit VolumeWatch(QStringList wanted) : wanted_(std::move(wanted)) {}

    /// Reads the volumes, four times a second at most. A frozen sound server holds it up for `passBound` three times.
    void look();
    /// The same for capture sources alone: a monitor stays as it is when the run gives back the volumes.
    void lookAtSources();
    /// False once a look has seen a muted or lowered endpoint, or source. A look that could not read has seen nothing.
    bool wereRaised() const { return wereRaised_ && !wasSourceTurnedDown_; }
    /// Whether a look has seen a muted or lowered capture source among the wanted, a monitor of an output included: nobody
    /// raises those.
    bool wasSourceTurnedDown() const { return wasSourceTurnedDown_; }
    /// What is wrong with them; empty when nothing is.
    QString complaint() const;

private:
    void lookAtEndpoints();

    QStringList wanted_;
    qint64 lookedMs_ = 0;
    bool wereRaised_ = true;
    bool wasSourceTurnedDown_ = false;
};

} // namespace host

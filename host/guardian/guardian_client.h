// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace host {

/// Every playback and capture endpoint that a run will raise, in words for the user: description, or name where there is none.
QStringList endpointsThatWillBeRaised();

/// The process that gives the volumes back when this one cannot. One at a time, GUI thread.
class GuardianClient {
public:
    /// `stateFolder` holds the note of the levels, for a start after a power cut.
    explicit GuardianClient(QString stateFolder);
    ~GuardianClient(); ///< as `finish`
    GuardianClient(const GuardianClient &) = delete;
    GuardianClient &operator=(const GuardianClient &) = delete;

    /// Puts back what a note of an earlier run still holds, and names those endpoints; empty when there was nothing to do.
    /// `errorText()` says why it could not, and is empty otherwise. A frozen sound server is waited for some 8 s.
    QStringList restoreLeftovers();
    /// The endpoints that `restoreLeftovers` left alone because they no longer stand at the volume of that run: somebody has
    /// set another one since.
    const QStringList &leftAlone() const noexcept { return leftAlone_; }

    /// Starts the guardian and waits, bounded, until it has noted every level. False with `errorText()` when it could not.
    bool start();
    const QString &errorText() const noexcept { return errorText_; }
    /// Whether `start` failed because another run is holding the volumes: raising them now would take the raised levels for
    /// the machine's own, and leave it at full volume.
    bool isHeldByAnother() const noexcept { return isHeldByAnother_; }

    /// Normal end: lets the guardian compare, put back what is left, and end. The endpoints that it had to put back, those of
    /// an earlier run that `start` had to put back among them. Only after the run has returned: while the module still
    /// restores, both would be at it. Waits 20 s at most; `errorText()` is empty unless something could not be put back.
    QStringList finish();

private:
    struct Private;
    std::unique_ptr<Private> d_;
    QString errorText_;
    QStringList leftAlone_;
    bool isHeldByAnother_ = false;
};

} // namespace host

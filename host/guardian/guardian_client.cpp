// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_client.h"

#include "host/guardian/endpoint_words.h"
#include "host/guardian/guardian_process.h"
#include "host/guardian/guardian_session.h"
#include "host/guardian/volume_lock.h"

#include <QDeadlineTimer>
#include <QDir>

#include <utility>

namespace host {

namespace {

using Kind = GuardianMessage::Kind;

// The guardian needs some ten milliseconds; at most a wait for another one's end, and seven passes over the endpoints: three
// that put back what an earlier run has left, with their names, and the one that is noted.
constexpr std::chrono::milliseconds startBound{18'000};
static_assert(startBound > VolumeLock::usualWait + 7 * ostra::audio::passBound);
// Longer than the guardian's own bound, so that it is never killed at its work.
constexpr std::chrono::milliseconds finishBound{20'000};
static_assert(finishBound > guardianPatience.bound + 5 * ostra::audio::passBound);

constexpr std::chrono::milliseconds endBound{3000};

} // namespace

struct GuardianClient::Private {
    QString stateFolder;
    std::unique_ptr<GuardianProcess> process;
    QStringList names; ///< what the process has put back

    std::optional<GuardianMessage> waitFor(Kind awaited, std::chrono::milliseconds bound);
};

// The message, or that of a failure; nothing when the process ended without either or the bound has passed.
std::optional<GuardianMessage> GuardianClient::Private::waitFor(Kind awaited, std::chrono::milliseconds bound)
{
    const QDeadlineTimer deadline(bound);
    for (;;) {
        const auto message = process->waitForMessage(std::chrono::milliseconds(deadline.remainingTime()));
        if (!message || message->kind == awaited || message->kind == Kind::failed || message->kind == Kind::busy)
            return message;
        if (message->kind == Kind::putBack)
            names.append(message->text);
    }
}

QStringList endpointsThatWillBeRaised() { return endpointDescriptions(); }

GuardianClient::GuardianClient(QString stateFolder) : d_(std::make_unique<Private>())
{
    d_->stateFolder = std::move(stateFolder);
}

GuardianClient::~GuardianClient() { finish(); }

QStringList GuardianClient::restoreLeftovers()
{
    errorText_.clear();
    leftAlone_.clear();
    if (d_->process != nullptr) // its note is no leftover
        return {};
    PutBack result = putBackLeftovers(d_->stateFolder, errorText_);
    leftAlone_ = std::move(result.left);
    return std::move(result.names);
}

bool GuardianClient::start()
{
    errorText_.clear();
    isHeldByAnother_ = false;
    if (d_->process != nullptr) {
        errorText_ = QStringLiteral("The volumes are guarded already.");
        return false;
    }
    d_->names.clear();
    d_->process = std::make_unique<GuardianProcess>();
    if (!d_->process->start(d_->stateFolder)) {
        errorText_ =
            QStringLiteral("The guardian of the volumes (volume_guardian) is missing or cannot be started: should this "
                           "run break down, its volumes stay raised.");
    } else if (const auto message = d_->waitFor(Kind::ready, startBound); !message) {
        errorText_ = QStringLiteral("The guardian of the volumes did not answer.");
    } else if (message->kind != Kind::ready) {
        isHeldByAnother_ = message->kind == Kind::busy;
        errorText_ = message->text;
    }
    if (errorText_.isEmpty())
        return true;
    d_->process->end(endBound);
    d_->process.reset();
    return false;
}

QStringList GuardianClient::finish()
{
    if (d_->process == nullptr)
        return {};
    errorText_.clear();
    d_->process->sendFinish();
    const auto message = d_->waitFor(Kind::done, finishBound);
    d_->process->end(endBound);
    d_->process.reset();
    QStringList names = std::exchange(d_->names, {});
    if (!message) // it did not live to its end, but its note is still there
        names += putBackLeftovers(d_->stateFolder, errorText_, NoteOwner::thisRun).names;
    else if (message->kind == Kind::failed)
        errorText_ = message->text;
    return names;
}

} // namespace host

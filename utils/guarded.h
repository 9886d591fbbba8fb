// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <new>
#include <utility>

namespace ostra::utils {

/// Runs the body of a slot, a timer or an event handler. An exception must not leave those: it would unwind through the event
/// loop, whose state is undefined afterwards. `rescue` runs instead of what is left of the body; what it throws is dropped.
template <typename Body, typename Rescue>
void guarded(Body &&body, Rescue &&rescue) noexcept
{
    try {
        std::forward<Body>(body)();
        return;
    } catch (...) { // mostly out of memory, or a service of the host
    }
    try {
        std::forward<Rescue>(rescue)();
    } catch (...) { // nothing more can be done; the next timer or click tries again
    }
}

/// The same where nothing has to be done when the body could not.
template <typename Body>
void guarded(Body &&body) noexcept
{
    guarded(std::forward<Body>(body), [] {});
}

/// What `ask` answers, or `otherwise` when the host's service that it asks throws. Lack of memory passes on, the caller's to
/// report.
template <typename Ask, typename Answer>
Answer answerOr(Ask &&ask, Answer otherwise)
{
    try {
        return std::forward<Ask>(ask)();
    } catch (const std::bad_alloc &) {
        throw;
    } catch (...) {
        return otherwise;
    }
}

} // namespace ostra::utils

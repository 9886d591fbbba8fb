// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace ostra {

class EventSource;
class TestContext;

/// What the host's events mean for an open dialog.
enum class EventAnswer {
    goOn,
    cancel,  ///< an event has happened that may spoil the test
    unknown, ///< the host threw: an exception must not unwind through the event dispatcher, and nobody can tell any more
};

/// Asks for the pending events. Without a source of events nothing ever cancels. GUI thread.
EventAnswer askForEvents(EventSource *source) noexcept;
EventAnswer askForEvents(TestContext *context) noexcept;

} // namespace ostra

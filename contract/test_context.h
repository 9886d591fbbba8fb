// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace ostra {

class InputRequest;
class SystemComponent;

/// Collects the messages of one run. Implemented by the host.
class MessageSink {
public:
    virtual ~MessageSink() = default; // slot 0
    /// Slot 1. Records `text` (a key) at `level` (`ostra::message_level`); the module always passes 0 as `reserved`.
    virtual void addMessage(std::string text, std::uint32_t level, std::uint32_t reserved) = 0;

protected:
    MessageSink() = default;
    MessageSink(const MessageSink &) = delete;
    MessageSink &operator=(const MessageSink &) = delete;
};

/// Shows progress and asks the user. Implemented by the host.
class ProgressReporter {
public:
    virtual ~ProgressReporter() = default; // slot 0
    /// Slot 1. `percent` in 0..100; `text` is a key, a composite of keys, or empty.
    virtual void report(std::uint32_t percent, std::string text) = 0;
    /// Slot 2. Shows `request` to the user and returns when it is done, its answer written. A request with a widget is run
    /// on the GUI thread whatever thread calls. The request stays the caller's.
    virtual void requestInput(InputRequest *request) = 0;
    /// Slot 3. Not used by this module.
    virtual void reserved3() = 0;
    /// Slot 4. Whether the user can be asked anything.
    virtual bool canReceiveInput() = 0;

protected:
    ProgressReporter() = default;
    ProgressReporter(const ProgressReporter &) = delete;
    ProgressReporter &operator=(const ProgressReporter &) = delete;
};

/// Events of the machine that may spoil a run. Implemented by the host.
class EventSource {
public:
    virtual ~EventSource() = default; // slot 0
    /// Slot 1. Flags raised since the run began: a level, not an edge, so reading does not clear. May be asked several times
    /// a second, from the thread of the test and from the GUI thread.
    virtual std::uint32_t pendingEvents() = 0;

protected:
    EventSource() = default;
    EventSource(const EventSource &) = delete;
    EventSource &operator=(const EventSource &) = delete;
};

/// What the host hands to `Test::run`. Everything it returns stays the host's and must live until `run` has returned.
class TestContext {
public:
    virtual ~TestContext() = default; // slot 0
    /// Slot 1. The device under test; null makes the run invalid or unsupported.
    virtual SystemComponent *component() = 0;
    /// Slot 2. Null makes the playback test answer "invalid call".
    virtual MessageSink *messages() = 0;
    /// Slot 3. As slot 2.
    virtual ProgressReporter *reporter() = 0;
    /// Slot 4. Not used by this module.
    virtual void reserved4() = 0;
    /// Slot 5. True when the host wants the test to stop. The context is the dialogs' cancellation watcher: an open dialog
    /// asks once a second on the GUI thread.
    virtual bool continueOnOutcome() = 0;
    /// Slot 6. As slot 2.
    virtual EventSource *events() = 0;

protected:
    TestContext() = default;
    TestContext(const TestContext &) = delete;
    TestContext &operator=(const TestContext &) = delete;
};

} // namespace ostra

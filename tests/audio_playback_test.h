// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/test.h"

namespace ostra {

/// Plays spoken digits on an output device and lets the user type what was heard.
///
/// Every request goes through the context's reporter, which decides what the user sees; no window is touched on the thread of
/// the run. What the user said to the instructions, and that an event spoilt the last run, is kept in the component.
class AudioPlaybackTest : public Test {
public:
    using Test::Test;

    /// Whether the clips of all ten digits are there in the language in force and `component` is an audio component.
    bool isSupported(SystemComponent *component) override;
    /// Any thread; blocks until the last request has returned. Nothing is thrown, whatever the host's services throw: the run
    /// is then not completed.
    std::uint32_t run(TestContext *context) override;
    bool firstFlag() override { return true; }

    /// Slot 12. Whether one of `flags` is a reason to cancel (`cancelingEventMask`).
    virtual bool isCancelingEvent(std::uint32_t flags);
    /// Slot 13. Whether `context` has a reporter, messages, events and a component, asked in this order up to the first that
    /// is missing. Null is allowed and answers false.
    virtual bool isContextValid(TestContext *context);
    /// Slot 14. The interactive part of a run whose context is valid. Lets pass what the host's services throw.
    virtual std::uint32_t execute(TestContext *context);
};

} // namespace ostra

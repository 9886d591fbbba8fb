// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/input_request.h"
#include "contract/test_context.h"

#include <QElapsedTimer>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A host that shows what a test asks for and counts how often it is asked whether the test has to end. What it answers is a
/// level: once raised, it stays. GUI thread only.
class PollingHost final : public ostra::TestContext {
public:
    /// What the user sees of the host itself, or of the test.
    enum class Showing { nothing, dialog, prompt, question };

    explicit PollingHost(ostra::SystemComponent *component) : component_(component) {}

    ostra::SystemComponent *component() override { return component_; }
    ostra::MessageSink *messages() override { return &sink_; }
    ostra::ProgressReporter *reporter() override { return &reporter_; }
    void reserved4() override {}
    bool continueOnOutcome() override;
    ostra::EventSource *events() override { return &events_; }

    std::uint32_t flags = 0;
    bool wantsStop = false;
    /// With the number of the question that is about to be answered, from 1.
    std::function<void(int poll)> onPoll;

    int pollCount = 0;
    bool wasToldOfEvent = false; ///< the test has read flags that are not 0
    Showing showing = Showing::nothing;
    ostra::AbstractWidgetWrapper *wrapper = nullptr; ///< while it is executed
    int dialogResult = -1;
    QElapsedTimer sinceDialogEnded; ///< from the return of the wrapper's exec on
    std::vector<std::string> messageKeys;

private:
    void poll();
    void show(ostra::InputRequest &request);
    void ask(ostra::InputRequest &request, Showing kind, std::uint32_t answer);

    struct Sink final : ostra::MessageSink {
        explicit Sink(PollingHost &owner) : owner_(owner) {}
        void addMessage(std::string text, std::uint32_t, std::uint32_t) override { owner_.messageKeys.push_back(text); }
        PollingHost &owner_;
    };
    struct Reporter final : ostra::ProgressReporter {
        explicit Reporter(PollingHost &owner) : owner_(owner) {}
        void report(std::uint32_t, std::string) override {}
        void requestInput(ostra::InputRequest *request) override { owner_.show(*request); }
        void reserved3() override {}
        bool canReceiveInput() override { return true; }
        PollingHost &owner_;
    };
    struct Events final : ostra::EventSource {
        explicit Events(PollingHost &owner) : owner_(owner) {}
        std::uint32_t pendingEvents() override;
        PollingHost &owner_;
    };

    ostra::SystemComponent *component_;
    Sink sink_{*this};
    Reporter reporter_{*this};
    Events events_{*this};
};

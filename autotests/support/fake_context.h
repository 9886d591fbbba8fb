// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/test_context.h"

#include <string>
#include <vector>

/// A host's side of one test run: every service is there and records its calls as text, in order.
class FakeContext final : public ostra::TestContext {
public:
    ostra::SystemComponent *component() override { return component_; }
    ostra::MessageSink *messages() override { return hasServices ? &sink_ : nullptr; }
    ostra::ProgressReporter *reporter() override { return hasServices ? &reporter_ : nullptr; }
    void reserved4() override {}
    bool continueOnOutcome() override { return false; }
    ostra::EventSource *events() override { return hasServices ? &events_ : nullptr; }

    bool hasServices = true;
    std::vector<std::string> calls; ///< "message TEXT LEVEL RESERVED", "report PERCENT TEXT", "input", "events"

private:
    class Sink final : public ostra::MessageSink {
    public:
        explicit Sink(FakeContext &owner) : owner_(owner) {}
        void addMessage(std::string text, std::uint32_t level, std::uint32_t reserved) override
        {
            owner_.calls.push_back("message " + text + " " + std::to_string(level) + " " + std::to_string(reserved));
        }

    private:
        FakeContext &owner_;
    };

    class Reporter final : public ostra::ProgressReporter {
    public:
        explicit Reporter(FakeContext &owner) : owner_(owner) {}
        void report(std::uint32_t percent, std::string text) override
        {
            owner_.calls.push_back("report " + std::to_string(percent) + " " + text);
        }
        void requestInput(ostra::InputRequest * /*request*/) override { owner_.calls.emplace_back("input"); }
        void reserved3() override {}
        bool canReceiveInput() override { return true; }

    private:
        FakeContext &owner_;
    };

    class Events final : public ostra::EventSource {
    public:
        explicit Events(FakeContext &owner) : owner_(owner) {}
        std::uint32_t pendingEvents() override
        {
            owner_.calls.emplace_back("events");
            return 0;
        }

    private:
        FakeContext &owner_;
    };

    ostra::SystemComponent *component_ = nullptr;
    Sink sink_{*this};
    Reporter reporter_{*this};
    Events events_{*this};
};

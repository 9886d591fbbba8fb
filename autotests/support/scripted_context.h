// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/input_request.h"
#include "contract/test_context.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A host's side of test runs that answers as it is told and notes every call of its services, in order:
/// "report PERCENT TEXT", "message TEXT LEVEL RESERVED", "events", "can receive input" and, for a request,
/// "input TITLE|TEXT|OPTIONS|plain or widget|ANSWER EXTRA CHOICES".
class ScriptedContext final : public ostra::TestContext {
public:
    explicit ScriptedContext(ostra::SystemComponent *component) : component_(component) {}

    ostra::SystemComponent *component() override { return service("component", component_); }
    ostra::MessageSink *messages() override { return service("messages", &sink_); }
    ostra::ProgressReporter *reporter() override { return service("reporter", &reporter_); }
    void reserved4() override { note("reserved 4"); }
    bool continueOnOutcome() override { return note("wants stop"), wantsStop; }
    ostra::EventSource *events() override { return service("event source", &events_); }

    bool notesServices = false;         ///< also the questions for "component", "messages", "reporter", "event source"
    std::string missing;                ///< service that is null
    std::vector<std::uint32_t> pending; ///< answers of the event source in turn; then 0 for ever
    std::uint32_t answer = 0;           ///< to requests without a widget
    bool canReceiveInput = true;
    bool wantsStop = false;
    std::optional<std::size_t> throwingCall;             ///< number of the noted call that throws, from 0
    std::string throwsAt;                                ///< calls that begin so throw as well; empty: none
    std::function<void()> fail;                          ///< throws in its own way; empty: a std::runtime_error
    std::function<void(ostra::InputRequest &)> onWidget; ///< shows a request that has a widget

    std::vector<std::string> calls;

private:
    class Sink final : public ostra::MessageSink {
    public:
        explicit Sink(ScriptedContext &owner) : owner_(owner) {}
        void addMessage(std::string text, std::uint32_t level, std::uint32_t reserved) override;

    private:
        ScriptedContext &owner_;
    };

    class Reporter final : public ostra::ProgressReporter {
    public:
        explicit Reporter(ScriptedContext &owner) : owner_(owner) {}
        void report(std::uint32_t percent, std::string text) override;
        void requestInput(ostra::InputRequest *request) override;
        void reserved3() override { owner_.note("reserved 3"); }
        bool canReceiveInput() override { return owner_.note("can receive input"), owner_.canReceiveInput; }

    private:
        ScriptedContext &owner_;
    };

    class Events final : public ostra::EventSource {
    public:
        explicit Events(ScriptedContext &owner) : owner_(owner) {}
        std::uint32_t pendingEvents() override;

    private:
        ScriptedContext &owner_;
    };

    template <class Service>
    Service *service(const std::string &name, Service *object)
    {
        if (notesServices)
            note(name);
        return missing == name ? nullptr : object;
    }
    void note(const std::string &call);

    ostra::SystemComponent *component_;
    Sink sink_{*this};
    Reporter reporter_{*this};
    Events events_{*this};
};

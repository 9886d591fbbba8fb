// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/input_request.h"
#include "contract/system_component.h"
#include "contract/test_context.h"
#include "tests/audio_widget_wrapper.h"
#include "views/interaction_dialog.h"

#include <QApplication>
#include <QByteArrayList>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

/// A host that runs the microphone dialog and keeps every call made to it, in order, except those made while it runs a dialog:
/// "events", "can receive", "stop?", "report 100 KEY", "message KEY LEVEL RESERVED", "dialog TITLE|TEXT OPTIONS",
/// "question TITLE|TEXT OPTIONS".
class MicrophoneHost final : public ostra::TestContext {
public:
    ostra::SystemComponent *component() override { return device; }
    ostra::MessageSink *messages() override { return hasMessages ? &sink_ : nullptr; }
    ostra::ProgressReporter *reporter() override { return hasReporter ? &reporter_ : nullptr; }
    void reserved4() override {}
    bool continueOnOutcome() override
    {
        note("stop?");
        return wantsToStop;
    }
    ostra::EventSource *events() override { return hasEvents ? &events_ : nullptr; }

    ostra::SystemComponent *device = nullptr;
    bool hasMessages = true;
    bool hasReporter = true;
    bool hasEvents = true;
    bool canReceive = true;
    bool wantsToStop = false;
    bool runsDialogs = true;
    std::uint32_t flags = 0;
    std::uint32_t answer = 0;
    /// What happens in the dialog's loop, once it runs.
    std::function<void(ostra::InteractionDialog &)> action;
    /// Before each dialog or question is shown and after it.
    std::function<void()> aroundRequests = [] {};
    QByteArrayList calls;
    int outcomeOfDialog = -1;

    static ostra::InteractionDialog *dialog()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *found = qobject_cast<ostra::InteractionDialog *>(widget))
                return found;
        }
        return nullptr;
    }

private:
    void note(const std::string &call)
    {
        if (!isInDialog_)
            calls << QByteArray::fromStdString(call);
    }

    void run(ostra::InputRequest &request)
    {
        const std::string options = std::to_string(request.firstOption) + ' ' + std::to_string(request.secondOption) + ' ' +
                                    std::to_string(request.thirdOption);
        const char *kind = request.widget != nullptr ? "dialog " : "question ";
        note(kind + request.title + '|' + request.text + ' ' + options);
        isInDialog_ = true;
        aroundRequests();
        if (request.widget == nullptr)
            request.answer = answer;
        else if (runsDialogs)
            runDialog(*request.widget);
        aroundRequests();
        isInDialog_ = false;
    }

    void runDialog(ostra::AbstractWidgetWrapper &wrapper)
    {
        QTimer::singleShot(0, &owner_, [this] {
            if (action)
                action(*dialog());
        });
        outcomeOfDialog = wrapper.exec(nullptr, nullptr);
    }

    struct Sink final : ostra::MessageSink {
        explicit Sink(MicrophoneHost &owner) : owner_(owner) {}
        void addMessage(std::string text, std::uint32_t level, std::uint32_t reserved) override
        {
            owner_.note("message " + text + ' ' + std::to_string(level) + ' ' + std::to_string(reserved));
        }
        MicrophoneHost &owner_;
    };

    struct Reporter final : ostra::ProgressReporter {
        explicit Reporter(MicrophoneHost &owner) : owner_(owner) {}
        void report(std::uint32_t percent, std::string text) override
        {
            owner_.note("report " + std::to_string(percent) + ' ' + text);
        }
        void requestInput(ostra::InputRequest *request) override { owner_.run(*request); }
        void reserved3() override {}
        bool canReceiveInput() override
        {
            owner_.note("can receive");
            return owner_.canReceive;
        }
        MicrophoneHost &owner_;
    };

    struct Events final : ostra::EventSource {
        explicit Events(MicrophoneHost &owner) : owner_(owner) {}
        std::uint32_t pendingEvents() override
        {
            owner_.note("events");
            return owner_.flags;
        }
        MicrophoneHost &owner_;
    };

    QObject owner_; // of the timers
    bool isInDialog_ = false;
    Sink sink_{*this};
    Reporter reporter_{*this};
    Events events_{*this};
};

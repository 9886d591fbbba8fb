// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/test_context.h"
#include "host/core/run_record.h"

#include <QMutex>
#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <string>

namespace host {

class Prompter;

/// This host's side of one run: what a test gets to ask, to tell and to watch for.
///
/// Made on the GUI thread, where it keeps its prompts and emits its signals. The services of the contract may be called on any
/// thread; a request that comes from another one waits for the GUI thread, whose event loop must run then.
class RunContext final : public QObject,
                         public ostra::TestContext,
                         public ostra::MessageSink,
                         public ostra::ProgressReporter,
                         public ostra::EventSource {
    Q_OBJECT

public:
    /// `component` may be null. It and `prompter` must outlive the context.
    RunContext(ostra::SystemComponent *component, Prompter &prompter, QObject *parent = nullptr);
    ~RunContext() override;

    /// Raises events of the machine; they stay raised for the rest of the run. Any thread, also from a signal's relay.
    void raiseEvents(std::uint32_t bits) noexcept { pendingEvents_.fetch_or(bits); }
    /// The user wants the run to end. Open prompts close without an answer. GUI thread.
    void stop();
    bool isStopped() const noexcept { return isStopped_.load(); }

    /// Writes progress, messages and the outcome of a run that returned `moduleCode`. A stopped run is never anything but "not
    /// completed", whatever the module made of it.
    void complete(std::uint32_t moduleCode, RunRecord &record) const;

    ostra::SystemComponent *component() override { return component_; }
    ostra::MessageSink *messages() override { return this; }
    ostra::ProgressReporter *reporter() override { return this; }
    void reserved4() override {}
    bool continueOnOutcome() override { return isStopped(); }
    ostra::EventSource *events() override { return this; }

    void addMessage(std::string text, std::uint32_t level, std::uint32_t reserved) override;
    void report(std::uint32_t percent, std::string text) override;
    void requestInput(ostra::InputRequest *request) override;
    void reserved3() override {}
    bool canReceiveInput() override;
    std::uint32_t pendingEvents() override { return pendingEvents_.load(); }

signals:
    /// Emitted on the thread that reports; the text is a key, a composite of keys, or empty.
    void progressed(std::uint32_t percent, const QString &text);
    void messageAdded(const QString &text, std::uint32_t level);

private:
    void answer(ostra::InputRequest &request);

    ostra::SystemComponent *component_;
    Prompter &prompter_;
    std::atomic<std::uint32_t> pendingEvents_ = 0;
    std::atomic<bool> isStopped_ = false;
    mutable QMutex mutex_; // guards the two lists
    QList<RunProgress> progress_;
    QList<RunMessage> messages_;
};

} // namespace host

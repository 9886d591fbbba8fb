// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "slot_table.h"

#include "contract/sal.h"
#include "contract/style_manager.h"
#include "contract/test_context.h"

#include <cstdint>
#include <string>
#include <vector>

/// Probes and plain tables of the classes that the host implements; see module_probes.h.
namespace boundary {

inline const std::string longAnswer = "an answer that is longer than what a string keeps inside itself";

struct ContextTable {
    Destructor destroy;
    Destructor destroyAndFree;
    ostra::SystemComponent *(*component)(void *);
    ostra::MessageSink *(*messages)(void *);
    ostra::ProgressReporter *(*reporter)(void *);
    void (*reserved4)(void *);
    bool (*continueOnOutcome)(void *);
    ostra::EventSource *(*events)(void *);
};

class ContextProbe final : public Probe<ostra::TestContext> {
public:
    explicit ContextProbe(CallRecord &record) : Probe(record) {}
    ostra::SystemComponent *component() override { return record().note("component"), addressOf<ostra::SystemComponent>(1); }
    ostra::MessageSink *messages() override { return record().note("messages"), addressOf<ostra::MessageSink>(2); }
    ostra::ProgressReporter *reporter() override { return record().note("reporter"), addressOf<ostra::ProgressReporter>(3); }
    void reserved4() override { record().note("reserved4"); }
    bool continueOnOutcome() override { return record().note("continueOnOutcome"), true; }
    ostra::EventSource *events() override { return record().note("events"), addressOf<ostra::EventSource>(6); }
};

struct SinkTable {
    Destructor destroy;
    Destructor destroyAndFree;
    void (*addMessage)(void *, std::string, std::uint32_t, std::uint32_t);
};

class SinkProbe final : public Probe<ostra::MessageSink> {
public:
    explicit SinkProbe(CallRecord &record) : Probe(record) {}
    void addMessage(std::string text, std::uint32_t level, std::uint32_t reserved) override
    {
        record().note("addMessage", text, level, reserved);
    }
};

struct ReporterTable {
    Destructor destroy;
    Destructor destroyAndFree;
    void (*report)(void *, std::uint32_t, std::string);
    void (*requestInput)(void *, ostra::InputRequest *);
    void (*reserved3)(void *);
    bool (*canReceiveInput)(void *);
};

class ReporterProbe final : public Probe<ostra::ProgressReporter> {
public:
    explicit ReporterProbe(CallRecord &record) : Probe(record) {}
    void report(std::uint32_t percent, std::string text) override { record().note("report", percent, text); }
    void requestInput(ostra::InputRequest *request) override { record().note("requestInput", request); }
    void reserved3() override { record().note("reserved3"); }
    bool canReceiveInput() override { return record().note("canReceiveInput"), true; }
};

struct EventsTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::uint32_t (*pendingEvents)(void *);
};

class EventsProbe final : public Probe<ostra::EventSource> {
public:
    explicit EventsProbe(CallRecord &record) : Probe(record) {}
    std::uint32_t pendingEvents() override { return record().note("pendingEvents"), 0xF0000001U; }
};

struct CimTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::int32_t (*query)(void *, std::vector<sal::CimRow> &, const std::string &, const std::string &, std::uint32_t,
                          const char *const *, const std::string &);
};

class CimProbe final : public Probe<sal::Cim> {
public:
    explicit CimProbe(CallRecord &record) : Probe(record) {}
    std::int32_t query(std::vector<sal::CimRow> &rows, const std::string &condition, const std::string &className,
                       std::uint32_t propertyCount, const char *const *propertyNames, const std::string &nameSpace) override
    {
        const char *last = propertyNames[propertyCount - 1];
        record().note("query", rows.size(), condition, className, propertyCount, propertyNames[0], last, nameSpace);
        rows.push_back({longAnswer, std::nullopt});
        return -1;
    }
};

struct NumberHandlerTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::string (*toText)(void *, std::int64_t);
};

class NumberHandlerProbe final : public Probe<sal::NumberHandler> {
public:
    explicit NumberHandlerProbe(CallRecord &record) : Probe(record) {}
    std::string toText(std::int64_t number) override { return record().note("toText", number), longAnswer; }
};

struct TimerTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::uint64_t (*ticks)(void *);
};

class TimerProbe final : public Probe<sal::Timer> {
public:
    explicit TimerProbe(CallRecord &record) : Probe(record) {}
    std::uint64_t ticks() override { return record().note("ticks"), 0x1122334455667701U; }
};

struct LoaderTable {
    Destructor destroy;
    Destructor destroyAndFree;
    void *(*load)(void *, const std::string &, std::uint32_t);
    void (*release)(void *, void *);
};

class LoaderProbe final : public Probe<sal::ModuleLoader> {
public:
    explicit LoaderProbe(CallRecord &record) : Probe(record) {}
    void *load(const std::string &fileName, std::uint32_t flag) override
    {
        record().note("load", fileName, flag);
        return addressOf<void>(1);
    }
    void release(void *handle) override { record().note("release", handle); }
};

struct TextTable {
    Destructor destroy;
    Destructor destroyAndFree;
    std::string (*text)(const void *);
};

class TemporaryPathProbe final : public Probe<sal::TemporaryPath> {
public:
    explicit TemporaryPathProbe(CallRecord &record) : Probe(record) {}
    std::string path() override { return record().note("path"), longAnswer; }
};

class StyleManagerProbe final : public Probe<ostra::utils::style_manager::StyleManager> {
public:
    explicit StyleManagerProbe(CallRecord &record) : Probe(record) {}
    std::string Stylesheet() const override { return record().note("Stylesheet"), longAnswer; }
};

} // namespace boundary

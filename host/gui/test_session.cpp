// SPDX-License-Identifier: Apache-2.0
#include "host/gui/test_session.h"

#include "contract/module_interface.h"
#include "contract/result_codes.h"
#include "host/core/run_context.h"
#include "host/core/run_reason.h"
#include "host/core/verdict.h"
#include "host/gui/microphone_watch.h"
#include "host/precheck/machine.h"

#include <QScopeGuard>

#include <utility>

namespace host {

namespace {

QList<OfferedTest> offeredTests(const ostra::ModuleInterface &module)
{
    QList<OfferedTest> offered;
    const Catalogue catalogue = readCatalogue(module);
    for (const CatalogueDiagnostic &diagnostic : catalogue) {
        for (const CatalogueTest &test : diagnostic.tests) {
            const auto &names = test.names.commandLineNames;
            offered.append({test.id, names.empty() ? QString() : QString::fromStdString(names.front()),
                            QString::fromStdString(test.names.nameKey), QString::fromStdString(test.names.descriptionKey)});
        }
    }
    return offered;
}

} // namespace

TestSession::TestSession(ostra::ModuleInterface &module, Prompter &prompter, const QString &stateFolder, QObject *parent)
    : QObject(parent), module_(module), prompter_(prompter), stateFolder_(stateFolder), guardian_(stateFolder),
      tests_(offeredTests(module))
{
    quiet_.setSingleShot(true);
    quiet_.setInterval(quietTime);
    connect(&quiet_, &QTimer::timeout, this, &TestSession::refresh);
}

TestSession::~TestSession() = default;

qsizetype TestSession::findTest(const QString &letter) const
{
    for (qsizetype index = 0; index < tests_.size(); ++index) {
        if (tests_[index].letter == letter)
            return index;
    }
    return -1;
}

void TestSession::refresh()
{
    quiet_.stop();
    ostra::SystemComponentManager *manager = module_.componentManager();
    isRefreshDue_ = isRunning();
    if (isRefreshDue_ || manager == nullptr)
        return;
    emit devicesAboutToBeRead();
    emit devicesRead(devices_.refresh(*manager));
}

void TestSession::refreshWhenQuiet() { quiet_.start(); }

std::optional<RunRecord> TestSession::run(qsizetype test, qsizetype device, const QString &language,
                                          const std::function<void(RunRecord &)> &finish)
{
    ostra::Test *const chosen = testAt(test);
    ostra::SystemComponent *const component = componentAt(device);
    if (isRunning() || chosen == nullptr || component == nullptr)
        return std::nullopt;
    RunRecord record = begin(test, device, language);
    RunContext context(component, prompter_);
    context_ = &context;
    const auto over = qScopeGuard([this] { context_ = nullptr; });
    emit runStarted(record);
    perform(*chosen, context, record);
    record.restoredVolumes = std::exchange(leftovers_, {}) + guardian_.finish();
    if (!guardian_.errorText().isEmpty() && record.volumeComplaint.isEmpty())
        complainOfVolumes(record);
    record.endedUtc = QDateTime::currentDateTimeUtc();
    const EndpointLook after = lookAtEndpoints();
    tellOfLostDevice(record, after);
    if (finish)
        finish(record);
    noteVolumes(record, before_, after);
    context_ = nullptr;
    end(record);
    return record;
}

QStringList TestSession::restoreLeftovers()
{
    leftovers_ = guardian_.restoreLeftovers();
    return leftovers_;
}

std::optional<RunRecord> TestSession::refuse(qsizetype test, qsizetype device, const QString &language, const QString &reason,
                                             const std::function<void(RunRecord &)> &finish)
{
    if (isRunning() || testAt(test) == nullptr || componentAt(device) == nullptr)
        return std::nullopt;
    RunRecord record = begin(test, device, language);
    record.endedUtc = record.startedUtc;
    record.wasModuleCalled = false;
    record.restoredVolumes = std::exchange(leftovers_, {});
    record.code = ostra::result::cannotBePerformed;
    record.reason = reason;
    if (finish)
        finish(record);
    noteVolumes(record, lookAtEndpoints());
    end(record);
    return record;
}

// A folder that cannot be used keeps nobody from a run either.
std::unique_ptr<VolumeLock> TestSession::holdVolumes(QString &reason) const
{
    auto lock = std::make_unique<VolumeLock>(stateFolder_);
    if (lock->take() || !lock->isHeldByAnother())
        return lock;
    reason = lock->errorText();
    return nullptr;
}

void TestSession::complainOfVolumes(RunRecord &record)
{
    record.volumeComplaint = guardian_.errorText();
    emit volumesUnprotected(record.volumeComplaint);
}

// Before anybody else explains the end by what followed from it.
void TestSession::tellOfLostDevice(RunRecord &record, const EndpointLook &after) const
{
    const Verdict verdict = verdictOf(record);
    const bool isOpen = verdict == Verdict::notCompleted || verdict == Verdict::cannotBePerformed;
    if (isOpen && record.wasModuleCalled && record.reason.isEmpty() && hasGone(record.device.name, before_, after))
        record.reason = reasonWords("REASON_DEVICE_GONE", {record.device.name});
}

void TestSession::perform(ostra::Test &test, RunContext &context, RunRecord &record)
{
    connect(&context, &RunContext::progressed, this, &TestSession::progressed);
    connect(&context, &RunContext::messageAdded, this, &TestSession::messageAdded);
    if (!guardian_.start())
        complainOfVolumes(record);
    before_ = lookAtEndpoints(); // what an earlier run had left raised is back where it was
    if (guardian_.isHeldByAnother()) {
        record.wasModuleCalled = false;
        record.reason = record.volumeComplaint;
        return;
    }
    schedule(context);
    const MicrophoneWatch microphone;
    context.complete(test.run(&context), record);
    record.microphone = microphone.name();
}

// The context is the timers' receiver: what is due after the end of the run does not happen.
void TestSession::schedule(RunContext &context)
{
    for (const auto &[bit, moment] : schedule_.events)
        QTimer::singleShot(moment, &context, [this, bit = bit] { raiseEvent(bit); });
    if (schedule_.stopAfter)
        QTimer::singleShot(*schedule_.stopAfter, &context, [this] { stop(); });
}

void TestSession::end(const RunRecord &record)
{
    history_.append(record);
    emit runEnded(record);
    if (isRefreshDue_)
        refresh();
}

void TestSession::setPreparing(bool isPreparing)
{
    isPreparing_ = isPreparing;
    emit preparing(isPreparing);
}

void TestSession::stop()
{
    if (isPreparing_)
        emit stopRequested();
    if (context_ == nullptr || context_->isStopped())
        return;
    emit stopRequested();
    context_->stop();
}

void TestSession::raiseEvent(int bit)
{
    constexpr int bitCount = 32;
    if (context_ == nullptr || bit < 0 || bit >= bitCount)
        return;
    context_->raiseEvents(std::uint32_t{1} << static_cast<unsigned>(bit));
    emit eventRaised(bit);
}

// The list leaves out what the module lists without an object, so positions are counted as the list counts.
ostra::SystemComponent *TestSession::componentAt(qsizetype device) const
{
    const ostra::SystemComponentManager *manager = module_.componentManager();
    if (manager == nullptr || device < 0)
        return nullptr;
    for (std::uint32_t index = 0; index < manager->componentCount(); ++index) {
        ostra::SystemComponent *const component = manager->componentAt(index);
        if (component != nullptr && device-- == 0)
            return component;
    }
    return nullptr;
}

ostra::Test *TestSession::testAt(qsizetype test) const
{
    if (test < 0 || test >= tests_.size())
        return nullptr;
    for (std::uint32_t index = 0; index < module_.diagnosticCount(); ++index) {
        const ostra::Diagnostic *diagnostic = module_.diagnosticAt(index);
        if (ostra::Test *const found = diagnostic != nullptr ? diagnostic->findTest(tests_[test].id) : nullptr)
            return found;
    }
    return nullptr;
}

RunRecord TestSession::begin(qsizetype test, qsizetype device, const QString &language)
{
    RunRecord record;
    record.testLetter = tests_[test].letter;
    record.testNameKey = tests_[test].nameKey;
    record.device = devices_.devices().value(device);
    record.language = language;
    if (const auto check = channels_.constFind(record.device.name); check != channels_.constEnd())
        record.channels = *check;
    record.machine = machine();
    record.startedUtc = QDateTime::currentDateTimeUtc();
    return record;
}

const Machine &TestSession::machine()
{
    if (!machine_)
        machine_ = readMachine();
    machine_->moduleVersion = moduleVersion_;
    return *machine_;
}

} // namespace host

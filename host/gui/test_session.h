// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/catalogue.h"
#include "host/core/device_list.h"
#include "host/core/run_record.h"
#include "host/guardian/guardian_client.h"
#include "host/guardian/volume_lock.h"
#include "host/precheck/endpoint_look.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace ostra {
class ModuleInterface;
class SystemComponent;
class Test;
} // namespace ostra

namespace host {

class Prompter;
class RunContext;

/// One test as the windows offer it.
struct OfferedTest {
    ostra::EntityId id;
    QString letter; ///< such as "p"
    QString nameKey;
    QString descriptionKey;
};

/// What shall happen by itself during each run, counted from its start.
struct RunSchedule {
    QList<QPair<int, std::chrono::milliseconds>> events; ///< bit and moment
    std::optional<std::chrono::milliseconds> stopAfter;
};

/// The module's devices and tests, and the runs since the start. One run at a time, on the GUI thread, where all of it lives:
/// `run` returns when the test is over, and meanwhile the loops of the test's dialogs keep the program alive.
class TestSession : public QObject {
    Q_OBJECT

public:
    /// Quiet time after which a change of the machine's devices is read: plugging one in makes several.
    static constexpr std::chrono::milliseconds quietTime{1000};

    /// `module` and `prompter` must outlive the session. `stateFolder` holds the note of the volumes.
    TestSession(ostra::ModuleInterface &module, Prompter &prompter, const QString &stateFolder, QObject *parent = nullptr);
    ~TestSession() override;

    const QList<OfferedTest> &tests() const noexcept { return tests_; }
    /// Position of the test of that letter; -1 when there is none.
    qsizetype findTest(const QString &letter) const;

    const DeviceList &deviceList() const noexcept { return devices_; }
    /// Lists the devices anew, after the end of the run when one is under way: its device must stay.
    void refresh();
    /// The same once nothing has called this for `quietTime`.
    void refreshWhenQuiet();

    /// Also while a run is prepared.
    bool isRunning() const noexcept { return context_ != nullptr || isPreparing_; }
    /// Something happens with a device before its run: until the run, or its refusal, no other one begins, and the list stays
    /// as it is. `stop` ends it by `stopRequested`.
    void setPreparing(bool isPreparing);
    /// Runs a test on a device, both by position, and returns what happened. `language` goes into the record; `finish` may add
    /// to it before anybody sees it. Nothing while a run is under way or for a position that does not exist.
    std::optional<RunRecord> run(qsizetype test, qsizetype device, const QString &language,
                                 const std::function<void(RunRecord &)> &finish = {});
    /// Notes a run that must not take place, with the result 3 and `reason`, as if it had ended. Nothing while a run is under
    /// way or for a position that does not exist.
    std::optional<RunRecord> refuse(qsizetype test, qsizetype device, const QString &language, const QString &reason,
                                    const std::function<void(RunRecord &)> &finish = {});
    /// Whatever plays without being a run holds this meanwhile: another host that listens would take it for its device's. Null
    /// with `reason` while another host has a run under way. To be given up before `run`.
    std::unique_ptr<VolumeLock> holdVolumes(QString &reason) const;
    /// Notes what a check of a device's channels came to: later runs on the device of that name have it in their records.
    void noteChannels(const QString &device, const ChannelCheck &check) { channels_.insert(device, check); }
    /// Ends the run under way as soon as the test asks.
    void stop();
    /// Raises one event bit in the run under way.
    void raiseEvent(int bit);

    /// Goes into the records.
    void setModuleVersion(const QString &version) { moduleVersion_ = version; }
    void setSchedule(const RunSchedule &schedule) { schedule_ = schedule; }
    const QList<RunRecord> &history() const noexcept { return history_; }

    /// Puts back what an interrupted run of an earlier process left behind.
    /// The first run's record names these as well.
    QStringList restoreLeftovers();
    /// What that left alone, because somebody has set another volume since.
    const QStringList &leftAlone() const noexcept { return guardian_.leftAlone(); }
    /// Why it could not put back; empty otherwise.
    const QString &leftoverProblem() const noexcept { return guardian_.errorText(); }

signals:
    void devicesAboutToBeRead();
    /// False: memory ran out, the list has the devices read before.
    void devicesRead(bool isComplete);
    void preparing(bool isPreparing);
    void runStarted(const host::RunRecord &record);
    void progressed(std::uint32_t percent, const QString &text);
    void messageAdded(const QString &text, std::uint32_t level);
    void stopRequested();
    void eventRaised(int bit);
    /// What the guardian of the volumes could not do. A run that another one's guardian kept from starting is not completed.
    void volumesUnprotected(const QString &reason);
    void runEnded(const host::RunRecord &record);

private:
    ostra::SystemComponent *componentAt(qsizetype device) const;
    ostra::Test *testAt(qsizetype test) const;
    RunRecord begin(qsizetype test, qsizetype device, const QString &language);
    const Machine &machine();
    void perform(ostra::Test &test, RunContext &context, RunRecord &record);
    void complainOfVolumes(RunRecord &record);
    void tellOfLostDevice(RunRecord &record, const EndpointLook &after) const;
    void schedule(RunContext &context);
    void end(const RunRecord &record);

    ostra::ModuleInterface &module_;
    Prompter &prompter_;
    QString stateFolder_;
    GuardianClient guardian_;
    QList<OfferedTest> tests_;
    DeviceList devices_;
    QTimer quiet_;
    RunSchedule schedule_;
    RunContext *context_ = nullptr; // of the run under way
    bool isPreparing_ = false;
    bool isRefreshDue_ = false;
    QStringList leftovers_; ///< put back, and in no record yet
    QList<RunRecord> history_;
    QHash<QString, ChannelCheck> channels_;
    EndpointLook before_; // of the run under way, when nothing was raised yet
    QString moduleVersion_;
    std::optional<Machine> machine_; // once it was asked for
};

} // namespace host

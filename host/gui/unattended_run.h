// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/options.h"

#include <QObject>

#include <functional>
#include <utility>

namespace host {

class MainWindow;
struct MeteredMoment;
struct OperatorSettings;

/// One test on one device with the operator in the person's place.
class UnattendedRun {
public:
    UnattendedRun(TestSession &session, const Options &options, QString language);

    /// False with a line for the user when the session has no such test or device, or the machine no such source. What is there
    /// and may not be used makes a run that is refused. After the first refresh.
    bool prepare(QString &problem);
    qsizetype test() const noexcept { return test_; }
    qsizetype device() const noexcept { return device_; }

    /// What is heard goes there, ten times a second.
    void setMeter(std::function<void(const MeteredMoment &)> meter) { meter_ = std::move(meter); }

    /// Runs it, writes the reports and last the verdict's file, prints verdict and digits on standard output, and returns the
    /// program's exit code.
    int run();
    /// Runs it without a word on standard output, and without reports.
    std::optional<RunRecord> perform();

private:
    QString deviceName() const; ///< once it is known
    QStringList deviceNames() const;
    bool isMicrophoneTest() const;
    bool isRecording() const;
    QString whyNotBeforehand() const;
    std::optional<RunRecord> prepareEars();
    QString deadMicrophone() const;
    OperatorSettings operatorSettings() const;
    std::optional<RunRecord> unheard(const QString &reason);
    std::optional<RunRecord> stopped();
    std::optional<RunRecord> notCompleted(const QString &reason, bool wasStopped);
    RunRecord notTaken() const;
    bool checkChannels();
    void describe(RunRecord &record) const;
    bool writeReports(const RunRecord &record) const;
    bool clearVerdict() const;
    int writeVerdict(int exitCode) const; ///< the program's exit code

    TestSession &session_;
    Options options_;
    QString language_;
    std::function<void(const MeteredMoment &)> meter_;
    qsizetype test_ = -1;
    qsizetype device_ = -1;
    QString refusal_; ///< why the run cannot be performed, known beforehand
};

} // namespace host

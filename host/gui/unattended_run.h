// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/options.h"

#include <QObject>

namespace host {

class MainWindow;

/// One test on one device with the operator in the person's place.
class UnattendedRun {
public:
    UnattendedRun(TestSession &session, const Options &options, QString language);

    /// False with a line for the user when the session has no such test or device. After the first refresh.
    bool prepare(QString &problem);
    qsizetype test() const noexcept { return test_; }
    qsizetype device() const noexcept { return device_; }

    /// Runs it, writes the reports, prints verdict and digits on standard output, and returns the program's exit code.
    int run();

private:
    std::optional<RunRecord> perform();
    bool isRecording() const;
    RunRecord unheard(const QString &reason) const;
    bool writeReports(const RunRecord &record) const;

    TestSession &session_;
    Options options_;
    QString language_;
    qsizetype test_ = -1;
    qsizetype device_ = -1;
};

} // namespace host

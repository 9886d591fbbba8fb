// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <memory>

namespace host {

/// Turns Ctrl-C and a polite kill into a signal on the thread of this object, so that a run can end and give the volume back.
/// One at a time. The second Ctrl-C or kill ends the process at once.
class InterruptWatcher : public QObject {
    Q_OBJECT

public:
    static constexpr int interruptedExitCode = 130;
    static constexpr int terminatedExitCode = 143;

    explicit InterruptWatcher(QObject *parent = nullptr);
    ~InterruptWatcher() override; ///< the system's own handling is back

signals:
    void interrupted(int exitCode);

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace host

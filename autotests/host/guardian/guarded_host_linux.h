// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

#include <sys/types.h>

/// A host in the midst of a run, in a process group of its own as on a terminal, with its guardian.
class GuardedHost {
public:
    enum class Log {
        toFile,
        toNobody, ///< a pipe whose other side is closed
    };

    explicit GuardedHost(QString stateFolder, Log log = Log::toFile);
    ~GuardedHost();
    GuardedHost(const GuardedHost &) = delete;
    GuardedHost &operator=(const GuardedHost &) = delete;

    /// Its first line: "holding" when the volumes are raised.
    QString start();
    /// The normal end of the run: what the guardian put back, and the error's text.
    QString finish();

    /// A signal for the host alone, for its whole process group, and for its guardian.
    void kill(int signalNumber);
    void killGroup(int signalNumber);
    void killGuardian(int signalNumber);
    bool isRunning() const { return process_.state() != QProcess::NotRunning; }

    /// Whether a guardian holds the lock of the state folder and lives.
    static bool isGuarded(const QString &stateFolder);
    /// What the host and its guardian have logged.
    QByteArray log() const;

private:
    QString logPath() const;
    QString readLine();

    QString stateFolder_;
    QProcess process_;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>

/// The program of the bundle, run as the host runs it: its standard input stays open until told otherwise.
class ListenerProcess {
public:
    explicit ListenerProcess(const QStringList &arguments);
    ~ListenerProcess();

    QProcess &process() { return process_; }
    /// Waits for the next event of that name; the others are kept. Empty when the program ended or 30 s have passed.
    QJsonObject waitFor(const QString &event);
    /// The same for the next of several.
    QJsonObject waitForOneOf(const QStringList &events);
    /// Every event that was read.
    const QList<QJsonObject> &events() const { return events_; }
    int countOf(const QString &event) const;
    bool waitForEnd();

private:
    void readLines();

    QProcess process_;
    QList<QJsonObject> events_;
    qsizetype used_ = 0;
};

QStringList listeningArguments(const QString &source, const QString &language);

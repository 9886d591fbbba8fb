// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/operator/heard_log.h"
#include "host/operator/listener_line.h"

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace host {

/// The listener's process, found beside the running executable, and what it tells. GUI thread only.
class ListenerLink : public QObject {
    Q_OBJECT

public:
    explicit ListenerLink(QObject *parent = nullptr);
    ~ListenerLink() override; ///< closes the listener's input, which ends it

    /// Starts it without waiting for it.
    void launch(const QStringList &arguments);
    /// Starts it and waits until it captures, 30 s at most. False with `errorText()`.
    bool start(const QStringList &arguments);
    const QString &errorText() const { return errorText_; }

    bool isReady() const { return isReady_; }
    /// Channels that the source itself has, once it is ready; 0 when not known.
    int sourceChannelCount() const { return sourceChannelCount_; }
    /// The process has ended, or its source has vanished.
    bool isLost() const { return isLost_; }
    const HeardLog &log() const { return log_; }

signals:
    void metered(const host::MeteredMoment &moment);
    /// It has ended by itself, or its source has vanished; `errorText()` may say why.
    void lost();

private:
    void readLines();
    void take(const ListenerLine &line);
    void takeMoment(const MeteredMoment &moment);
    void noteEnd();
    void noteError();

    QProcess process_;
    HeardLog log_;
    bool isReady_ = false;
    int sourceChannelCount_ = 0;
    bool isLost_ = true;
    QString errorText_;
};

} // namespace host

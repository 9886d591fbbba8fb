// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>

#include <optional>

namespace host {

/// A process that speaks a clip through an output device, found beside the running executable. The device is opened first, so
/// that the clip begins at once when it is asked for. GUI thread only.
class SpeakerLink : public QObject {
    Q_OBJECT

public:
    /// \param channel "left" or "right": the clip on that front channel alone; empty: as it is
    SpeakerLink(const QString &device, const QString &clip, const QString &channel = {}, QObject *parent = nullptr);
    ~SpeakerLink() override; ///< ends it

    bool isReady() const { return isReady_; }
    /// It ended without having spoken; then `errorText()` says why.
    bool hasFailed() const { return hasFailed_; }
    /// All of it was spoken.
    bool hasFinished() const { return hasFinished_; }
    const QString &errorText() const { return errorText_; }

    void speak();
    /// Ends it at once, whatever it does: for one that has not answered in time.
    void kill();
    /// When it began, on the steady clock.
    std::optional<qint64> startedMs() const { return startedMs_; }

signals:
    /// One of the above is another.
    void changed();

private:
    void readLines();
    void noteEnd();

    QProcess process_;
    bool isReady_ = false;
    bool hasFailed_ = false;
    bool hasFinished_ = false;
    std::optional<qint64> startedMs_;
    QString errorText_;
};

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/e2e/loss/heartbeat.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace ostra {
class InteractionDialog;
}

/// Works the microphone dialog and notes what happens in it.
class MicrophonePerson : public QObject {
public:
    /// `playsBack`: the recording is cut short, so that the playback comes soon.
    MicrophonePerson(ostra::InteractionDialog &dialog, bool playsBack);

    void begin();
    /// Presses the header's close button.
    void close();

    int statusCount() const { return statusCount_; }
    long long statusMs() const { return statusMs_; }
    int lostCount() const { return lostCount_; }
    long long lostMs() const { return lostMs_; }
    /// When the recording was over and the last page came up; 0 before.
    long long playPageMs() const { return playPageMs_; }
    /// Until the button was pressed.
    long long longestSilenceMs() const { return heartbeat_.longestSilenceMs(); }
    long long endMs() const { return endMs_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cutRecordingShort();

    QPointer<ostra::InteractionDialog> dialog_;
    bool playsBack_;
    QPointer<QWidget> page_; ///< the one whose device is lost
    Heartbeat heartbeat_;
    long long playPageMs_ = 0;
    int statusCount_ = 0;
    long long statusMs_ = 0;
    int lostCount_ = 0;
    long long lostMs_ = 0;
    long long endMs_ = 0;
};

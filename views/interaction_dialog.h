// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audio/audio_recording.h"
#include "tests/dialog/input_dialog.h"
#include "views/header_drag.h"

#include <QString>
#include <QTimer>

#include <memory>

namespace Ui {
class InteractionDialog;
}

namespace ostra {

class EventSource;
class PlayAudio;
class RecordAudio;
class SelectDevice;

/// Results of the microphone dialog. A close by a program or by the host's watcher leaves it at `none`.
namespace dialog_result {

constexpr int none = 0;      ///< nobody on this side ended it
constexpr int heard = 1;     ///< recorded and played to the end
constexpr int cancelled = 2; ///< the user cancelled, or an event did
constexpr int closed = 5;    ///< the user closed the window, a device vanished, or a worker failed

} // namespace dialog_result

/// The dialog of the microphone test: choose a microphone, record, play back. Run once, by `exec`, whose answer is one of
/// `dialog_result`. However it ends, a recording or playback is stopped then and its device closed. GUI thread only.
class InteractionDialog : public InputDialog {
    Q_OBJECT

public:
    /// `outputDeviceName` is the device that the recording is played on. `parent` is deliberately not used. `eventFilter` is
    /// installed on the dialog; it and `events`, which is asked until the dialog is destroyed, stay the caller's. All three
    /// may be null.
    InteractionDialog(const QString &outputDeviceName, QWidget *parent, QObject *eventFilter, EventSource *events);
    /// Stops what still runs; waits for that as `TimedJob::stop` does.
    ~InteractionDialog() override;

    /// Whether a device was gone when it was needed.
    bool isDeviceDisconnected() const noexcept { return isDeviceDisconnected_; }
    /// Whether a recording or playback failed.
    bool isAborted() const noexcept { return isAborted_; }

    /// The first call ends the dialog, with its flags as they are then; later ones do nothing.
    void done(int result) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The dialog has finished: what its pages do has to stop.
    void closing();

public slots:
    void Close();
    void Cancel();
    void Abort();
    void AbortDeviceDisconnected();
    void CheckSystemEvent();
    void Finish();
    void goToNextWidget();
    void CheckMicrophoneConnection(int index);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void prepareHeader();
    void prepareWindow();
    void connectPages();
    void connectJobSignals(QObject *page, const char *nextSlot);
    void stopJobs();
    bool isCancelledByEvent() const;
    template <typename Body>
    void guard(Body body) noexcept;

    std::unique_ptr<Ui::InteractionDialog> ui_;
    QTimer systemEventTimer_;
    std::shared_ptr<audio::RecordingSlot> recording_;
    SelectDevice *selectDevice_; // a child from the start, later of the stacked widget, like the two others
    RecordAudio *recordAudio_;
    PlayAudio *playAudio_;
    EventSource *events_;
    std::unique_ptr<HeaderDrag> drag_;
    bool isDeviceDisconnected_ = false;
    bool isAborted_ = false;
    static constexpr int noPage = -1;
    int checkedPage_ = noPage; ///< whose device is known to be there, while it comes up
    bool isReady_ = false; ///< constructed and not ended, so that events of the machine may close it
    bool hasEnded_ = false; ///< by a result of its own; a stop by the watcher is none
    bool isApplicationQuitting_ = false;
};

} // namespace ostra

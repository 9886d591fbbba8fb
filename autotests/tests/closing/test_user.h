// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/support/polling_host.h"
#include "autotests/views/fake_sound.h"

#include <QTimer>
#include <QWidget>

namespace ostra {
class AudioPlaybackTestView;
class InteractionDialog;
} // namespace ostra

/// A user who does what the two tests ask for as soon as it can be done, so that a run ends with a pass: the first sequence of
/// digits is answered wrongly, the second one, 0 1 2 as the first, rightly.
class TestUser {
public:
    TestUser(PollingHost &host, const FakeSound &sound);

    /// Does nothing more until told to go on.
    void stop() { timer_.stop(); }
    void goOn() { timer_.start(); }

    /// The dialog that is open and has not finished, of either test; null when there is none.
    static QWidget *openDialog();

private:
    void act();
    void act(ostra::InteractionDialog &dialog);
    void act(ostra::AudioPlaybackTestView &view);

    const PollingHost &host_;
    const FakeSound &sound_;
    int closedBefore_;
    int attempt_ = 0;
    QTimer timer_;
};

/// The ways in which a dialog comes to its end before the test has one.
enum class End { closeButton, escape, pageButton, event, watcher, hostClose, windowManager, quit };

/// Ends what the host shows in that way, and answers whether there was something to end. The button is "cancel" of the
/// microphone dialog's page, which may have to be pressed again, and "no sound heard" of the other dialog.
bool bringToAnEnd(End kind, PollingHost &host);

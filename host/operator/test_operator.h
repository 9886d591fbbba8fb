// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QObject>
#include <QString>

#include <memory>

namespace host {

struct MeteredMoment;

struct OperatorSettings {
    QString source;            ///< name of the capture source, as the listener lists it
    QString clipsFolder;       ///< folder of the language's ten clips, such as ".../audio_files/en_US"
    QString language;          ///< code such as "en_US"
    QString screenshotsFolder; ///< where the windows are photographed; empty for no pictures
    int mistypedSequences = 0; ///< for proofs: that many sequences get one wrong digit
    QString device;            ///< the tested device as people see it: it must be at full volume to be called silent
    QString sentence;          ///< for the microphone test: the clip to speak and to look for; empty for the playback test
    QString microphone;        ///< to choose in the dialog; empty for the one that it has chosen
    QString speakThrough;      ///< output that the microphone hears
    QString recordFile;        ///< what is heard is kept there; empty: no sound is kept
};

/// Takes the person's place: hears what the device plays through a listener of its own process and works the real dialogs with
/// mouse and key events. Knows the dialogs by their object names: the host's prompts ("host_prompt" with "host_prompt_accept"
/// and "host_prompt_decline", "host_question" with "host_question_yes" and "host_question_no") and the module's
/// ("AudioPlaybackTestWidget", "InteractionDialog"). GUI thread only; needs a running event loop.
class TestOperator : public QObject {
    Q_OBJECT

public:
    explicit TestOperator(OperatorSettings settings, QObject *parent = nullptr);
    ~TestOperator() override; ///< ends the listener

    /// Starts the listener and waits, bounded, until it captures. False with `errorText()` when it does not.
    bool start();
    const QString &errorText() const noexcept { return errorText_; }

    /// From here to `endRun` every dialog that appears is worked.
    void beginRun();
    /// Writes what was heard, typed and photographed, and the reason where there is no verdict, into `record`.
    void endRun(RunRecord &record);

signals:
    /// Level and waveform of what is heard, ten times a second in a microphone run.
    void metered(const host::MeteredMoment &moment);

private:
    struct Private;
    std::unique_ptr<Private> d_;
    QString errorText_;
};

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "host/operator/test_operator.h"

#include "host/operator/dialog_exit.h"
#include "host/operator/listener_link.h"
#include "host/operator/microphone_worker.h"
#include "host/operator/playback_worker.h"
#include "host/operator/real_input.h"
#include "host/operator/window_photographer.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <utility>

namespace host {

namespace {

constexpr std::chrono::milliseconds lookInterval{60};
/// On a slow start a dialog's first digit may hold the thread before the dialog is seen.
constexpr qint64 unseenMs = 3'000;

// The listener wants the folder above the language's.
QString clipsRoot(const OperatorSettings &settings)
{
    const QDir folder(settings.clipsFolder);
    return folder.dirName() == settings.language ? QDir::cleanPath(folder.absoluteFilePath(QStringLiteral("..")))
                                                 : settings.clipsFolder;
}

QStringList taskArguments(const OperatorSettings &settings)
{
    if (!settings.sentence.isEmpty())
        return {QStringLiteral("--source"), settings.source, QStringLiteral("--find"), settings.sentence,
                QStringLiteral("--meter")};
    return {QStringLiteral("--source"),   settings.source,  QStringLiteral("--clips"), clipsRoot(settings),
            QStringLiteral("--language"), settings.language};
}

QStringList listenerArguments(const OperatorSettings &settings)
{
    const QStringList arguments = taskArguments(settings);
    return settings.recordFile.isEmpty() ? arguments : arguments + QStringList{QStringLiteral("--record"), settings.recordFile};
}

} // namespace

struct TestOperator::Private {
    explicit Private(OperatorSettings given) : settings(std::move(given)), photographer(settings.screenshotsFolder) {}

    void look();
    void lookAt(QWidget *window);
    void acceptPrompt(QWidget *prompt);
    void workPlayback(QWidget *dialog);
    void finishPlayback();
    void workMicrophone(QWidget *dialog);
    void finishMicrophone();
    void answerQuestion(QWidget *question);
    void noteQuestion(QWidget *question);
    bool mayPress(QWidget *prompt, const QString &step);

    OperatorSettings settings;
    WindowPhotographer photographer;
    ListenerLink listener;
    QTimer timer;
    std::unique_ptr<PlaybackWorker> playback;
    std::unique_ptr<MicrophoneWorker> microphone;
    QPointer<QWidget> pressedPrompt;
    QPointer<QWidget> seenQuestion;
    qint64 promptPressedMs = 0;
    qint64 runBeganMs = 0;
    QList<HeardDigit> digits;
    std::optional<HeardRecording> recording;
    QString reason;
};

void TestOperator::Private::look()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            lookAt(window);
    }
}

void TestOperator::Private::lookAt(QWidget *window)
{
    const QString name = window->objectName();
    if (name == QLatin1String("host_prompt"))
        acceptPrompt(window);
    else if (name == QLatin1String("host_question"))
        answerQuestion(window);
    else if (name == QLatin1String("AudioPlaybackTestWidget"))
        workPlayback(window);
    else if (name == QLatin1String("InteractionDialog"))
        workMicrophone(window);
}

bool TestOperator::Private::mayPress(QWidget *prompt, const QString &step)
{
    const bool isNew = pressedPrompt != prompt;
    if (!isNew && steadyNowMs() - promptPressedMs < pressAgainMs)
        return false;
    if (isNew)
        photographer.take(prompt, step);
    pressedPrompt = prompt;
    promptPressedMs = steadyNowMs();
    return true;
}

void TestOperator::Private::acceptPrompt(QWidget *prompt)
{
    if (mayPress(prompt, QStringLiteral("prompt")))
        clickOn(prompt->findChild<QWidget *>(QStringLiteral("host_prompt_accept")));
}

void TestOperator::Private::workPlayback(QWidget *dialog)
{
    if (playback == nullptr || !playback->works(dialog)) {
        finishPlayback();
        const qint64 listenFromMs = std::max(runBeganMs, steadyNowMs() - unseenMs);
        playback = std::make_unique<PlaybackWorker>(dialog, listener.log(), photographer, settings.mistypedSequences,
                                                    listenFromMs, QStringList{settings.device, settings.source});
    }
    playback->advance(listener.isLost());
}

void TestOperator::Private::finishPlayback()
{
    if (playback == nullptr)
        return;
    playback->noteUnfinishedPlay();
    digits.append(playback->digits());
    if (reason.isEmpty())
        reason = playback->reason();
    playback.reset();
}

void TestOperator::Private::workMicrophone(QWidget *dialog)
{
    if (microphone == nullptr || !microphone->works(dialog))
        microphone = std::make_unique<MicrophoneWorker>(
            dialog, listener.log(), photographer,
            Speech{settings.microphone, settings.speakThrough, settings.sentence, settings.source, settings.device});
    microphone->advance(listener.isLost());
}

void TestOperator::Private::finishMicrophone()
{
    if (microphone == nullptr)
        return;
    if (!recording)
        recording = microphone->heard();
    if (reason.isEmpty())
        reason = microphone->reason();
    microphone.reset();
}

// Answered by what was heard while the dialog played its recording back; without that there is no answer.
void TestOperator::Private::answerQuestion(QWidget *question)
{
    if (microphone != nullptr)
        finishMicrophone();
    if (!recording)
        return noteQuestion(question);
    if (!mayPress(question, QStringLiteral("question")))
        return;
    recording->answer = recording->isFound;
    clickOn(question->findChild<QWidget *>(recording->isFound ? QStringLiteral("host_question_yes")
                                                              : QStringLiteral("host_question_no")));
}

void TestOperator::Private::noteQuestion(QWidget *question)
{
    if (seenQuestion == question)
        return;
    seenQuestion = question;
    photographer.take(question, QStringLiteral("question"));
    reason = QStringLiteral("a question was left open");
}

TestOperator::TestOperator(OperatorSettings settings, QObject *parent)
    : QObject(parent), d_(std::make_unique<Private>(std::move(settings)))
{
    d_->timer.setInterval(lookInterval);
    connect(&d_->timer, &QTimer::timeout, this, [this] { d_->look(); });
    connect(&d_->listener, &ListenerLink::metered, this, &TestOperator::metered);
}

TestOperator::~TestOperator() = default;

bool TestOperator::start()
{
    const bool hasStarted = d_->listener.start(listenerArguments(d_->settings));
    errorText_ = d_->listener.errorText();
    return hasStarted;
}

void TestOperator::beginRun()
{
    d_->runBeganMs = steadyNowMs();
    d_->digits.clear();
    d_->reason.clear();
    d_->playback.reset();
    d_->recording.reset();
    d_->microphone.reset();
    d_->timer.start();
}

void TestOperator::endRun(RunRecord &record)
{
    d_->timer.stop();
    d_->finishPlayback();
    d_->finishMicrophone();
    record.isUnattended = true;
    record.listenedTo = d_->settings.source;
    record.keptAudio = d_->settings.recordFile;
    record.digits = d_->digits;
    for (HeardDigit &digit : record.digits) {
        if (digit.playedAtMs >= 0)
            digit.playedAtMs -= d_->runBeganMs;
    }
    record.recording = d_->recording;
    if (record.recording && record.recording->heardAtMs)
        *record.recording->heardAtMs -= d_->runBeganMs;
    record.screenshots.append(d_->photographer.takeFiles());
    if (record.reason.isEmpty())
        record.reason = d_->reason;
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
// One loss: what is done with the device "Speakers" and the microphone "Mic" of a virtual sound card when one of them, or the
// server, goes. The whole module runs here with its own dialogs, only the host is played.
#include "audio/abandoned_workers.h"
#include "autotests/e2e/loss/call_watch.h"
#include "autotests/e2e/loss/digit_person.h"
#include "autotests/e2e/loss/findings.h"
#include "autotests/e2e/loss/heartbeat.h"
#include "autotests/e2e/loss/loss_plan.h"
#include "autotests/e2e/loss/microphone_person.h"
#include "autotests/e2e/loss/system_ways.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/scripted_context.h"
#include "autotests/tests/sound_truth.h"
#include "contract/exports.h"
#include "contract/message_keys.h"
#include "views/audio_playback_test_view.h"
#include "views/interaction_dialog.h"

#include <QApplication>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

using namespace ostra;

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
}

namespace {

constexpr std::chrono::seconds caseLimit{30};
constexpr long long answerLimitMs = 4000;
// The device is looked at every 500 ms and the page looks every second; the rest is for a machine with other things to do.
constexpr long long statusLimitMs = 500 + 1000;
constexpr long long pageLimitMs = 1000 + 1000;
// A server that does not answer is waited for: twice when the volumes are put back.
constexpr long long runLimitMs = answerLimitMs + 5000;
constexpr int leftoverLimitMs = 8000;
constexpr int hostsTime = 500;                      // ms
constexpr std::chrono::milliseconds patience{1500}; // of a user before a dialog that stands still
// A digit sounds for a second; the server wakes five seconds after it froze.
constexpr long long frozenAtLeastMs = 3000;
constexpr long long usuallyAtMostMs = frozenAtLeastMs;

template <typename Dialog>
Dialog *shownDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<Dialog *>(widget))
            return dialog;
    }
    return nullptr;
}

QStringList linesLost(const std::string &before, const std::string &after)
{
    const QStringList wanted = QString::fromStdString(before).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList lost = QString::fromStdString(after).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lost.removeIf([&wanted](const QString &line) { return wanted.contains(line); });
    return lost;
}

bool waitUntil(const std::function<bool()> &isSo, int limitMs = leftoverLimitMs) { return QTest::qWaitFor(isSo, limitMs); }

} // namespace

/// The host's side of a case.
class LossCase {
public:
    LossCase(const LossPlan &plan, const QString &name) : plan_(plan), findings_(name), fault_(plan.commands(), plan.delay())
    {
        call_watch::onStart([this](int number) {
            if (number == plan_.startNumber())
                fault_.arm();
        });
    }
    ~LossCase() { call_watch::onStart({}); }
    LossCase(const LossCase &) = delete;
    LossCase &operator=(const LossCase &) = delete;

    bool run();

private:
    SystemComponent *speakers() const;
    void runTest();
    void runDialog(AbstractWidgetWrapper &wrapper);
    long long stillSinceMs() const;
    void closeWhenItStandsStill();
    int hangingDeviceCount() const;
    void checkMicrophone();
    void checkDigits();
    void checkTold();
    void checkMessages(bool areExpected);
    void checkVolumes();
    void checkDevicesAfterwards();
    void release();
    void releaseWithLetGoWorker();
    QString times() const;
    long long sinceHarm(long long moment) const { return moment == 0 ? -1 : moment - fault_.harmMs(); }
    bool isDigits() const { return plan_.job == Job::digits; }
    bool isLetGo() const { return letGoCount_ > 0; }

    LossPlan plan_;
    Findings findings_;
    Fault fault_;
    ModuleInterface *module_ = nullptr;
    std::unique_ptr<MicrophonePerson> microphonePerson_;
    std::unique_ptr<DigitPerson> digitPerson_;
    std::vector<std::string> calls_;
    std::string levels_;
    const int quitCount_ = call_watch::quitCount();
    std::uint32_t code_ = 99;
    long long closeMs_ = 0;
    long long runEndMs_ = 0;
    int letGoCount_ = 0;
};

SystemComponent *LossCase::speakers() const
{
    const SystemComponentManager *manager = module_->componentManager();
    for (std::uint32_t index = 0; index < manager->componentCount(); ++index) {
        SystemComponent *component = manager->componentAt(index);
        if (component != nullptr && component->name() == "Speakers")
            return component;
    }
    return nullptr;
}

// The last ones are left to the limits of their pages.
long long LossCase::stillSinceMs() const
{
    if (plan_.moment != Moment::late)
        return fault_.harmMs();
    return plan_.job == Job::record ? microphonePerson_->playPageMs() : microphonePerson_->statusMs();
}

void LossCase::closeWhenItStandsStill()
{
    auto *timer = new QTimer(microphonePerson_.get());
    QObject::connect(timer, &QTimer::timeout, microphonePerson_.get(), [this, timer] {
        const long long stillSince = stillSinceMs();
        if (stillSince == 0 || nowMs() - stillSince < patience.count())
            return;
        timer->stop();
        closeMs_ = stillSince + patience.count();
        microphonePerson_->close();
    });
    timer->start(std::chrono::milliseconds(10));
}

void LossCase::runDialog(AbstractWidgetWrapper &wrapper)
{
    QTimer::singleShot(0, qApp, [this] {
        if (auto *view = shownDialog<AudioPlaybackTestView>()) {
            digitPerson_ =
                std::make_unique<DigitPerson>(*view, plan_.isLoss() ? DigitPerson::Then::repeat : DigitPerson::Then::type);
            return;
        }
        microphonePerson_ = std::make_unique<MicrophonePerson>(*shownDialog<InteractionDialog>(), plan_.job == Job::play);
        microphonePerson_->begin();
        if (!plan_.isLoss())
            closeWhenItStandsStill();
    });
    wrapper.exec(nullptr, nullptr);
}

void LossCase::runTest()
{
    ScriptedContext context(speakers());
    context.answer = 1; // the instructions are accepted
    context.onWidget = [this](InputRequest &request) { runDialog(*request.widget); };
    call_watch::forgetDigits();
    code_ = module_->diagnosticAt(0)->testAt(isDigits() ? 0 : 1)->run(&context);
    runEndMs_ = nowMs();
    if (const std::string calls = call_watch::callsInProgress(); !calls.empty())
        findings_.note(QStringLiteral("hanging calls: ") + QString::fromStdString(calls));
    calls_ = context.calls;
    letGoCount_ = audio::abandonedWorkerCount();
}

void LossCase::checkMessages(bool areExpected)
{
    const std::string key = keys::deviceNotIdentifiedOrDisconnected;
    const auto count = [this](const std::string &text) {
        return static_cast<int>(
            std::count_if(calls_.begin(), calls_.end(), [&](const auto &call) { return call.find(text) == 0; }));
    };
    findings_.expectEqual(count("message "), areExpected ? 1 : 0, "the number of messages");
    findings_.expectEqual(count("message " + key + " 0 0"), areExpected ? 1 : 0, "the number of messages of a lost device");
    findings_.expectEqual(count("report 100 " + key), areExpected ? 1 : 0, "the number of reports of a lost device");
}

void LossCase::checkTold()
{
    const MicrophonePerson &person = *microphonePerson_;
    findings_.expect(fault_.toldMs() != 0, QStringLiteral("the sound library never told"));
    findings_.expectEqual(person.statusCount(), 1, "the number of statuses");
    findings_.expectEqual(person.lostCount(), 1, "the number of signals of a lost device");
    findings_.expectAtMost(person.statusMs() - fault_.toldMs(), statusLimitMs, "the time until the status");
    findings_.expectAtMost(person.lostMs() - person.statusMs(), pageLimitMs, "the time until the page's signal");
    findings_.expectAtMost(sinceHarm(person.endMs()), answerLimitMs, "the time until the dialog's end");
    findings_.expectEqual(letGoCount_, 0, "the number of workers let go");
}

// One cannot close its device; the next one cannot open its own where the whole server stands still.
int LossCase::hangingDeviceCount() const
{
    if (plan_.harm == Harm::suspend && !system_ways::waitsForSuspended())
        return 0;
    const bool opensInVain = plan_.harm == Harm::freeze && plan_.job == Job::record && plan_.moment == Moment::late;
    return opensInVain ? 2 : 1;
}

void LossCase::checkMicrophone()
{
    findings_.expectEqual(code_, 4U, "the code");
    checkMessages(plan_.isLoss());
    if (plan_.isLoss())
        return checkTold();
    findings_.expectAtMost(microphonePerson_->statusCount(), 1, "the number of statuses");
    findings_.expectEqual(microphonePerson_->lostCount(), 0, "the number of signals of a lost device");
    findings_.expectAtMost(microphonePerson_->longestSilenceMs(), usuallyAtMostMs, "the time without an event");
    findings_.expectAtMost(microphonePerson_->endMs() - closeMs_, answerLimitMs, "the time until the dialog's answer");
    findings_.expectAtMost(runEndMs_ - closeMs_, runLimitMs, "the time until the run's end");
    findings_.expectEqual(letGoCount_, hangingDeviceCount(), "the number of workers let go");
}

void LossCase::checkDigits()
{
    // A dialog that finds its device gone ends without a message; one that only had to wait is played to its end.
    findings_.expectEqual(code_, plan_.isLoss() ? 4U : 0U, "the code");
    checkMessages(false);
    const bool isHeldUp = plan_.harm == Harm::freeze || (plan_.harm == Harm::suspend && system_ways::waitsForSuspended());
    const QString silence = QStringLiteral("the thread turned no event for %1 ms").arg(digitPerson_->longestSilenceMs());
    // The digits sound on the dialog's own thread: it stands still for as long as the server does.
    findings_.expect(isHeldUp == (digitPerson_->longestSilenceMs() > frozenAtLeastMs), silence);
    const long long since = digitPerson_->repeatedMs() != 0 ? digitPerson_->repeatedMs() : fault_.harmMs();
    if (plan_.isLoss()) {
        findings_.expectEqual(digitPerson_->repeatedMs() != 0, plan_.moment == Moment::late, "the repetition");
        findings_.expectAtMost(digitPerson_->endMs() - since, answerLimitMs, "the time until the dialog's end");
    }
}

void LossCase::checkVolumes()
{
    // A server that stands still at the end of the run takes no volume; after a digit it goes on.
    const bool isAnswering = plan_.leavesServer() || (plan_.harm == Harm::freeze && isDigits());
    if (!sound_truth::canTell() || !isAnswering)
        return;
    const QStringList lost = linesLost(levels_, sound_truth::levels());
    findings_.expect(lost.isEmpty(), QStringLiteral("a volume did not come back: ") + lost.join(QLatin1Char(' ')));
}

// Also with the last device gone.
void LossCase::checkDevicesAfterwards()
{
    const bool isGone = sound_truth::canTell() && plan_.harm == Harm::unload && plan_.job != Job::record;
    const auto isRight = [this, isGone] {
        module_->componentManager()->refresh();
        return (speakers() == nullptr) == isGone;
    };
    findings_.expect(waitUntil(isRight), QStringLiteral("the list of devices is wrong afterwards"));
}

void LossCase::releaseWithLetGoWorker()
{
    // The host's own loop goes on.
    Heartbeat heartbeat;
    findings_.expect(!waitUntil([] { return audio::abandonedWorkerCount() == 0; }, hostsTime),
                     QStringLiteral("no device hangs"));
    findings_.expectAtMost(heartbeat.longestSilenceMs(), usuallyAtMostMs, "the time without an event in the host");
    const long long begin = nowMs();
    ReleaseModuleInterfaceInstance();
    findings_.expectEqual(call_watch::quitCount(), quitCount_, "the number of shut-downs with a worker let go");
    findings_.expectAtMost(nowMs() - begin, answerLimitMs, "the time of the release");
    fault_.repair();
    findings_.expect(waitUntil([] { return audio::abandonedWorkerCount() == 0; }),
                     QStringLiteral("the worker let go never ended"));
    module_ = GetModuleInterfaceInstance();
}

void LossCase::release()
{
    if (isLetGo())
        releaseWithLetGoWorker();
    findings_.expect(waitUntil([] { return call_watch::openDeviceCount() == 0; }), QStringLiteral("a device was left open"));
    checkVolumes();
    checkDevicesAfterwards();
    ReleaseModuleInterfaceInstance();
    findings_.expectEqual(call_watch::quitCount(), quitCount_ + 1, "the number of shut-downs");
}

QString LossCase::times() const
{
    if (isDigits())
        return QStringLiteral("told %1, dialog's end %2, thread blocked %3, run's end %4")
            .arg(sinceHarm(fault_.toldMs()))
            .arg(sinceHarm(digitPerson_->endMs()))
            .arg(digitPerson_->longestSilenceMs())
            .arg(sinceHarm(runEndMs_));
    return QStringLiteral("told %1, status %2, page %3, closed %7, dialog's end %4, run's end %5, let go %6, thread blocked %8")
        .arg(sinceHarm(fault_.toldMs()))
        .arg(sinceHarm(microphonePerson_->statusMs()))
        .arg(sinceHarm(microphonePerson_->lostMs()))
        .arg(sinceHarm(microphonePerson_->endMs()))
        .arg(sinceHarm(runEndMs_))
        .arg(letGoCount_)
        .arg(sinceHarm(closeMs_))
        .arg(microphonePerson_->longestSilenceMs());
}

bool LossCase::run()
{
    sound_truth::turnDown();
    levels_ = sound_truth::levels();
    module_ = GetModuleInterfaceInstance();
    module_->componentManager()->refresh();
    if (speakers() == nullptr) {
        findings_.expect(false, QStringLiteral("there is no device Speakers"));
        ReleaseModuleInterfaceInstance();
        return false;
    }
    runTest();
    findings_.expect(fault_.harmMs() != 0, QStringLiteral("the harm was never done"));
    findings_.expect(QApplication::topLevelWidgets().isEmpty() || shownDialog<QDialog>() == nullptr,
                     QStringLiteral("a dialog is left"));
    if (isDigits())
        checkDigits();
    else
        checkMicrophone();
    release();
    fault_.finish();
    findings_.note(times());
    return findings_.areGood();
}

namespace {

void useOnce()
{
    GetModuleInterfaceInstance()->componentManager()->refresh();
    ReleaseModuleInterfaceInstance();
}

bool runCase(const LossPlan &plan, const QString &name)
{
    QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("config.ini")));
    if (!settings.open(QIODevice::WriteOnly) || settings.write("[LANGUAGE]\nDEFAULT_LANGUAGE=english\n") < 0)
        return false;
    settings.close();
    QDir::setCurrent(folder.path());
    if (system_ways::keepsFirstUse())
        useOnce();
    const process_facts::Facts before = process_facts::now();
    bool isGood = LossCase(plan, name).run();
    Findings leftovers(name);
    leftovers.expect(waitUntil([&] { return process_facts::now().threads <= before.threads; }),
                     QStringLiteral("%1 threads instead of %2").arg(process_facts::now().threads).arg(before.threads));
    leftovers.expectAtMost(static_cast<int>(process_facts::now().handles), static_cast<int>(before.handles),
                           "the number of handles");
    QDir::setCurrent(QDir::rootPath());
    return isGood && leftovers.areGood();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList words = application.arguments();
    const auto plan = words.size() == 4
                          ? LossPlan::parse(words[1].toStdString(), words[2].toStdString(), words[3].toStdString())
                          : std::nullopt;
    if (!plan) {
        std::fprintf(stderr, "usage: loss_case record|play|digits unload|kill|term|freeze|suspend early|middle|late\n");
        return 2;
    }
    const QString name = words.mid(1).join(QLatin1Char(' '));
    const Watchdog watchdog(name.toStdString(), caseLimit);
    call_watch::install();
    return runCase(*plan, name) ? 0 : 1;
}

// SPDX-License-Identifier: Apache-2.0
#include "host/gui/unattended_run.h"

#include "contract/result_codes.h"
#include "host/core/capture_source.h"
#include "host/core/run_reason.h"
#include "host/core/verdict.h"
#include "host/gui/console_output.h"
#include "host/gui/key_text.h"
#include "host/operator/capture_probe.h"
#include "host/operator/channel_listener.h"
#include "host/operator/test_operator.h"
#include "host/precheck/capture_devices.h"
#include "host/precheck/clip_check.h"
#include "host/precheck/listening_sources.h"
#include "host/precheck/precheck.h"
#include "host/precheck/run_names.h"
#include "host/precheck/sound_state.h"
#include "host/reports/run_report.h"
#include "host/reports/writable_folder.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QScopeGuard>
#include <QTimer>

#include <chrono>
#include <memory>
#include <utility>

namespace host {

namespace {

// A run of either test takes less than one, its repetitions included.
constexpr std::chrono::minutes longestRun{5};

} // namespace

UnattendedRun::UnattendedRun(TestSession &session, const Options &options, QString language)
    : session_(session), options_(options), language_(std::move(language))
{}

QStringList UnattendedRun::deviceNames() const
{
    QStringList names;
    for (const Device &device : session_.deviceList().devices())
        names.append(device.name);
    return names;
}

QString UnattendedRun::deviceName() const { return session_.deviceList().devices()[device_].name; }

bool UnattendedRun::prepare(QString &problem)
{
    problem.clear();
    refusal_.clear();
    test_ = session_.findTest(options_.test);
    device_ = session_.deviceList().find(options_.device);
    if (!clearVerdict())
        problem = QStringLiteral("the verdict cannot be written into '%1'").arg(options_.verdictFile);
    else if (test_ < 0)
        problem = QStringLiteral("the module has no test '%1'").arg(options_.test);
    else if (session_.deviceList().devices().isEmpty())
        refusal_ = reasonWords(noOutputReason());
    else if (device_ < 0)
        problem = unknownDevice(options_.device, session_.deviceList().devices());
    else if (problem = readable(wrongName({options_.source, options_.microphone, options_.speakThrough}, deviceNames()));
             problem.isEmpty() && hearsAnotherOutput(readListeningSources(), options_.source, deviceName()))
        refusal_ = reasonWords("REASON_HEARS_ANOTHER", {options_.source, deviceName()});
    for (const QString &file : options_.reportFiles) {
        if (problem.isEmpty() && !canWriteBeside(file))
            problem = QStringLiteral("the report '%1' cannot be written: its folder is missing or closed").arg(file);
    }
    if (problem.isEmpty() && !options_.screenshotsFolder.isEmpty() && !canMakeAndWriteInto(options_.screenshotsFolder))
        problem = QStringLiteral("nothing can be written into '%1' (--screenshots)").arg(options_.screenshotsFolder);
    return problem.isEmpty();
}

int UnattendedRun::run()
{
    const RunRecord record = perform().value_or(notTaken());
    print(runSummary(record));
    const std::uint32_t code = codeOf(verdictOf(record));
    const bool isReported = writeReports(record);
    const bool isCodeKept = isReported || code != ostra::result::passed;
    return writeVerdict(static_cast<int>(isCodeKept ? code : ostra::result::notCompleted));
}

std::optional<RunRecord> UnattendedRun::perform()
{
    if (!refusal_.isEmpty())
        return unheard(refusal_);
    if (const QString reason = whyNotBeforehand(); !reason.isEmpty())
        return unheard(reason);
    if (auto early = prepareEars())
        return early;
    TestOperator person(operatorSettings());
    if (meter_)
        QObject::connect(&person, &TestOperator::metered, meter_);
    if (!person.start())
        return unheard(person.errorText());
    person.beginRun();
    bool isOverdue = false;
    QTimer::singleShot(longestRun, &person, [this, &isOverdue] {
        isOverdue = true;
        session_.stop();
    });
    return session_.run(test_, device_, language_, [this, &person, &isOverdue](RunRecord &record) {
        describe(record);
        person.endRun(record);
        if (isOverdue)
            record.reason = reasonWords("REASON_TOOK_TOO_LONG");
    });
}

QString UnattendedRun::whyNotBeforehand() const
{
    const QString clips = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files");
    const auto findings = checkBeforeRun({deviceName(), clips, language_, isRecording(), options_.source, isMicrophoneTest()});
    for (const PrecheckFinding &finding : findings)
        complain(precheckText(finding));
    for (const PrecheckFinding &finding : findings) {
        if (finding.isBlocking())
            return reasonWords(precheckKey(finding.what), {finding.subject});
    }
    return {};
}

// Before the run: whether the microphones deliver anything, and which side is which. A record where it ends here.
std::optional<RunRecord> UnattendedRun::prepareEars()
{
    bool isStopped = false;
    QString dead;
    {
        session_.setPreparing(true);
        const auto over = qScopeGuard([this] { session_.setPreparing(false); });
        const auto stop = QObject::connect(&session_, &TestSession::stopRequested, [&isStopped] { isStopped = true; });
        const auto forget = qScopeGuard([&stop] { QObject::disconnect(stop); });
        dead = deadMicrophone();
    }
    if (isStopped)
        return stopped();
    if (!dead.isEmpty())
        return unheard(reasonWords("REASON_ZEROS_ONLY", {dead}));
    if (!options_.isChannelCheck)
        return std::nullopt;
    QString reason;
    const std::unique_ptr<VolumeLock> lock = session_.holdVolumes(reason);
    if (lock == nullptr)
        return notCompleted(reason, false);
    return checkChannels() ? std::nullopt : stopped();
}

// The ear and, in its own test, the microphone: zeros of either would be taken for the silence of a device.
QString UnattendedRun::deadMicrophone() const
{
    QStringList names{options_.source};
    if (isMicrophoneTest()) {
        const QList<CaptureDevice> inputs = readCaptureDevices();
        names.append(options_.microphone.isEmpty() && !inputs.isEmpty() ? inputs.first().name : options_.microphone);
    }
    const std::optional<QList<ListeningSource>> sources = readListeningSources();
    for (qsizetype index = 0; sources && index < names.size(); ++index) {
        const ListeningSource *source = findListeningSource(*sources, names[index]);
        if (source != nullptr && mustDeliverNoise(*source) && probeCapture(names[index]) == Delivery::zerosOnly)
            return names[index];
    }
    return {};
}

bool UnattendedRun::isMicrophoneTest() const { return options_.test == QLatin1String("m"); }

bool UnattendedRun::isRecording() const { return isMicrophoneTest() || !isMonitor(options_.source); }

OperatorSettings UnattendedRun::operatorSettings() const
{
    const QString clips = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files/");
    OperatorSettings settings;
    settings.source = options_.source;
    settings.clipsFolder = clips + language_;
    settings.language = language_;
    settings.screenshotsFolder = options_.screenshotsFolder;
    settings.mistypedSequences = options_.mistypedSequences;
    settings.device = deviceName();
    settings.recordFile = options_.keptAudio;
    if (!isMicrophoneTest())
        return settings;
    settings.sentence = clips + QLatin1String(sentenceClip);
    settings.microphone = options_.microphone;
    settings.speakThrough = options_.speakThrough.isEmpty() ? deviceName() : options_.speakThrough;
    return settings;
}

void UnattendedRun::describe(RunRecord &record) const
{
    record.isUnattended = true;
    record.listenedTo = options_.source;
    if (record.microphone.isEmpty())
        record.microphone = options_.microphone;
}

// Nobody is there who could take the test.
std::optional<RunRecord> UnattendedRun::unheard(const QString &reason)
{
    return session_.refuse(test_, device_, language_, reason, [this](RunRecord &record) { describe(record); });
}

// The session takes one run at a time, and a device that is there.
RunRecord UnattendedRun::notTaken() const
{
    RunRecord record;
    record.testLetter = options_.test;
    record.testNameKey = session_.tests()[test_].nameKey;
    record.device = session_.deviceList().devices().value(device_);
    record.language = language_;
    record.startedUtc = QDateTime::currentDateTimeUtc();
    record.endedUtc = record.startedUtc;
    record.wasModuleCalled = false;
    record.reason = reasonWords("REASON_RUN_NOT_TAKEN");
    if (device_ < 0) {
        record.device.name = options_.device;
        record.code = ostra::result::cannotBePerformed;
        record.reason = refusal_;
    }
    describe(record);
    return record;
}

std::optional<RunRecord> UnattendedRun::stopped() { return notCompleted(reasonWords("REASON_STOPPED"), true); }

std::optional<RunRecord> UnattendedRun::notCompleted(const QString &reason, bool wasStopped)
{
    return session_.refuse(test_, device_, language_, reason, [this, wasStopped](RunRecord &record) {
        describe(record);
        record.code = ostra::result::notCompleted;
        record.wasStopped = wasStopped;
    });
}

// Before the run raises the volumes: a side that the user turned down shall be found. False when it was stopped.
bool UnattendedRun::checkChannels()
{
    const QString clips = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files");
    session_.setPreparing(true);
    const auto over = qScopeGuard([this] { session_.setPreparing(false); });
    ChannelListener ear({deviceName(), options_.source, clips, language_});
    QEventLoop loop;
    bool isChecked = false;
    QObject::connect(&ear, &ChannelListener::finished, &loop, [&](const ChannelCheck &check) {
        session_.noteChannels(deviceName(), check);
        isChecked = true;
        loop.quit();
    });
    QObject::connect(&session_, &TestSession::stopRequested, &loop, &QEventLoop::quit);
    ear.start();
    loop.exec();
    return isChecked;
}

bool UnattendedRun::writeReports(const RunRecord &record) const
{
    bool isWritten = true;
    for (const QString &file : options_.reportFiles) {
        QString problem;
        if (writeRunReport(record, file, &problem, [](const QString &key) { return shownText(key); }))
            continue;
        complain(problem);
        isWritten = false;
    }
    return isWritten;
}

// An earlier run's would be taken for this one's.
bool UnattendedRun::clearVerdict() const
{
    const QString &file = options_.verdictFile;
    return file.isEmpty() || ((!QFile::exists(file) || QFile::remove(file)) && canWriteBeside(file));
}

// After all else: where it is, the run is complete.
int UnattendedRun::writeVerdict(int exitCode) const
{
    QString problem;
    if (options_.verdictFile.isEmpty() || writeReportFile(QByteArray::number(exitCode) + '\n', options_.verdictFile, &problem))
        return exitCode;
    complain(problem);
    return static_cast<int>(ostra::result::notCompleted);
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "host/gui/unattended_run.h"

#include "contract/result_codes.h"
#include "host/core/verdict.h"
#include "host/gui/console_output.h"
#include "host/gui/key_text.h"
#include "host/operator/test_operator.h"
#include "host/precheck/precheck.h"
#include "host/reports/run_limits.h"
#include "host/reports/run_report.h"

#include <QCoreApplication>

#include <utility>

namespace host {

UnattendedRun::UnattendedRun(TestSession &session, const Options &options, QString language)
    : session_(session), options_(options), language_(std::move(language))
{}

bool UnattendedRun::prepare(QString &problem)
{
    test_ = session_.findTest(options_.test);
    device_ = session_.deviceList().find(options_.device);
    if (test_ < 0)
        problem = QStringLiteral("the module has no test '%1'").arg(options_.test);
    else if (device_ < 0)
        problem = unknownDevice(options_.device, session_.deviceList().devices());
    return test_ >= 0 && device_ >= 0;
}

int UnattendedRun::run()
{
    const std::optional<RunRecord> record = perform();
    if (!record)
        return static_cast<int>(ostra::result::notCompleted);
    print(runSummary(*record));
    const std::uint32_t code = codeOf(verdictOf(*record));
    const bool isReported = writeReports(*record);
    return static_cast<int>(isReported || code != ostra::result::passed ? code : ostra::result::notCompleted);
}

std::optional<RunRecord> UnattendedRun::perform()
{
    const QString clips = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files");
    const auto findings = checkBeforeRun({session_.deviceList().devices()[device_].name, clips, language_, isRecording()});
    for (const PrecheckFinding &finding : findings)
        complain(precheckText(finding));
    for (const PrecheckFinding &finding : findings) {
        if (finding.isBlocking())
            return unheard(QStringLiteral("clips: ") + precheckText(finding));
    }
    TestOperator person(
        {options_.source, clips + u'/' + language_, language_, options_.screenshotsFolder, options_.mistypedSequences});
    if (!person.start())
        return unheard(person.errorText());
    person.beginRun();
    return session_.run(test_, device_, language_, [this, &person](RunRecord &record) {
        record.isUnattended = true;
        record.listenedTo = options_.source;
        person.endRun(record);
    });
}

bool UnattendedRun::isRecording() const { return options_.test == QLatin1String("m") || !isMonitor(options_.source); }

// Nobody is there who could take the test.
RunRecord UnattendedRun::unheard(const QString &reason) const
{
    RunRecord record;
    record.testLetter = session_.tests()[test_].letter;
    record.testNameKey = session_.tests()[test_].nameKey;
    record.device = session_.deviceList().devices()[device_];
    record.language = language_;
    record.startedUtc = QDateTime::currentDateTimeUtc();
    record.endedUtc = record.startedUtc;
    record.moduleCode = record.code = ostra::result::cannotBePerformed;
    record.reason = reason;
    record.isUnattended = true;
    record.listenedTo = options_.source;
    return record;
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

} // namespace host

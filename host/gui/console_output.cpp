// SPDX-License-Identifier: Apache-2.0
#include "host/gui/console_output.h"

#include "contract/result_codes.h"
#include "host/core/run_warning.h"
#include "host/core/verdict.h"
#include "host/gui/key_text.h"
#include "host/precheck/run_names.h"
#include "host/reports/run_report.h"
#include "host/reports/text_report.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace host {

namespace {

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

bool steersATerminal(QChar unit)
{
    switch (unit.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return unit != QChar(0x200C) && unit != QChar(0x200D); // the joiners that scripts need
    default:
        return false;
    }
}

QString verdictWords(Verdict verdict)
{
    switch (verdict) {
    case Verdict::passed:
        return QStringLiteral("passed");
    case Verdict::failed:
        return QStringLiteral("failed");
    case Verdict::cannotBePerformed:
        return QStringLiteral("cannot be performed");
    case Verdict::stopped:
        return QStringLiteral("stopped");
    case Verdict::invalidCall:
        return QStringLiteral("invalid call");
    case Verdict::notCompleted:
        break;
    }
    return QStringLiteral("not completed");
}

QString wordsOf(const RunMessage &message)
{
    const QString words = shownText(message.text);
    return words == message.text ? words : QStringLiteral("%1 (%2)").arg(words, message.text);
}

QString yesOrNo(bool isYes) { return isYes ? QStringLiteral("yes") : QStringLiteral("no"); }

QString decibels(double level) { return QString::number(level, 'f', 1) + QStringLiteral(" dBFS"); }

QString recordingLines(const HeardRecording &heard)
{
    const QString delay =
        heard.latencyMs ? QString::number(*heard.latencyMs, 'f', 0) + QStringLiteral(" ms") : QStringLiteral("-");
    return QStringLiteral("spoken through '%1', recorded by '%2'\n"
                          "sentence found in the playback: %3, score %4, delay %5\n"
                          "level %6, peak %7, clipped: %8, silent: %9, ")
               .arg(readable(heard.spokenThrough), readable(heard.microphone), yesOrNo(heard.isFound),
                    QString::number(heard.score, 'f', 3), delay, decibels(heard.levelDbfs), decibels(heard.peakDbfs),
                    yesOrNo(heard.isClipped), yesOrNo(heard.isSilent)) +
           QStringLiteral("mono in stereo: %1\nanswer: %2\n")
               .arg(yesOrNo(heard.isMonoInStereo), heard.answer ? yesOrNo(*heard.answer) : QStringLiteral("none"));
}

QString channelWords(const ChannelCheck &check)
{
    const QString name = mappingName(check.mapping);
    return check.reason.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, readable(check.reason));
}

} // namespace

QString readable(const QString &name)
{
    QString text;
    for (const QChar unit : name)
        text += steersATerminal(unit) ? QStringLiteral("\\u{%1}").arg(unit.unicode(), 4, 16, QLatin1Char('0')) : QString(unit);
    return text;
}

void print(const QString &text) { write(stdout, text); }

void complain(const QString &message) { write(stderr, QStringLiteral("TamrexDiagnostics: %1\n").arg(message)); }

QString runSummary(const RunRecord &record)
{
    const Verdict verdict = verdictOf(record);
    QString text = QStringLiteral("%1 on '%2' (%3): %4, code %5\n")
                       .arg(record.testNameKey, readable(record.device.name), record.language, verdictWords(verdict),
                            QString::number(codeOf(verdict)));
    if (!record.reason.isEmpty())
        text += QStringLiteral("reason: %1\n").arg(record.reason);
    if (!record.volumeComplaint.isEmpty())
        text += QStringLiteral("volumes: %1\n").arg(record.volumeComplaint);
    if (record.channels)
        text += QStringLiteral("channels: %1\n").arg(channelWords(*record.channels));
    for (const RunMessage &message : record.messages) {
        const bool isError = message.level == ostra::message_level::error;
        text += QStringLiteral("%1: %2\n").arg(isError ? QStringLiteral("error") : QStringLiteral("note"), wordsOf(message));
    }
    if (record.recording)
        text += recordingLines(*record.recording);
    text += digitTableText(QJsonDocument::fromJson(runReport(record)).object());
    const QList<RunReason> warnings = warningsOf(record);
    for (const RunReason &warning : warnings) // last: what a passed run must not hide
        text += QStringLiteral("warning: %1 (%2)\n").arg(readable(shownReason(warning)), warning.key);
    return text;
}

QString unknownDevice(const QString &name, const QList<Device> &devices)
{
    QStringList names;
    for (const Device &device : devices)
        names.append(device.name);
    return readable(unknownName(QStringLiteral("device"), name, names));
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "host/cli/run_plan.h"

#include "host/cli/default_source.h"
#include "host/core/capture_source.h"
#include "host/reports/report_formats.h"
#include "host/reports/writable_folder.h"
#include "host/translations/translators.h"

#include <QDir>
#include <QFileInfo>

namespace host {

namespace {

const QString microphoneTest = QStringLiteral("m");

QStringList languagesOf(const CommandLine &line)
{
    if (!line.isSet("all-languages"))
        return {line.last("language")};
    QStringList codes;
    for (const QLatin1StringView code : translationCodes)
        codes.append(code);
    return codes;
}

QString numbered(const QString &file, const PlannedRun &run)
{
    return run.number > 0 ? numberedReport(file, run.number) : file;
}

bool isPlain(QChar letter)
{
    const ushort code = letter.unicode();
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9') || code == '-';
}

std::optional<UsageError> checkFolders(const CommandLine &line)
{
    const QString reports = line.last("reports");
    if (line.isSet("reports") && !canMakeAndWriteInto(reports))
        return UsageError{QStringLiteral("nothing can be written into '%1' (--reports)").arg(reports)};
    const QString pictures = line.last("screenshots");
    if (line.isSet("screenshots") && !canMakeAndWriteInto(pictures))
        return UsageError{QStringLiteral("nothing can be written into '%1' (--screenshots)").arg(pictures)};
    return std::nullopt;
}

std::optional<UsageError> checkFiles(const CommandLine &line)
{
    for (const QString &file : line.all("report")) {
        if (!reportFormatOf(file))
            return UsageError{QStringLiteral("the report '%1' cannot be written: %2").arg(file, reportSuffixes())};
        if (!canWriteBeside(file))
            return UsageError{QStringLiteral("the report '%1' cannot be written: its folder is missing or closed").arg(file)};
    }
    const QString sound = line.last("keep-audio");
    if (line.isSet("keep-audio") && !sound.endsWith(QStringLiteral(".wav"), Qt::CaseInsensitive))
        return UsageError{QStringLiteral("the sound '%1' cannot be kept: its name must end in .wav").arg(sound)};
    if (line.isSet("keep-audio") && !canWriteBeside(sound))
        return UsageError{QStringLiteral("the sound '%1' cannot be kept: its folder is missing or closed").arg(sound)};
    return checkFolders(line);
}

} // namespace

QList<PlannedRun> planRuns(const CommandLine &line, const QStringList &devices)
{
    const QStringList tests = line.isSet("test") ? line.all("test") : QStringList{QStringLiteral("p")};
    QList<PlannedRun> runs;
    for (const QString &test : tests) {
        for (qsizetype device = 0; device < devices.size(); ++device) {
            for (const QString &language : languagesOf(line))
                runs.append({test, devices[device], language, static_cast<int>(device) + 1, 0});
        }
    }
    for (qsizetype index = 0; runs.size() > 1 && index < runs.size(); ++index)
        runs[index].number = static_cast<int>(index) + 1;
    return runs;
}

std::optional<UsageError> checkConfig(const CommandLine &line)
{
    const QString folder = line.last("config");
    if (line.isSet("config") && !QFileInfo(folder).isDir())
        return UsageError{QStringLiteral("'%1' is not a folder that can be used (--config)").arg(folder)};
    if (line.isSet("config") && !QFileInfo(QDir(folder).filePath(QStringLiteral("config.ini"))).isFile())
        return UsageError{QStringLiteral("there is no config.ini in '%1' (--config)").arg(folder)};
    return std::nullopt;
}

std::optional<UsageError> checkRun(const CommandLine &line)
{
    if (!line.isSet("device"))
        return UsageError{QStringLiteral("'run' needs '--device NAME' (list shows them)")};
    const QStringList exclusive{QStringLiteral("language"), QStringLiteral("config"), QStringLiteral("all-languages")};
    for (qsizetype index = 0; index < exclusive.size(); ++index) {
        for (const QString &other : exclusive.mid(index + 1)) {
            if (line.switches.contains(exclusive[index]) && line.switches.contains(other))
                return UsageError{QStringLiteral("'--%1' and '--%2' exclude each other").arg(exclusive[index], other)};
        }
    }
    if (const auto wrong = checkConfig(line))
        return wrong;
    for (const char *option : {"microphone", "speak-through"}) {
        if (line.isSet(option) && !line.all("test").contains(microphoneTest))
            return UsageError{QStringLiteral("'--%1' goes with '--test m' only").arg(QLatin1String(option))};
    }
    return checkFiles(line);
}

QString sourceOf(const CommandLine &line, const PlannedRun &run)
{
    return line.isSet("listen") ? systemSource(line.last("listen")) : defaultSource(run.device);
}

QStringList reportsOf(const CommandLine &line, const PlannedRun &run)
{
    QStringList files;
    for (const QString &file : line.all("report"))
        files.append(numbered(file, run));
    if (!line.isSet("reports"))
        return files;
    const QString name = QDir(line.last("reports")).filePath(reportNameOf(run));
    for (const char *suffix : {"json", "xml", "html"})
        files.append(name + u'.' + QLatin1String(suffix));
    return files;
}

QStringList argumentsOf(const CommandLine &line, const PlannedRun &run, const QString &configFolder)
{
    QStringList arguments{QStringLiteral("--unattended"), QStringLiteral("--test=") + run.test,
                          QStringLiteral("--device=") + run.device, QStringLiteral("--listen=") + sourceOf(line, run)};
    const auto add = [&arguments](const char *option, const QString &value) {
        arguments.append(QStringLiteral("--%1=%2").arg(QLatin1String(option), value));
    };
    for (const char *option : {"channel-check", "verbose"}) {
        if (line.isSet(option))
            arguments.append(QStringLiteral("--") + QLatin1String(option));
    }
    if (line.isSet("screenshots"))
        add("screenshots", line.last("screenshots"));
    if (!configFolder.isEmpty())
        add("config", configFolder);
    for (const char *option : {"microphone", "speak-through"}) {
        if (run.test == microphoneTest && line.isSet(option))
            add(option, line.last(option));
    }
    for (const QString &file : reportsOf(line, run))
        add("report", file);
    if (line.isSet("keep-audio"))
        add("keep-audio", numbered(line.last("keep-audio"), run));
    return arguments;
}

QString reportNameOf(const PlannedRun &run)
{
    constexpr qsizetype longest = 60; // of a file's name on any system
    QString device = run.device.left(longest);
    for (QChar &letter : device)
        letter = isPlain(letter) ? letter : QChar(u'_');
    QStringList parts{QString::number(run.deviceNumber), device, run.test};
    if (!run.language.isEmpty())
        parts.append(run.language);
    return parts.join(u'-');
}

QString numberedReport(const QString &file, int number)
{
    const QString suffix = QFileInfo(file).suffix();
    return QStringLiteral("%1-%2.%3").arg(file.chopped(suffix.size() + 1), QString::number(number), suffix);
}

} // namespace host

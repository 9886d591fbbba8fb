// SPDX-License-Identifier: Apache-2.0
// Writes reports of runs into a folder, as JSON: a whole playback run, one without measurements, a microphone run.
#include "autotests/host/reports/sample_record.h"
#include "host/reports/run_report.h"

#include <QString>

#include <cmath>
#include <cstdio>

namespace {

constexpr int envelopeSteps = 190;
constexpr int bands = 24;

// Two sequences of three digits, each louder than the one before, with texts that leave a browser no place to break them.
host::RunRecord wholeRun()
{
    host::RunRecord record = playbackRecord();
    record.device.name = QString(120, u'W');
    record.device.properties.append({QStringLiteral("DRIVER_NAME"), QString(200, u'x')});
    for (int number = 0; number < 6; ++number) {
        host::HeardDigit digit = heardDigit();
        digit.sequence = 1 + number / 3;
        digit.position = 1 + number % 3;
        digit.score = 0.5 + 0.08 * number;
        digit.levelDbfs = -40.0 + 5.0 * number;
        digit.measured->lowest.clear();
        digit.measured->highest.clear();
        for (int step = 0; step < envelopeSteps; ++step) {
            const double height = 0.1 * (number + 1) * std::sin(step * 0.2) * std::sin(step / 60.5);
            digit.measured->lowest.append(-std::abs(height));
            digit.measured->highest.append(std::abs(height) * 0.9);
        }
        digit.measured->bandLevelsDbfs.clear();
        for (int band = 0; band < bands; ++band)
            digit.measured->bandLevelsDbfs.append(-30.0 - 2.5 * std::abs(band - 3.0 * number));
        record.digits.append(digit);
    }
    return record;
}

host::RunRecord heardRecording()
{
    host::RunRecord record = microphoneRecord();
    for (int step = 0; step < envelopeSteps; ++step) {
        record.recording->lowest.append(-0.4 * std::abs(std::sin(step * 0.05)));
        record.recording->highest.append(0.5 * std::abs(std::sin(step * 0.05)));
    }
    return record;
}

bool write(const host::RunRecord &record, const QString &folder, const char *name)
{
    QString problem;
    const bool isWritten =
        host::writeRunReport(record, QStringLiteral("%1/%2.json").arg(folder, QLatin1String(name)), &problem);
    if (!isWritten)
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    return isWritten;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: write_sample_reports FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const bool areWritten = write(wholeRun(), folder, "whole") && write(fullRecord(), folder, "partly") &&
                            write(heardRecording(), folder, "microphone");
    return areWritten ? 0 : 1;
}

// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/sample_record.h"

#include <QTimeZone>

host::RunRecord playbackRecord()
{
    host::RunRecord record;
    record.testLetter = QStringLiteral("p");
    record.testNameKey = QStringLiteral("AUDIO_PLAYBACK_TEST");
    record.device = {QStringLiteral("Kopfh\u00F6rer \"1\""),
                     QStringLiteral("id 7"),
                     {{QStringLiteral("UDI"), QStringLiteral("u")}, {QStringLiteral("SAMPLE_RATE"), QStringLiteral("48000")}}};
    record.language = QStringLiteral("ja_JP");
    record.startedUtc = QDateTime(QDate(2026, 3, 1), QTime(10, 0, 0, 250), QTimeZone(3600));
    record.endedUtc = record.startedUtc.addMSecs(9500);
    record.moduleCode = 1;
    record.code = 1;
    record.progress = {{0, {}}, {100, QStringLiteral("USER_DID_NOT_REPORT_SOUND")}};
    record.messages = {{QStringLiteral("USER_DID_NOT_REPORT_SOUND"), 2}};
    record.isUnattended = true;
    record.listenedTo = QStringLiteral("Monitor of Speakers");
    record.screenshots = {QStringLiteral("01-prompt.png")};
    record.restoredVolumes = {QStringLiteral("Speakers")};
    return record;
}

host::HeardDigit heardDigit()
{
    host::HeardDigit digit;
    digit.sequence = 2;
    digit.position = 3;
    digit.playedAtMs = 4321;
    digit.heard = 7;
    digit.typed = 0;
    digit.score = 0.987654;
    digit.margin = 0.5;
    digit.latencyMs = 61;
    digit.levelDbfs = -21.04;
    digit.clipped = true;
    digit.measured = host::DigitMeasurement{
        62.34, -83.21, -4.04, -3.12, {-21.04, -60.55}, 17, {-0.25, -0.5, -0.1}, {0.2, 0.4, 0.1}, {-40.0, -30.5, -90.0}};
    return digit;
}

host::HeardDigit missedDigit()
{
    host::HeardDigit digit;
    digit.playedAtMs = -1;
    digit.latencyMs = -1;
    digit.levelDbfs = -120;
    return digit;
}

host::RunRecord fullRecord()
{
    host::RunRecord record = playbackRecord();
    record.digits = {missedDigit(), heardDigit()};
    return record;
}

host::RunRecord microphoneRecord()
{
    host::RunRecord record = playbackRecord();
    record.testLetter = QStringLiteral("m");
    record.testNameKey = QStringLiteral("MICROPHONE_INTERACTIVE_TEST");
    record.moduleCode = record.code = 0;
    record.messages.clear();
    record.volumeComplaint = QStringLiteral("no answer in time");
    host::HeardRecording heard;
    heard.microphone = QStringLiteral("Mic <1>");
    heard.spokenThrough = QStringLiteral("Speakers");
    heard.heardAtMs = 9876;
    heard.score = 0.987654;
    heard.isFound = true;
    heard.latencyMs = -12.4;
    heard.levelDbfs = -20.54;
    heard.peakDbfs = -3.16;
    heard.isSilent = false;
    heard.isMonoInStereo = true;
    heard.lowest = {-0.1234, -0.5};
    heard.highest = {0.25, 0.5678};
    heard.answer = true;
    record.recording = heard;
    return record;
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QWidget>

#include <optional>

class QLabel;
class QListWidget;

namespace host {

/// How the last run ended: the verdict, and its messages, one line for each sentence. What a line is, is said in words and by
/// an icon, never by colour alone.
class ResultPanel : public QWidget {
    Q_OBJECT

public:
    explicit ResultPanel(QWidget *parent = nullptr);

    void showRunning();
    void showRun(const RunRecord &record);
    void retranslate();

private:
    void showVerdict();
    void addMessage(const RunMessage &message);

    QLabel *icon_;
    QLabel *verdict_;
    QLabel *subject_;
    QListWidget *messages_;
    std::optional<RunRecord> record_;
    bool isRunning_ = false;
};

/// "Audio Playback Test: Speakers".
QString subjectOf(const RunRecord &record);

/// The verdict in the language in force.
QString verdictText(const RunRecord &record);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/e2e/loss/heartbeat.h"

#include <QObject>
#include <QPointer>

#include <vector>

namespace ostra {
class AudioPlaybackTestView;
}

/// Works the playback dialog and notes how long its thread did nothing.
class DigitPerson : public QObject {
public:
    /// What is done once the three digits are over.
    enum class Then { repeat, type };

    DigitPerson(ostra::AudioPlaybackTestView &dialog, Then then);

    long long endMs() const { return endMs_; }
    long long longestSilenceMs() const { return heartbeat_.longestSilenceMs(); }
    /// When the digits were over and the button was pressed; 0 before.
    long long repeatedMs() const { return repeatedMs_; }

private:
    void look();
    void type(const std::vector<int> &digits);

    QPointer<ostra::AudioPlaybackTestView> dialog_;
    Then then_;
    bool hasPlayed_ = false;
    bool isDone_ = false;
    Heartbeat heartbeat_;
    long long repeatedMs_ = 0;
    long long endMs_ = 0;
};

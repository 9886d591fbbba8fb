// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/digit_person.h"

#include "autotests/e2e/loss/call_watch.h"
#include "autotests/e2e/loss/fault.h"
#include "views/audio_playback_test_view.h"

#include <QAbstractButton>
#include <QTest>
#include <QTimer>

#include <chrono>

using namespace ostra;

namespace {

constexpr std::chrono::milliseconds lookInterval{20};
constexpr std::size_t digitCount = 3;

} // namespace

DigitPerson::DigitPerson(AudioPlaybackTestView &dialog, Then then) : dialog_(&dialog), then_(then)
{
    connect(&dialog, &QDialog::finished, this, [this] { endMs_ = nowMs(); });
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] { look(); });
    timer->start(lookInterval);
}

void DigitPerson::look()
{
    if (!dialog_ || isDone_)
        return;
    auto *repeat = dialog_->findChild<QAbstractButton *>(QStringLiteral("audio_playback_test_numpad_repeat_button"));
    const std::vector<int> digits = call_watch::digitsLoaded();
    hasPlayed_ = hasPlayed_ || !repeat->isEnabled();
    if (!hasPlayed_ || !repeat->isEnabled() || digits.size() < digitCount)
        return;
    isDone_ = true;
    if (then_ == Then::type)
        return type(digits);
    repeatedMs_ = nowMs();
    repeat->click();
}

void DigitPerson::type(const std::vector<int> &digits)
{
    for (const int digit : digits)
        QTest::keyClick(dialog_.data(), static_cast<Qt::Key>(Qt::Key_0 + digit));
}

// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/closing/test_user.h"

#include "autotests/views/page_probe.h"
#include "tests/audio_widget_wrapper.h"
#include "views/audio_playback_test_view.h"
#include "views/interaction_dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <chrono>
#include <initializer_list>

using namespace ostra;
using page_probe::named;

namespace {

constexpr std::chrono::milliseconds reactionTime{1};
constexpr int digitsOfASequence = 3;

QWidget &pageOf(InteractionDialog &dialog)
{
    return *named<QStackedWidget>(dialog, "microphone_test_popups_space")->currentWidget();
}

void clickIfEnabled(QWidget &page, const char *name)
{
    auto *button = named<QPushButton>(page, name);
    if (button != nullptr && button->isEnabled())
        button->click();
}

void pressPageButton(QWidget &dialog)
{
    auto *microphone = qobject_cast<InteractionDialog *>(&dialog);
    if (microphone == nullptr)
        clickIfEnabled(dialog, "audio_playback_test_fail_button");
    else
        clickIfEnabled(pageOf(*microphone), "microphone_test_cancel_button");
}

// Again and again, at the pace of the pages' ticks, until the dialog is gone: a job that was done before goes on to the next
// page.
void keepPressingPageButton(QWidget &dialog)
{
    pressPageButton(dialog);
    auto *timer = new QTimer(&dialog);
    QObject::connect(timer, &QTimer::timeout, &dialog, [&dialog] {
        if (TestUser::openDialog() == &dialog)
            pressPageButton(dialog);
    });
    timer->start(std::chrono::milliseconds(10));
}

void pressCloseButton(QWidget &dialog)
{
    const bool isMicrophone = qobject_cast<InteractionDialog *>(&dialog) != nullptr;
    clickIfEnabled(dialog, isMicrophone ? "microphone_test_header_close" : "audio_playback_test_header_close");
}

void closeFromTheHost(PollingHost &host, QWidget &dialog)
{
    if (auto *wrapper = dynamic_cast<AudioWidgetWrapper *>(host.wrapper))
        wrapper->closeDialog();
    else
        dialog.close();
}

void endDialog(End kind, PollingHost &host, QWidget &dialog)
{
    QCloseEvent close;
    switch (kind) {
    case End::closeButton:
        pressCloseButton(dialog);
        return;
    case End::escape:
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return;
    case End::pageButton:
        keepPressingPageButton(dialog);
        return;
    case End::hostClose:
        closeFromTheHost(host, dialog);
        return;
    default:
        page_probe::sendSpontaneously(dialog, close);
    }
}

} // namespace

TestUser::TestUser(PollingHost &host, const FakeSound &sound) : host_(host), sound_(sound), closedBefore_(sound.closedCount)
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { act(); });
    timer_.start(reactionTime);
}

QWidget *TestUser::openDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        const auto *dialog = qobject_cast<InputDialog *>(widget);
        if (dialog != nullptr && !dialog->hasFinished() && dialog->isVisible())
            return widget;
    }
    return nullptr;
}

void TestUser::act()
{
    if (host_.showing != PollingHost::Showing::dialog)
        return;
    QWidget *dialog = openDialog();
    if (auto *microphone = qobject_cast<InteractionDialog *>(dialog))
        act(*microphone);
    else if (auto *playback = qobject_cast<AudioPlaybackTestView *>(dialog))
        act(*playback);
}

void TestUser::act(InteractionDialog &dialog)
{
    QWidget &page = pageOf(dialog);
    clickIfEnabled(page, "microphone_test_record_button");
    clickIfEnabled(page, "microphone_test_next_button"); // of the first page and of the last, once it has played
}

void TestUser::act(AudioPlaybackTestView &view)
{
    const bool hasHeardAll = sound_.closedCount - closedBefore_ >= digitsOfASequence * (attempt_ + 1);
    if (!hasHeardAll || !named<QPushButton>(view, "audio_playback_test_numpad_repeat_button")->isEnabled())
        return;
    const int first = attempt_++ == 0 ? Qt::Key_3 : Qt::Key_0;
    for (int digit = 0; digit < digitsOfASequence; ++digit)
        QTest::keyClick(&view, static_cast<Qt::Key>(first + digit));
}

bool bringToAnEnd(End kind, PollingHost &host)
{
    if (host.showing == PollingHost::Showing::nothing)
        return false;
    if (kind == End::event) {
        host.flags = 1;
        return true;
    }
    if (kind == End::watcher) {
        host.wantsStop = true;
        return true;
    }
    if (kind == End::quit) {
        QCoreApplication::quit();
        return true;
    }
    QWidget *dialog = TestUser::openDialog();
    if (dialog == nullptr || host.showing != PollingHost::Showing::dialog)
        return false;
    endDialog(kind, host, *dialog);
    return true;
}

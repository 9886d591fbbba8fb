// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/views/fake_sound.h"
#include "autotests/views/page_probe.h"
#include "contract/test_context.h"
#include "views/interaction_dialog.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

/// The microphone dialog with sound devices that do not exist, and short ways through its pages.
namespace dialog_stage {

inline constexpr int bound = 5000; // ms

class FakeEvents final : public ostra::EventSource {
public:
    std::uint32_t pendingEvents() override
    {
        ++askedCount;
        return flags;
    }
    std::uint32_t flags = 0;
    int askedCount = 0;
};

struct Stage {
    FakeSound sound;
    FakeEvents events;
    std::unique_ptr<ostra::InteractionDialog> dialog =
        std::make_unique<ostra::InteractionDialog>(QStringLiteral("Speakers"), nullptr, nullptr, &events);

    QStackedWidget &pages() { return *page_probe::named<QStackedWidget>(*dialog, "microphone_test_popups_space"); }
    QWidget &page() { return *pages().currentWidget(); }
    ostra::SelectDevice &select() { return *dialog->findChild<ostra::SelectDevice *>(); }
    ostra::RecordAudio &record() { return *dialog->findChild<ostra::RecordAudio *>(); }
    ostra::PlayAudio &play() { return *dialog->findChild<ostra::PlayAudio *>(); }
    QPushButton &close() { return *page_probe::named<QPushButton>(*dialog, "microphone_test_header_close"); }
    void click(const char *name) { QTest::mouseClick(page_probe::named<QPushButton>(page(), name), Qt::LeftButton); }

    void goToRecordPage() { click("microphone_test_next_button"); }
    // Without the five seconds.
    void goToPlayPage()
    {
        goToRecordPage();
        click("microphone_test_record_button");
        QTRY_COMPARE_WITH_TIMEOUT(sound.openedCount.load(), 1, bound);
        for (int tick = 0; tick < 6; ++tick)
            record().OnTimerTick();
        QTRY_VERIFY_WITH_TIMEOUT(!record().job().isBusy(), bound);
        record().OnTimerTick();
        QCOMPARE(&page(), &play());
    }
    /// What exec answers when `action` runs in its loop.
    int resultOf(const std::function<void()> &action)
    {
        QTimer::singleShot(0, dialog.get(), action);
        QTimer late;
        QObject::connect(&late, &QTimer::timeout, dialog.get(), [this] { dialog->done(99); });
        late.start(4 * bound);
        return dialog->exec();
    }
    /// Every device that was opened is closed, and nothing runs.
    bool isQuiet() const { return sound.openedCount == sound.closedCount; }
};

using Action = void (*)(Stage &);

} // namespace dialog_stage

Q_DECLARE_METATYPE(dialog_stage::Action)

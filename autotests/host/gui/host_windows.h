// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/host/gui/fake_module.h"
#include "host/core/language_setting.h"
#include "host/gui/channel_dialog.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/host_prompts.h"
#include "host/gui/key_text.h"
#include "host/gui/level_bar.h"
#include "host/gui/level_window.h"
#include "host/gui/main_window.h"
#include "host/gui/run_bar.h"
#include "host/gui/source_dialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <functional>

/// Every window that the graphical host shows, one after the other, in each state that has texts of its own.
namespace host_windows {

/// Gets a window that is exposed, and a name for the state that it is in.
using Look = std::function<void(QWidget &, const QString &state)>;

/// A run whose digits were measured, as a listener would.
inline void addDigits(host::RunRecord &record)
{
    record.isUnattended = true;
    for (int position = 1; position <= 3; ++position) {
        host::HeardDigit digit;
        digit.position = position;
        digit.heard = digit.typed = position + 3;
        digit.score = 0.98;
        digit.latencyMs = 21;
        digit.levelDbfs = -21.4;
        digit.measured.emplace();
        digit.measured->snrDb = 61.2;
        for (int step = 0; step < 190; ++step) {
            const double height = 0.3 * std::sin(step * 0.1 * position) * std::sin(step / 60.5);
            digit.measured->lowest.append(-std::abs(height));
            digit.measured->highest.append(std::abs(height) * 0.9);
        }
        for (int band = 0; band < 24; ++band)
            digit.measured->bandLevelsDbfs.append(-30.0 - 2.5 * std::abs(band - 6.0 * position));
        record.digits.append(digit);
    }
}

inline std::uint32_t failedRun(ostra::TestContext &context)
{
    context.reporter()->report(100, "AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE");
    context.messages()->addMessage("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE", 2, 0);
    context.messages()->addMessage("POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE, CAMERA_MICROPHONE_MODULE, SPEAKERS", 0, 0);
    return ostra::result::failed;
}

inline void visit(QWidget &window, const QString &state, const Look &look)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    look(window, state);
}

inline void visitMain(host::MainWindow &window, host::TestSession &session, const QString &code, const Look &look)
{
    session.refresh();
    visit(window, QStringLiteral("before"), look);
    session.run(0, 1, code, addDigits);
    auto *tabs = window.findChild<QTabWidget *>(QStringLiteral("host_tabs"));
    visit(window, QStringLiteral("log"), look);
    tabs->setCurrentIndex(1);
    visit(window, QStringLiteral("history"), look);
    tabs->setCurrentIndex(2);
    visit(window, QStringLiteral("measurements"), look);
}

inline void visitDialogs(host::MainWindow &window, const QString &code, const Look &look)
{
    host::ChannelDialog channels({QStringLiteral("Speakers"), QStringLiteral("Monitor of Speakers"), {}, code}, &window);
    visit(channels, QString(), look);
    channels.hide();
    host::SourceDialog source(QStringLiteral("Monitor of Speakers"), &window);
    visit(source, QString(), look);
    source.hide();
    host::InstructionsPrompt instructions(
        QStringLiteral("AUDIO_PLAYBACK_TEST"), QStringLiteral("AUDIO_PLAYBACK_TEST_INSTRUCTIONS"),
        {QStringLiteral("Speakers"), QStringLiteral("Headphones"), QStringLiteral("Microphone")}, &window);
    visit(instructions, QString(), look);
    instructions.hide();
    host::QuestionPrompt question(QStringLiteral("MICROPHONE_INTERACTIVE_TEST"),
                                  QStringLiteral("DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED"), &window);
    visit(question, QString(), look);
    question.hide();
    host::PrecheckPrompt precheck({host::hostText("PRECHECK_DEVICE_MUTED").arg(QStringLiteral("Speakers")),
                                   host::hostText("PRECHECK_MICROPHONE_BLOCKED")},
                                  false, &window);
    visit(precheck, QString(), look);
    precheck.hide();
}

inline void visitRunWindows(host::MainWindow &window, const Look &look)
{
    host::RunBar bar(&window, true);
    visit(bar, QString(), look);
    bar.hide();
    host::LevelWindow levels(&window, QStringLiteral("Monitor of Speakers"));
    levels.findChild<host::LevelBar *>(QStringLiteral("host_level_bar"))->setLevels(-20, 0);
    visit(levels, QString(), look);
}

/// In a language whose translators are installed.
inline void visitAll(const QString &code, const Look &look)
{
    const QTemporaryDir folder;
    host::LanguageSetting language;
    QVERIFY(language.useOwnFolder(folder.path()) && language.change(code));
    FakeModule module;
    module.names = {"Speakers", "A device with quite a long name, such as the second monitor's headphone socket", "HDMI"};
    module.playback = failedRun;
    host::DialogPrompter prompter;
    host::TestSession session(module.interface(), prompter, folder.path());
    host::MainWindow window(session, language, QStringLiteral("4.42.0.92"), true);
    window.setSoundState([] {
        return host::SoundState{true, {{QStringLiteral("Speakers"), QStringLiteral("s"), 137, true, true}}, {{}, true}};
    });
    visitMain(window, session, code, look);
    visitDialogs(window, code, look);
    visitRunWindows(window, look);
}

} // namespace host_windows

// SPDX-License-Identifier: Apache-2.0
#include "host/gui/program.h"

#include "host/core/language_setting.h"
#include "host/core/module_library.h"
#include "host/gui/console_output.h"
#include "host/gui/device_watcher.h"
#include "host/gui/focus_ring.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/interrupt_watcher.h"
#include "host/gui/key_text.h"
#include "host/gui/level_window.h"
#include "host/gui/listening_tools.h"
#include "host/gui/main_window.h"
#include "host/gui/plot_view.h"
#include "host/gui/process_end.h"
#include "host/gui/run_bar.h"
#include "host/gui/run_keys.h"
#include "host/gui/unattended_run.h"
#include "host/operator/listener_link.h"
#include "host/precheck/sound_state.h"
#include "host/translations/translators.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>
#include <utility>

namespace host {

namespace {

constexpr int noModuleExitCode = 6;
constexpr int usageExitCode = 2;

// A run with nobody there leaves no trace in the settings: the windows of another host would go on in one language and speak
// another.
bool settleLanguage(const Options &options, LanguageSetting &language, const QTemporaryDir &passing)
{
    const QString own = options.isUnattended && !options.language.isEmpty() && passing.isValid()
                            ? passing.path()
                            : LanguageSetting::defaultFolder();
    bool isSettled =
        options.configFolder.isEmpty() ? language.useOwnFolder(own) : language.useForeignFolder(options.configFolder);
    if (!options.language.isEmpty())
        isSettled = language.change(options.language) && isSettled;
    installTranslators(language.code());
    return isSettled;
}

int refuseWithoutModule(const Options &options, const ModuleLibrary &library)
{
    complain(library.errorText());
    if (!options.isUnattended)
        QMessageBox::critical(nullptr, shownText(QStringLiteral("APPLICATION_NAME")),
                              hostText("MODULE_CANNOT_BE_USED") + QStringLiteral("\n\n") + library.errorText());
    return noModuleExitCode;
}

void connectRun(TestSession &session, MainWindow &window, RunBar &bar, RunKeys &keys)
{
    QObject::connect(&window, &MainWindow::stopPressed, &session, &TestSession::stop);
    QObject::connect(&bar, &RunBar::stopPressed, &session, &TestSession::stop);
    QObject::connect(&keys, &RunKeys::stopPressed, &session, &TestSession::stop);
    QObject::connect(&window, &MainWindow::eventChosen, &session, &TestSession::raiseEvent);
    QObject::connect(&bar, &RunBar::eventChosen, &session, &TestSession::raiseEvent);
    QObject::connect(&keys, &RunKeys::eventPressed, &session, &TestSession::raiseEvent);
    const auto setRunning = [&bar, &keys](bool isRunning) {
        keys.setRunning(isRunning);
        bar.setRunning(isRunning);
    };
    QObject::connect(&session, &TestSession::runStarted, &bar, [setRunning] { setRunning(true); });
    QObject::connect(&session, &TestSession::runEnded, &bar, [setRunning] { setRunning(false); });
    QObject::connect(&session, &TestSession::preparing, &keys, [&keys](bool isPreparing) { keys.setRunning(isPreparing); });
    QObject::connect(&session, &TestSession::stopRequested, &bar, &RunBar::setStopping);
}

/// All that lives as long as the module does. The order is that of dependence.
class GuiProgram {
public:
    GuiProgram(const Options &options, ModuleLibrary &library, LanguageSetting &language, const InterruptWatcher &interrupts)
        : options_(options), language_(language), session_(*library.module(), prompter_, LanguageSetting::defaultFolder()),
          window_(session_, language, library.productVersion(), options.isDeveloper), bar_(&window_, options.isDeveloper),
          tools_(window_, session_, language, LanguageSetting::defaultFolder(), options.source),
          levels_(&window_, tools_.source()), keys_(options.isDeveloper)
    {
        session_.setModuleVersion(library.productVersion());
        session_.setSchedule(options.schedule);
        window_.setPrecheck([&language](const QString &letter, const QString &device) {
            const QString clips = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files");
            return checkBeforeRun({device, clips, language.code(), letter == QLatin1String("m")});
        });
        window_.setSoundState(readSoundState);
        prompter_.setParents(&window_, &keys_);
        QCoreApplication::instance()->installEventFilter(&keys_);
        connectRun(session_, window_, bar_, keys_);
        connectLevels();
        QObject::connect(&watcher_, &DeviceWatcher::devicesChanged, &session_, &TestSession::refreshWhenQuiet);
        QObject::connect(&interrupts, &InterruptWatcher::interrupted, &window_, &MainWindow::quit);
    }

    int run(bool isLanguageSettled)
    {
        if (!isLanguageSettled)
            window_.log(hostText("LOG_LANGUAGE_NOT_SAVED").arg(QDir::toNativeSeparators(LanguageSetting::defaultFolder())));
        restoreLeftovers();
        window_.show();
        QTimer::singleShot(0, &window_, [this] { begin(); });
        return QCoreApplication::exec();
    }

private:
    // Of an earlier run that ended without its end. On the standard error as well: nobody may be watching the window.
    void restoreLeftovers()
    {
        const QStringList restored = session_.restoreLeftovers();
        const QStringList left = session_.leftAlone();
        QStringList lines;
        if (!restored.isEmpty())
            lines.append(hostText("LOG_VOLUMES_RESTORED").arg(restored.join(QStringLiteral(", "))));
        if (!left.isEmpty())
            lines.append(hostText("LOG_VOLUMES_LEFT").arg(left.join(QStringLiteral(", "))));
        if (!session_.leftoverProblem().isEmpty())
            lines.append(session_.leftoverProblem());
        for (const QString &line : std::as_const(lines)) {
            window_.log(line);
            if (options_.isUnattended)
                complain(line);
        }
    }

    void connectLevels()
    {
        QObject::connect(&session_, &TestSession::runStarted, &levels_, [this](const RunRecord &record) {
            levels_.beginRun();
            window_.showWave({});
            if (record.testLetter == QLatin1String("m") && !tools_.source().isEmpty() && !options_.isUnattended &&
                !tools_.isRunningAlone())
                listen();
        });
        QObject::connect(&tools_, &ListeningTools::sourceChanged, &levels_, &LevelWindow::setSource);
        QObject::connect(&tools_, &ListeningTools::metered, &levels_, &LevelWindow::take);
        QObject::connect(&session_, &TestSession::runEnded, &levels_, [this](const RunRecord &record) {
            ear_.reset();
            window_.showWaveOf(record, levels_.playbackWave());
        });
    }

    // For the eyes of the person who works the dialog; the operator has a listener of its own.
    void listen()
    {
        ear_ = std::make_unique<ListenerLink>();
        QObject::connect(ear_.get(), &ListenerLink::metered, &levels_, &LevelWindow::take);
        QObject::connect(ear_.get(), &ListenerLink::lost, &window_, [this] { window_.log(ear_->errorText()); });
        ear_->launch({QStringLiteral("--source"), tools_.source(), QStringLiteral("--meter")});
    }

    void begin()
    {
        session_.refresh();
        if (!options_.isUnattended)
            return;
        guardProcessEnd(); // again: the module's libraries are there now
        UnattendedRun unattended(session_, options_, language_.code());
        unattended.setMeter([this](const MeteredMoment &moment) { levels_.take(moment); });
        QString problem;
        if (!unattended.prepare(problem)) {
            complain(problem);
            window_.quit(usageExitCode);
            return;
        }
        window_.choose(unattended.test(), unattended.device());
        const int code = unattended.run();
        noteVerdict(code);
        window_.quit(code);
    }

    Options options_;
    LanguageSetting &language_;
    DialogPrompter prompter_;
    TestSession session_;
    MainWindow window_;
    RunBar bar_;
    ListeningTools tools_;
    LevelWindow levels_;
    std::unique_ptr<ListenerLink> ear_;
    RunKeys keys_;
    FocusRing ring_;
    DeviceWatcher watcher_;
};

} // namespace

int runGuiProgram(const Options &options)
{
    QApplication::setQuitOnLastWindowClosed(false); // the end of a test's dialog must not end the program
    const InterruptWatcher interrupts;              // before anything that takes its time
    LanguageSetting language;
    const QTemporaryDir passing;
    const bool isLanguageSettled = settleLanguage(options, language, passing);
    ModuleLibrary library;
    if (!library.open())
        return refuseWithoutModule(options, library);
    GuiProgram program(options, library, language, interrupts);
    return program.run(isLanguageSettled);
}

} // namespace host

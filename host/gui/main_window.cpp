// SPDX-License-Identifier: Apache-2.0
#include "host/gui/main_window.h"

#include "contract/result_codes.h"
#include "host/core/run_reason.h"
#include "host/core/run_warning.h"
#include "host/guardian/guardian_client.h"
#include "host/gui/device_table.h"
#include "host/gui/event_menu.h"
#include "host/gui/history_table.h"
#include "host/gui/host_prompts.h"
#include "host/gui/key_text.h"
#include "host/gui/measurements_page.h"
#include "host/gui/result_panel.h"
#include "host/gui/run_keys.h"
#include "host/gui/run_panel.h"
#include "host/gui/wave_view.h"
#include "host/reports/run_report.h"
#include "host/reports/text_report.h"
#include "host/translations/translators.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTime>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace host {

namespace {

// In letters and lines of the window's font, so that the window has one shape at every resolution.
constexpr int widthInLetters = 150;
constexpr int heightInLines = 50;
constexpr int logLineLimit = 5000;

QSize startSize(const QWidget &window)
{
    const QFontMetrics metrics = window.fontMetrics();
    const QSize wanted(widthInLetters * metrics.averageCharWidth(), heightInLines * metrics.lineSpacing());
    const QSize room = window.screen()->availableSize();
    return wanted.boundedTo(room * 9 / 10);
}

} // namespace

MainWindow::MainWindow(TestSession &session, LanguageSetting &language, QString moduleVersion, bool hasEvents)
    : session_(session), language_(language), moduleVersion_(std::move(moduleVersion)), devicesBox_(new QGroupBox(this)),
      devices_(new DeviceTable(this)), devicesText_(new QLabel(this)), refresh_(new QPushButton(this)),
      tests_(new RunPanel(session.tests(), this)), resultBox_(new QGroupBox(this)), result_(new ResultPanel(this)),
      waveText_(new QLabel(this)), wave_(new WaveView(this)), tabs_(new QTabWidget(this)), log_(new QPlainTextEdit(this)),
      history_(new HistoryTable(this)), measurements_(new MeasurementsPage(this))
{
    setObjectName(QStringLiteral("host_main"));
    makeMenus(hasEvents);
    layOut();
    connectSession();
    retranslate();
    setRunning(false);
    resize(startSize(*this));
}

void MainWindow::layOut()
{
    devicesText_->setObjectName(QStringLiteral("host_devices_text"));
    refresh_->setObjectName(QStringLiteral("host_refresh"));
    auto *foot = new QHBoxLayout;
    foot->addWidget(devicesText_, 1);
    foot->addWidget(refresh_);
    auto *deviceColumn = new QVBoxLayout(devicesBox_);
    deviceColumn->addWidget(devices_);
    deviceColumn->addLayout(foot);
    auto *resultColumn = new QVBoxLayout(resultBox_);
    resultColumn->addWidget(result_);
    resultColumn->addWidget(waveText_);
    resultColumn->addWidget(wave_);
    waveText_->setObjectName(QStringLiteral("host_result_wave_text"));
    waveText_->setWordWrap(true);
    wave_->setObjectName(QStringLiteral("host_result_wave"));
    showWave({});
    log_->setObjectName(QStringLiteral("host_log"));
    log_->setReadOnly(true);
    log_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard); // shows where the keyboard is
    log_->setTabChangesFocus(true);
    log_->setMaximumBlockCount(logLineLimit);
    tabs_->setObjectName(QStringLiteral("host_tabs"));
    tabs_->addTab(log_, QString());
    tabs_->addTab(history_, QString());
    tabs_->addTab(measurements_, QString());
    auto *middle = new QHBoxLayout;
    middle->addWidget(tests_, 1);
    middle->addWidget(resultBox_, 1);
    auto *central = new QWidget(this);
    auto *column = new QVBoxLayout(central);
    column->addWidget(devicesBox_, 3);
    column->addLayout(middle, 4);
    column->addWidget(tabs_, 3);
    setCentralWidget(central);
}

void MainWindow::makeMenus(bool hasEvents)
{
    fileMenu_ = menuBar()->addMenu(QString());
    refreshAction_ = fileMenu_->addAction(QString(), QKeySequence(Qt::Key_F5), &session_, &TestSession::refresh);
    saveAction_ = fileMenu_->addAction(QString(), QKeySequence(Qt::CTRL | Qt::Key_S), this, &MainWindow::chooseReportFile);
    copyAction_ =
        fileMenu_->addAction(QString(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), this, &MainWindow::copyReport);
    fileMenu_->addSeparator();
    quitAction_ = fileMenu_->addAction(QString(), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
    testMenu_ = menuBar()->addMenu(QString());
    runAction_ = testMenu_->addAction(QString(), QKeySequence(Qt::CTRL | Qt::Key_R), this, &MainWindow::runChosen);
    testMenu_->setToolTipsVisible(true);
    runAloneAction_ = testMenu_->addAction(QString(), this, &MainWindow::runAloneChosen);
    stopAction_ = testMenu_->addAction(QString(), this, &MainWindow::stopPressed);
    stopAction_->setShortcut(RunKeys::stopKeys());
    stopAction_->setShortcutContext(Qt::WidgetShortcut); // for the eye and the ear: RunKeys takes them for the whole program
    testMenu_->addSeparator();
    channelsAction_ = testMenu_->addAction(QString(), this, &MainWindow::channelCheckChosen);
    sourceAction_ = testMenu_->addAction(QString(), this, &MainWindow::sourceChosen);
    runAloneAction_->setObjectName(QStringLiteral("host_run_alone"));
    channelsAction_->setObjectName(QStringLiteral("host_check_channels"));
    sourceAction_->setObjectName(QStringLiteral("host_choose_source"));
    makeLanguageMenu();
    if (hasEvents) {
        eventMenu_ = menuBar()->addMenu(QString());
        fillEventMenu(*eventMenu_, this, [this](int bit) { emit eventChosen(bit); });
    }
    helpMenu_ = menuBar()->addMenu(QString());
    aboutAction_ = helpMenu_->addAction(QString(), this, &MainWindow::showAbout);
}

void MainWindow::makeLanguageMenu()
{
    languageMenu_ = menuBar()->addMenu(QString());
    languageMenu_->setToolTipsVisible(true);
    languages_ = new QActionGroup(this);
    const QStringList codes = LanguageSetting::codes();
    for (const QString &code : codes) {
        QAction *entry = languageMenu_->addAction(LanguageSetting::nativeName(code));
        entry->setObjectName(QStringLiteral("host_language_") + code);
        entry->setData(code);
        entry->setCheckable(true);
        entry->setChecked(code == language_.code());
        languages_->addAction(entry);
    }
    connect(languages_, &QActionGroup::triggered, this, [this](QAction *entry) { changeLanguage(entry->data().toString()); });
}

void MainWindow::connectSession()
{
    connect(refresh_, &QPushButton::clicked, &session_, &TestSession::refresh);
    // Later: a run from within the click would keep the button's own event open until it ends.
    connect(tests_, &RunPanel::runPressed, this, &MainWindow::runChosen, Qt::QueuedConnection);
    connect(tests_, &RunPanel::stopPressed, this, &MainWindow::stopPressed);
    connect(devices_, &QTableWidget::itemSelectionChanged, this, &MainWindow::enableRun);
    connect(&session_, &TestSession::devicesAboutToBeRead, this, [this] {
        devicesText_->setText(hostText("READING_DEVICES"));
        devicesText_->repaint(); // the event loop stands still until they are read
    });
    connect(&session_, &TestSession::devicesRead, this, &MainWindow::showDevices);
    connect(&session_, &TestSession::preparing, this, &MainWindow::setRunning);
    connect(&session_, &TestSession::runStarted, this, &MainWindow::showStarted);
    connect(&session_, &TestSession::progressed, tests_, &RunPanel::showProgress);
    connect(&session_, &TestSession::progressed, this, &MainWindow::logProgress);
    connect(&session_, &TestSession::messageAdded, this, &MainWindow::logMessage);
    connect(&session_, &TestSession::stopRequested, this, [this] {
        tests_->setStopping();
        stopAction_->setEnabled(false);
        log(hostText("LOG_STOP_PRESSED"));
    });
    connect(&session_, &TestSession::eventRaised, this, [this](int bit) { log(hostText("LOG_EVENT_SIMULATED").arg(bit)); });
    connect(&session_, &TestSession::volumesUnprotected, this,
            [this](const QString &reason) { log(hostText("LOG_VOLUMES_UNPROTECTED").arg(reason)); });
    connect(&session_, &TestSession::runEnded, this, &MainWindow::showEnded);
}

void MainWindow::choose(qsizetype test, qsizetype device)
{
    tests_->choose(test);
    devices_->choose(device);
}

int MainWindow::chosenTest() const { return tests_->chosen(); }

QString MainWindow::chosenDevice() const { return devices_->chosenName(); }

void MainWindow::setListening(bool isListening)
{
    isListening_ = isListening;
    enableTools();
}

void MainWindow::showWave(const QList<double> &wave, WaveOf what)
{
    shownWave_ = what;
    wave_->setWave(wave);
    waveText_->setText(waveWords(wave, what));
    wave_->setAccessibleName(hostText("METER_WAVE"));
    wave_->setAccessibleDescription(waveText_->text());
    for (QWidget *widget : std::initializer_list<QWidget *>{waveText_, wave_})
        widget->setVisible(!wave.isEmpty());
}

void MainWindow::showWaveOf(const RunRecord &record, const QList<double> &playback)
{
    if (!record.wasModuleCalled) // what there is to show is an earlier run's
        showWave({});
    else if (record.testLetter == QLatin1String("m"))
        showWave(playback, WaveOf::recording);
    else
        showWave(waveOf(record.digits), WaveOf::digits);
}

void MainWindow::log(const QString &line)
{
    log_->appendPlainText(QStringLiteral("%1  %2").arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), line));
}

void MainWindow::changeLanguage(const QString &code)
{
    if (!language_.change(code)) {
        log(hostText("LOG_LANGUAGE_NOT_SAVED").arg(QDir::toNativeSeparators(language_.folder())));
        retranslate();
        return;
    }
    installTranslators(code);
    log(hostText("LOG_LANGUAGE_CHANGED").arg(LanguageSetting::nativeName(code)));
    session_.refresh();
}

void MainWindow::runChosen()
{
    if (mayRun() && isWarnedOfLoudness())
        session_.run(tests_->chosen(), devices_->chosen(), language_.code());
}

// Only shown: nothing is mended behind the person's back, and a run that would blame the device wrongly does not take place.
bool MainWindow::mayRun()
{
    const int test = tests_->chosen();
    if (!precheck_ || session_.isRunning() || test < 0 || devices_->chosen() < 0)
        return true;
    const QList<PrecheckFinding> findings = precheck_(session_.tests()[test].letter, devices_->chosenName());
    QStringList sentences;
    QString refusal;
    for (const PrecheckFinding &finding : findings) {
        sentences.append(precheckText(finding));
        log(sentences.last());
        if (finding.isBlocking() && refusal.isEmpty())
            refusal = reasonWords(precheckKey(finding.what), {finding.subject});
    }
    if (findings.isEmpty())
        return true;
    PrecheckPrompt prompt(sentences, !refusal.isEmpty(), this);
    const bool isWanted = prompt.exec() == QDialog::Accepted;
    if (!refusal.isEmpty())
        session_.refuse(test, devices_->chosen(), language_.code(), refusal); // the device may have gone meanwhile
    return isWanted && refusal.isEmpty();
}

// The playback test asks for itself.
bool MainWindow::isWarnedOfLoudness()
{
    const int test = tests_->chosen();
    const bool isMicrophoneTest = test >= 0 && session_.tests()[test].letter == QLatin1String("m");
    return !isMicrophoneTest || acceptsLoudness(QStringLiteral("MICROPHONE_TEST_INSTRUCTIONS"));
}

bool MainWindow::acceptsLoudness(const QString &text)
{
    const int test = tests_->chosen();
    const QString device = devices_->chosenName();
    if (test < 0 || device.isEmpty() || session_.isRunning() || warnedOf_.contains(device))
        return true;
    InstructionsPrompt prompt(session_.tests()[test].nameKey, text, endpointsThatWillBeRaised(), this);
    if (prompt.exec() != QDialog::Accepted)
        return false;
    warnedOf_.append(device);
    return true;
}

bool MainWindow::saveReport(const QString &file)
{
    QString problem;
    if (session_.history().isEmpty())
        return false;
    const bool isSaved =
        writeRunReport(session_.history().last(), file, &problem, [](const QString &key) { return shownText(key); });
    log(isSaved ? hostText("LOG_REPORT_SAVED").arg(QDir::toNativeSeparators(file))
                : hostText("LOG_REPORT_NOT_SAVED").arg(problem));
    return isSaved;
}

void MainWindow::chooseReportFile()
{
    const QString formats = QStringLiteral("HTML (*.html);;JSON (*.json);;JUnit XML (*.xml);;TXT (*.txt)");
    QString chosen;
    QString file = QFileDialog::getSaveFileName(this, hostText("SAVE_REPORT"), QStringLiteral("report.html"), formats, &chosen);
    // Where the question about overwriting closes right before the file dialog, some window managers give the keyboard to
    // no window of ours; both are gone by now, so asking for it once more leaves no one without it.
    activateWindow();
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty()) // not every dialog adds it
        file += chosen.mid(chosen.indexOf(u'.')).chopped(1);
    saveReport(file);
}

void MainWindow::copyReport()
{
    if (session_.history().isEmpty())
        return;
    const QByteArray report = runReport(session_.history().last(), [](const QString &key) { return shownText(key); });
    QApplication::clipboard()->setText(QString::fromUtf8(textReport(QJsonDocument::fromJson(report).object())));
    log(hostText("LOG_REPORT_COPIED"));
}

void MainWindow::showDevices(bool isComplete)
{
    const QList<Device> &devices = session_.deviceList().devices();
    const QString before = hasDevices_ ? devices_->chosenName() : QString();
    devices_->setDevices(devices);
    hasDevices_ = true;
    showState();
    devicesText_->setText(devicesWords());
    log(isServerSilent_ ? devicesWords() : hostText("DEVICES_FOUND").arg(devices.size()));
    if (!isComplete)
        log(hostText("LOG_LIST_INCOMPLETE"));
    if (!before.isEmpty() && devices_->chosen() < 0)
        log(hostText("LOG_DEVICE_GONE").arg(before));
    warnedOf_.clear(); // as the playback test, which asks anew then
    enableRun();
}

// During a run every volume is the run's own.
void MainWindow::showState()
{
    if (!readState_ || session_.isRunning())
        return;
    const SoundState state = readState_();
    isServerSilent_ = !state.isAnswering && session_.deviceList().devices().isEmpty();
    devices_->setState(state);
}

void MainWindow::enableRun()
{
    const bool canRun = devices_->chosen() >= 0;
    tests_->setCanRun(canRun);
    runAction_->setEnabled(canRun && !session_.isRunning());
    enableTools();
}

void MainWindow::showStarted(const RunRecord &record)
{
    setRunning(true);
    log(hostText("LOG_RUN_STARTED").arg(shownText(record.testNameKey), record.device.name));
}

void MainWindow::showEnded(const RunRecord &record)
{
    setRunning(false);
    result_->showRun(record);
    measurements_->showRun(record);
    history_->add(record);
    const QString ended = hostText("LOG_RUN_ENDED").arg(shownText(record.testNameKey), record.device.name, verdictText(record));
    log(record.microphone.isEmpty() ? ended : hostText("WITH_MICROPHONE").arg(ended, record.microphone));
    const QList<RunReason> warnings = warningsOf(record);
    for (const RunReason &warning : warnings)
        log(shownReason(warning));
    if (!record.reason.isEmpty())
        log(shownReason(record.reason));
    if (!record.wasModuleCalled)
        tests_->showProgress(0, {}); // what an earlier run left there
    showState();
    if (!record.restoredVolumes.isEmpty())
        log(hostText("LOG_VOLUMES_PUT_BACK").arg(record.restoredVolumes.join(QStringLiteral(", "))));
    if (exitCode_)
        QCoreApplication::exit(*exitCode_);
}

void MainWindow::logProgress(std::uint32_t percent, const QString &text)
{
    const QString shown = shownText(text);
    const QString line = hostText("LOG_PROGRESS").arg(percent);
    log(shown.isEmpty() ? line : QStringLiteral("%1 – %2").arg(line, shown));
}

void MainWindow::logMessage(const QString &text, std::uint32_t level)
{
    const QString kind = hostText(level == ostra::message_level::error ? "LEVEL_ERROR" : "LEVEL_NOTE");
    const QStringList sentences = shownSentences(text);
    for (const QString &sentence : sentences)
        log(QStringLiteral("%1: %2").arg(kind, sentence));
}

void MainWindow::setRunning(bool isRunning)
{
    if (isRunning)
        result_->showRunning();
    tests_->setRunning(isRunning);
    devices_->setEnabled(!isRunning);
    refresh_->setEnabled(!isRunning);
    refreshAction_->setEnabled(!isRunning);
    runAction_->setEnabled(!isRunning && devices_->chosen() >= 0);
    stopAction_->setEnabled(isRunning);
    enableTools();
    for (QAction *action : {saveAction_, copyAction_})
        action->setEnabled(!isRunning && !session_.history().isEmpty());
    languages_->setEnabled(!isRunning && language_.canChange());
    if (eventMenu_ != nullptr)
        eventMenu_->setEnabled(isRunning);
}

void MainWindow::enableTools()
{
    const bool canPlay = !session_.isRunning() && devices_->chosen() >= 0;
    runAloneAction_->setEnabled(canPlay && isListening_);
    explainRunAlone();
    channelsAction_->setEnabled(canPlay);
    sourceAction_->setEnabled(!session_.isRunning());
}

// An interruption outranks the verdict of the run that it ended, and a verdict the window's close button.
void MainWindow::quit(int exitCode)
{
    exitCode_ = std::max(exitCode_.value_or(0), exitCode);
    if (session_.isRunning())
        session_.stop();
    else
        QCoreApplication::exit(*exitCode_);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!session_.isRunning());
    if (session_.isRunning())
        log(hostText("PROGRAM_IS_CLOSING"));
    quit(0);
}

void MainWindow::showAbout()
{
    const QString versions = hostText("ABOUT_VERSIONS").arg(moduleVersion_, QCoreApplication::applicationVersion()) +
                             QStringLiteral("\n\n") + hostText("ABOUT_WHICH_VERSION");
    QMessageBox::about(this, hostText("ABOUT"), QStringLiteral("%1\n\n%2").arg(windowTitle(), versions));
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && hasDevices_)
        showState(); // a mixer may have been at work meanwhile
    QMainWindow::changeEvent(event);
}

} // namespace host

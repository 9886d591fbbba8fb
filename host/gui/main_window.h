// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/language_setting.h"
#include "host/gui/level_words.h"
#include "host/gui/test_session.h"
#include "host/precheck/precheck.h"
#include "host/precheck/sound_state.h"

#include <QMainWindow>

#include <functional>
#include <utility>

class QAction;
class QActionGroup;
class QGroupBox;
class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

namespace host {

class DeviceTable;
class HistoryTable;
class MeasurementsPage;
class ResultPanel;
class RunPanel;
class WaveView;

/// The program's one window. Shows the session and works it; owns neither.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `versions` is what the box about the program says; `hasEvents` adds the developers' menu.
    MainWindow(TestSession &session, LanguageSetting &language, QString moduleVersion, bool hasEvents);

    /// Chooses a device and a test by position.
    void choose(qsizetype test, qsizetype device);
    /// Position of the chosen test; -1 when there is none.
    int chosenTest() const;
    /// Name of the chosen device; empty when none is chosen.
    QString chosenDevice() const;
    /// Whether there is a source to listen to, without which no run can do without a person.
    void setListening(bool isListening);
    /// Shows a waveform beside the result; none when empty.
    void showWave(const QList<double> &wave, WaveOf what = WaveOf::recording);
    /// Shows what was heard of a run: its digits, or `playback`, the last one of its recording.
    void showWaveOf(const RunRecord &record, const QList<double> &playback);
    /// Warns that a run on the chosen device will raise the volumes, with `text`, a key, unless the person has accepted it for
    /// that device. False when the person declines.
    bool acceptsLoudness(const QString &text);
    /// What to look at before a run that a person starts; nothing is looked at without it.
    using Precheck = std::function<QList<PrecheckFinding>(const QString &testLetter, const QString &device)>;
    void setPrecheck(Precheck precheck) { precheck_ = std::move(precheck); }
    /// Tells the volumes as they are now, and whether there is a sound server at all; nothing is told of them without it.
    void setSoundState(std::function<SoundState()> read) { readState_ = std::move(read); }
    /// Writes the report of the last run, by the file's suffix as .json, .xml, .html or .txt. False with a line in the log.
    bool saveReport(const QString &file);
    /// Copies that report as text.
    void copyReport();
    /// Adds a line to the log, with the time.
    void log(const QString &line);
    /// Writes the language, translates everything and lists the devices anew: the module reads it only then.
    void changeLanguage(const QString &code);
    /// Ends the program, after the run when one is under way.
    void quit(int exitCode);

signals:
    void stopPressed();
    void eventChosen(int bit);
    void runAloneChosen();
    void channelCheckChosen();
    void sourceChosen();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeMenus(bool hasEvents);
    void makeLanguageMenu();
    void layOut();
    void connectSession();
    void runChosen();
    bool mayRun();
    bool isWarnedOfLoudness();
    void enableRun();
    void chooseReportFile();
    void showDevices(bool isComplete);
    void showState();
    QString devicesWords() const;
    void showStarted(const RunRecord &record);
    void showEnded(const RunRecord &record);
    void logProgress(std::uint32_t percent, const QString &text);
    void logMessage(const QString &text, std::uint32_t level);
    void setRunning(bool isRunning);
    void enableTools();
    void explainRunAlone();
    void showAbout();
    void retranslate();
    void retranslateMenus();
    void assignMnemonics();

    TestSession &session_;
    LanguageSetting &language_;
    QString moduleVersion_;
    QGroupBox *devicesBox_;
    DeviceTable *devices_;
    QLabel *devicesText_;
    QPushButton *refresh_;
    RunPanel *tests_;
    QGroupBox *resultBox_;
    ResultPanel *result_;
    QLabel *waveText_;
    WaveView *wave_;
    WaveOf shownWave_ = WaveOf::recording;
    QTabWidget *tabs_;
    QPlainTextEdit *log_;
    HistoryTable *history_;
    MeasurementsPage *measurements_;
    QMenu *fileMenu_ = nullptr;
    QMenu *testMenu_ = nullptr;
    QMenu *languageMenu_ = nullptr;
    QMenu *eventMenu_ = nullptr;
    QMenu *helpMenu_ = nullptr;
    QAction *refreshAction_ = nullptr;
    QAction *saveAction_ = nullptr;
    QAction *copyAction_ = nullptr;
    QAction *quitAction_ = nullptr;
    QAction *runAction_ = nullptr;
    QAction *runAloneAction_ = nullptr;
    QAction *stopAction_ = nullptr;
    QAction *channelsAction_ = nullptr;
    QAction *sourceAction_ = nullptr;
    QAction *aboutAction_ = nullptr;
    QActionGroup *languages_ = nullptr;
    std::optional<int> exitCode_; // asked for during a run
    bool hasDevices_ = false;
    bool isListening_ = false;
    Precheck precheck_;
    std::function<SoundState()> readState_;
    bool isServerSilent_ = false;
    QStringList warnedOf_; ///< devices whose loudness the person has accepted
};

} // namespace host

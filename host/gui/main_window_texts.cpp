// SPDX-License-Identifier: Apache-2.0
#include "host/gui/device_table.h"
#include "host/gui/event_menu.h"
#include "host/gui/history_table.h"
#include "host/gui/key_text.h"
#include "host/gui/main_window.h"
#include "host/gui/measurements_page.h"
#include "host/gui/mnemonics.h"
#include "host/gui/result_panel.h"
#include "host/gui/run_panel.h"
#include "host/gui/wave_view.h"

#include <QActionGroup>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

namespace host {

void MainWindow::retranslate()
{
    setWindowTitle(shownText(QStringLiteral("APPLICATION_NAME")));
    devicesBox_->setTitle(hostText("DEVICES"));
    devices_->retranslate();
    devicesText_->setText(devicesWords());
    refresh_->setAccessibleName(hostText("REFRESH_DEVICES"));
    refresh_->setToolTip(hostText("REFRESH_DEVICES_HINT"));
    tests_->retranslate();
    resultBox_->setTitle(hostText("RESULT"));
    result_->retranslate();
    showWave(wave_->wave(), shownWave_);
    tabs_->setTabText(0, hostText("LOG"));
    tabs_->setTabText(1, hostText("HISTORY"));
    tabs_->setTabText(2, hostText("MEASUREMENTS"));
    tabs_->setAccessibleName(hostText("LOG"));
    log_->setAccessibleName(hostText("LOG"));
    history_->retranslate(language_.code());
    measurements_->retranslate();
    retranslateMenus();
    assignMnemonics();
}

QString MainWindow::devicesWords() const
{
    const auto count = session_.deviceList().devices().size();
    if (count == 0)
        return hostText(isServerSilent_ ? "SOUND_SERVER_SILENT" : "NO_DEVICES");
    return hostText("DEVICES_FOUND").arg(count);
}

void MainWindow::retranslateMenus()
{
    const QStringList file =
        withMnemonics({hostText("REFRESH_DEVICES"), hostText("SAVE_REPORT"), hostText("COPY_REPORT"), hostText("QUIT")});
    refreshAction_->setText(file[0]);
    saveAction_->setText(file[1]);
    copyAction_->setText(file[2]);
    quitAction_->setText(file[3]);
    const QStringList test = withMnemonics({hostText("RUN_TEST"), hostText("STOP_TEST"), hostText("RUN_UNATTENDED"),
                                            hostText("CHECK_CHANNELS"), hostText("LISTENING_SOURCE")});
    runAction_->setText(test[0]);
    stopAction_->setText(test[1]);
    runAloneAction_->setText(test[2]);
    explainRunAlone();
    channelsAction_->setText(test[3]);
    sourceAction_->setText(test[4]);
    aboutAction_->setText(withMnemonics({hostText("ABOUT")}).first());
    for (QAction *entry : languages_->actions()) {
        entry->setChecked(entry->data().toString() == language_.code());
        entry->setToolTip(language_.canChange() ? QString() : hostText("LANGUAGE_IS_FIXED"));
    }
    if (eventMenu_ != nullptr)
        retranslateEventMenu(*eventMenu_);
}

// A grey entry with no reason looks like a fault.
void MainWindow::explainRunAlone()
{
    const QString why = isListening_ ? QString() : hostText("RUN_UNATTENDED_NO_SOURCE");
    runAloneAction_->setToolTip(why);
    runAloneAction_->setStatusTip(why);
}

// The menus and the buttons share the letters of the window.
void MainWindow::assignMnemonics()
{
    const QStringList texts =
        withMnemonics({hostText("MENU_FILE"), hostText("MENU_TEST"), hostText("MENU_LANGUAGE"), hostText("MENU_HELP"),
                       hostText("REFRESH_DEVICES"), hostText("RUN_TEST"), hostText("STOP_TEST"), hostText("MENU_DEVELOPER")});
    fileMenu_->setTitle(texts[0]);
    testMenu_->setTitle(texts[1]);
    languageMenu_->setTitle(texts[2]);
    helpMenu_->setTitle(texts[3]);
    refresh_->setText(texts[4]);
    tests_->runButton()->setText(texts[5]);
    tests_->stopButton()->setText(texts[6]);
    if (eventMenu_ != nullptr)
        eventMenu_->setTitle(texts[7]);
    for (QMenu *menu : menuBar()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly))
        menu->setAccessibleName(QString(menu->title()).remove(u'&'));
}

} // namespace host

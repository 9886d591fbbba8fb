// SPDX-License-Identifier: Apache-2.0
#include "host/gui/listening_tools.h"

#include "host/core/language_setting.h"
#include "host/gui/channel_dialog.h"
#include "host/gui/key_text.h"
#include "host/gui/main_window.h"
#include "host/gui/source_dialog.h"
#include "host/gui/unattended_run.h"

#include <QCoreApplication>
#include <QDir>
#include <QScopeGuard>

namespace host {

ListeningTools::ListeningTools(MainWindow &window, TestSession &session, const LanguageSetting &language,
                               const QString &stateFolder, const QString &onceSource)
    : window_(window), session_(session), language_(language), setting_(stateFolder)
{
    if (!onceSource.isEmpty())
        setting_.useOnce(onceSource);
    window_.setListening(!source().isEmpty());
    connect(&window, &MainWindow::sourceChosen, this, &ListeningTools::chooseSource);
    connect(&window, &MainWindow::channelCheckChosen, this, &ListeningTools::checkChannels);
    // Later: a run from within the menu would keep its event open until it ends.
    connect(&window, &MainWindow::runAloneChosen, this, &ListeningTools::runAlone, Qt::QueuedConnection);
}

void ListeningTools::chooseSource()
{
    SourceDialog dialog(source(), &window_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!setting_.change(dialog.chosen()))
        window_.log(hostText("LOG_SETTINGS_NOT_SAVED").arg(QDir::toNativeSeparators(setting_.folder())));
    window_.log(hostText("LOG_SOURCE").arg(source().isEmpty() ? hostText("SOURCE_NONE") : source()));
    window_.setListening(!source().isEmpty());
    emit sourceChanged(source());
}

void ListeningTools::checkChannels()
{
    const QString device = window_.chosenDevice();
    if (session_.isRunning() || device.isEmpty())
        return;
    QString reason;
    const std::unique_ptr<VolumeLock> lock = session_.holdVolumes(reason);
    if (lock == nullptr) {
        window_.log(hostText("REASON_VOLUMES_HELD"));
        return;
    }
    const QString clips = QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files");
    ChannelDialog dialog({device, source(), clips, language_.code()}, &window_);
    dialog.exec();
    if (!dialog.check())
        return;
    session_.noteChannels(device, *dialog.check());
    window_.log(hostText("LOG_CHANNELS").arg(device, channelWords(*dialog.check())));
}

void ListeningTools::runAlone()
{
    const int test = window_.chosenTest();
    const QString device = window_.chosenDevice(); // the one that the person is warned of, whatever is plugged in meanwhile
    if (session_.isRunning() || test < 0 || source().isEmpty())
        return;
    if (!window_.acceptsLoudness(QStringLiteral("UNATTENDED_INSTRUCTIONS")))
        return;
    Options options;
    options.isUnattended = true;
    options.test = session_.tests()[test].letter;
    options.device = device;
    options.source = source();
    UnattendedRun run(session_, options, language_.code());
    run.setMeter([this](const MeteredMoment &moment) { emit metered(moment); });
    QString problem;
    if (!run.prepare(problem)) {
        window_.log(problem);
        return;
    }
    isRunningAlone_ = true;
    const auto over = qScopeGuard([this] { isRunningAlone_ = false; });
    run.perform();
}

} // namespace host

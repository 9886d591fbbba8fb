// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/gui/source_setting.h"
#include "host/gui/test_session.h"

#include <QObject>
#include <QString>

namespace host {

class LanguageSetting;
class MainWindow;
struct MeteredMoment;

/// What the window offers around the capture source that is listened to: choosing it, checking a device's left and right, and a
/// run with nobody there. Needs them all as long as it lives.
class ListeningTools : public QObject {
    Q_OBJECT

public:
    /// \param onceSource in force instead of the setting's, which it leaves alone; empty for none
    ListeningTools(MainWindow &window, TestSession &session, const LanguageSetting &language, const QString &stateFolder,
                   const QString &onceSource);

    const QString &source() const noexcept { return setting_.source(); }
    /// A run that this class started is under way; it has a listener of its own.
    bool isRunningAlone() const noexcept { return isRunningAlone_; }

    void chooseSource();
    void checkChannels();
    void runAlone();

signals:
    void sourceChanged(const QString &source);
    /// Of a run with nobody there.
    void metered(const host::MeteredMoment &moment);

private:
    MainWindow &window_;
    TestSession &session_;
    const LanguageSetting &language_;
    SourceSetting setting_;
    bool isRunningAlone_ = false;
};

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/host/gui/fake_module.h"
#include "host/core/language_setting.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/main_window.h"
#include "host/gui/test_session.h"

#include <QDir>
#include <QTemporaryDir>

/// The window on a module of the test's own.
struct ShownProgram {
    explicit ShownProgram(bool hasEvents = false) : window(session, language, QStringLiteral("4.42.0.92"), hasEvents)
    {
        session.refresh();
        window.show();
    }

    template <typename Widget>
    Widget *find(const char *name)
    {
        return window.findChild<Widget *>(QLatin1String(name));
    }

    // Windows removes no folder that is a process's current one.
    struct Folder : QTemporaryDir {
        Folder() : before(QDir::currentPath()) {}
        ~Folder() { QDir::setCurrent(before); }
        QString before;
    } folder;
    struct Language : host::LanguageSetting {
        explicit Language(const QString &path) { useOwnFolder(path); }
    } language{folder.path()};
    FakeModule module;
    host::DialogPrompter prompter;
    host::TestSession session{module.interface(), prompter, folder.path()};
    host::MainWindow window;
};

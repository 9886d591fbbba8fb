// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/exports.h"

#include <QLibrary>
#include <QString>

namespace host {

/// The diagnostics module in this process. One at a time, used and destroyed on the main thread.
class ModuleLibrary {
public:
    /// Where the module belongs: in the folder of the running program, which makes the path absolute. A bare name would let
    /// the system's search path decide whose code runs. Needs the application object.
    static QString defaultPath();

    explicit ModuleLibrary(const QString &path = defaultPath());
    /// Gives the instance back. Every pointer that came from it dies here.
    ~ModuleLibrary();
    ModuleLibrary(const ModuleLibrary &) = delete;
    ModuleLibrary &operator=(const ModuleLibrary &) = delete;

    /// Loads the library and finds its three exports. False with `errorText()` when it is missing, cannot be loaded or lacks
    /// an export. Loading twice is one load.
    bool load();
    /// Loads and gets the instance, which starts the sound layer and blocks as long as the sound server takes. False with
    /// `errorText()` when that fails. Opening twice is one opening.
    bool open();

    /// Absolute path of the library file.
    const QString &path() const noexcept { return path_; }
    /// One line for the user, empty while nothing has failed.
    const QString &errorText() const noexcept { return errorText_; }
    /// Such as "4.42.0.92"; empty before a successful `load`.
    QString productVersion() const;
    /// Null before a successful `open`. Owned by the module.
    ostra::ModuleInterface *module() const noexcept { return module_; }

private:
    bool fail(const QString &reason);
    bool resolveExports();

    QString path_;
    QLibrary library_;
    QString errorText_;
    GetModuleInterfaceInstanceFunction *getInstance_ = nullptr;
    ReleaseModuleInterfaceInstanceFunction *releaseInstance_ = nullptr;
    GetProductVersionFunction *getProductVersion_ = nullptr;
    ostra::ModuleInterface *module_ = nullptr;
};

} // namespace host

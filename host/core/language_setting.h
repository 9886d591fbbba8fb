// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// The one language of the program: of its windows, of the module's dialogs and of the digits that are spoken.
///
/// The module reads it from "config.ini" in the current folder, each time it lists the devices. So this class owns the file and
/// the current folder; whoever changes the language lists the devices again. Main thread only.
class LanguageSetting {
public:
    /// The nine codes that there are clips and texts for, in the order in which a user is offered them.
    static QStringList codes();
    /// What the language calls itself, such as "Deutsch".
    static QString nativeName(const QString &code);
    /// The program's own folder for its state. Needs the application's name.
    static QString defaultFolder();

    /// Uses the program's own `folder`, made when it is missing. The language that its file names stays in force; without one
    /// it is the system's.
    bool useOwnFolder(const QString &folder = defaultFolder());
    /// Uses somebody else's folder, whose file is only read: the language cannot be changed then.
    bool useForeignFolder(const QString &folder);

    /// Writes the file and makes `code` the language. False, with everything as before, for a code that is none of `codes`, a
    /// foreign folder, or a file that cannot be written.
    bool change(const QString &code);
    bool canChange() const noexcept { return isOwn_; }

    /// One of `codes`.
    const QString &code() const noexcept { return code_; }
    /// Absolute path of the folder in use.
    const QString &folder() const noexcept { return folder_; }

private:
    bool enter(const QString &folder);

    QString folder_;
    QString code_ = QStringLiteral("en_US");
    bool isOwn_ = false;
};

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace host {

/// One ability of this installation that only a program with windows can tell of.
struct WindowCheck {
    QString name; ///< such as "fonts: Japanese"
    bool isThere = false;
    QString lacking; ///< what does not work without it
    bool isLimit = true; ///< every test still comes to its verdict without it
};

/// Texts of this program and of the toolkit in each language, pictures of the dialogs, and signs of Chinese and Japanese. Needs
/// the application object of a program with windows, but shows none.
QList<WindowCheck> checkWindows();

/// As one line of JSON for `TamrexDiagnosticsCLI info --self-check`: a list of objects with "name", "ok", "limit"
/// and "lacking".
QByteArray windowCheckLine(const QList<WindowCheck> &checks);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>

namespace ostra::utils {

/// What a selector is about: its last part, "QDialog QTableView#list::item:selected:!active" being an item of a QTableView.
struct StyleSubject {
    QString type;       ///< class name without "." or "*"; empty for any
    QString name;       ///< object name, or empty
    QString subControl; ///< "item", "indicator", ..., or empty
    QStringList states; ///< "selected", ...; those with "!" are left out

    /// Of one selector, no list.
    static StyleSubject of(const QString &selector);
    /// The subject of the same selector with ":state" behind it, for one without a sub-control.
    StyleSubject withState(const QString &state) const;

    bool isAnyOf(std::initializer_list<const char *> types) const;
    bool isPart(std::initializer_list<const char *> subControls) const;
    bool hasAnyOf(std::initializer_list<const char *> states) const;
};

} // namespace ostra::utils

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>
#include <QProcess>

class QComboBox;

namespace host {

/// Asks which capture source shall be listened to. The listener names the sources, in its own process; until it has, there are
/// none and the one in force.
class SourceDialog : public QDialog {
    Q_OBJECT

public:
    explicit SourceDialog(const QString &inForce, QWidget *parent = nullptr);
    ~SourceDialog() override; ///< ends the listener

    /// Name of the chosen source; empty for none.
    QString chosen() const;

private:
    void takeSources();

    QString inForce_;
    QComboBox *choice_;
    QProcess listener_;
};

} // namespace host

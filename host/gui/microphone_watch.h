// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>

namespace host {

/// Learns which microphone is tested, as a person sees it: from the choice in the dialog, at the moment at which the page that
/// records with it comes up. Watches the whole program while it lives. GUI thread.
class MicrophoneWatch : public QObject {
    Q_OBJECT

public:
    explicit MicrophoneWatch(QObject *parent = nullptr);

    /// Empty where the dialog has recorded with none so far.
    const QString &name() const noexcept { return name_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString name_;
};

} // namespace host

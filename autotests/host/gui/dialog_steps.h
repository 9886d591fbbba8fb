// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QList>
#include <QTimer>

#include <functional>
#include <utility>

/// Works the modal dialog that comes next, as a person does: takes each step as soon as the dialog lets it. Past its limit it
/// closes the dialog, so that the test goes on and fails. `DialogType` is the dialog's class.
template <typename DialogType>
class DialogSteps {
public:
    /// Whether it could be taken; asked again until it could.
    using Step = std::function<bool(DialogType &dialog)>;

    explicit DialogSteps(QList<Step> steps, int limitMs = 30'000) : steps_(std::move(steps)), limit_(limitMs)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { advance(); });
        timer_.start(20);
    }

    bool areTaken() const { return steps_.isEmpty(); }

private:
    void advance()
    {
        QWidget *modal = QApplication::activeModalWidget();
        auto *dialog = qobject_cast<DialogType *>(modal);
        if (limit_.hasExpired() && modal != nullptr)
            modal->close();
        else if (dialog != nullptr && !steps_.isEmpty() && steps_.first()(*dialog))
            steps_.removeFirst();
    }

    QList<Step> steps_;
    QDeadlineTimer limit_;
    QTimer timer_;
};

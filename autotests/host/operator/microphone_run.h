// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/operator/test_operator.h"

#include <QDialog>
#include <QString>
#include <QStringList>

class StandInMicrophone;

/// The host's question: two buttons that end it.
class Question : public QDialog {
    Q_OBJECT

public:
    Question();

    const QString &answer() const { return answer_; } ///< "yes", "no" or nothing

private:
    QString answer_;
};

/// Those that the dialog offers.
QStringList microphones();

/// Speaks through "Speakers" to "Head & set" and listens to a monitor.
host::OperatorSettings microphoneSettings();

/// Runs the dialog, and the question after it as the module does, under the operator. Takes five seconds.
host::RunRecord runMicrophone(StandInMicrophone &dialog, Question &question, const host::OperatorSettings &given);

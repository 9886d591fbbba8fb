// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/operator/microphone_run.h"

#include "autotests/host/operator/stand_in_microphone.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

constexpr int limitMs = 60'000;

} // namespace

Question::Question()
{
    setObjectName(QStringLiteral("host_question"));
    auto *column = new QVBoxLayout(this);
    for (const char *answer : {"yes", "no"}) {
        auto *button = new QPushButton(QLatin1String(answer));
        button->setObjectName(QStringLiteral("host_question_") + QLatin1String(answer));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, answer] {
            answer_ = QLatin1String(answer);
            done(1);
        });
        column->addWidget(button);
    }
}

QStringList microphones()
{
    return {QStringLiteral("Mic"), QStringLiteral("Camera"), QStringLiteral("Line in"), QStringLiteral("Head & set")};
}

host::OperatorSettings microphoneSettings()
{
    host::OperatorSettings made;
    made.source = QStringLiteral("Monitor of Speakers");
    made.language = QStringLiteral("en_US");
    made.sentence = QStringLiteral("audio files/sentence.wav");
    made.microphone = QStringLiteral("Head & set");
    made.speakThrough = QStringLiteral("Speakers");
    return made;
}

host::RunRecord runMicrophone(StandInMicrophone &dialog, Question &question, const host::OperatorSettings &given)
{
    host::TestOperator person(given);
    host::RunRecord record;
    if (!person.start())
        qFatal("%s", qPrintable(person.errorText()));
    QSignalSpy finished(&dialog, &QDialog::finished);
    QSignalSpy answered(&question, &QDialog::finished);
    person.beginRun();
    dialog.show();
    if (finished.isEmpty() && !finished.wait(limitMs))
        dialog.hide();
    if (dialog.outcome() == StandInMicrophone::Outcome::heard) {
        question.open();
        if (answered.isEmpty() && !answered.wait(limitMs))
            question.hide();
    }
    person.endRun(record);
    return record;
}

// SPDX-License-Identifier: Apache-2.0
#include "host/gui/source_dialog.h"

#include "host/gui/key_text.h"
#include "host/gui/prompt_parts.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int endLimitMs = 3'000;
constexpr int widthInLetters = 40;

QStringList namesIn(const QByteArray &lines)
{
    QStringList names;
    for (const QByteArray &line : lines.split('\n')) {
        const QString name = QJsonDocument::fromJson(line).object().value(QLatin1String("name")).toString();
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

} // namespace

SourceDialog::SourceDialog(const QString &inForce, QWidget *parent)
    : QDialog(parent), inForce_(inForce), choice_(new QComboBox(this))
{
    preparePrompt(*this, QStringLiteral("host_source"));
    QVBoxLayout *layout = makePromptLayout(*this);
    addPromptTitle(*layout, hostText("SOURCE_TITLE"), QStringLiteral("host_source_title"));
    addPromptText(*layout, hostText("SOURCE_TEXT"), QStringLiteral("host_source_text"));
    choice_->setObjectName(QStringLiteral("host_source_choice"));
    choice_->setAccessibleName(hostText("SOURCE_TITLE"));
    choice_->setMinimumContentsLength(widthInLetters);
    choice_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice_->addItem(hostText("SOURCE_NONE"), QString());
    if (!inForce_.isEmpty())
        choice_->addItem(inForce_, inForce_);
    choice_->setCurrentIndex(choice_->count() - 1);
    layout->addWidget(choice_);
    addPromptText(*layout, hostText("SOURCE_READING"), QStringLiteral("host_source_state"));
    const PromptButtons buttons =
        addPromptButtons(*layout, "SOURCE_USE", "PROMPT_DECLINE", QStringLiteral("host_source_buttons"));
    buttons.first->setObjectName(QStringLiteral("host_source_use"));
    buttons.second->setObjectName(QStringLiteral("host_source_cancel"));
    buttons.first->setDefault(true);
    choice_->setFocus();
    connect(buttons.first, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttons.second, &QPushButton::clicked, this, &QDialog::reject);
    connect(&listener_, &QProcess::finished, this, &SourceDialog::takeSources);
    connect(&listener_, &QProcess::errorOccurred, this, &SourceDialog::takeSources);
    listener_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_listener"), {QStringLiteral("--list")});
}

SourceDialog::~SourceDialog()
{
    listener_.disconnect(this);
    if (listener_.state() == QProcess::NotRunning)
        return;
    listener_.kill();
    listener_.waitForFinished(endLimitMs);
}

QString SourceDialog::chosen() const { return choice_->currentData().toString(); }

// What was chosen meanwhile stays chosen.
void SourceDialog::takeSources()
{
    const QStringList names = namesIn(listener_.readAllStandardOutput());
    for (const QString &name : names) {
        if (choice_->findData(name) < 0)
            choice_->addItem(name, name);
    }
    const int row = choice_->findData(inForce_);
    if (row > 0 && !names.contains(inForce_))
        choice_->setItemText(row, hostText("SOURCE_ABSENT").arg(inForce_));
    auto *state = findChild<QLabel *>(QStringLiteral("host_source_state"));
    state->setText(QString::fromUtf8(listener_.readAllStandardError()).trimmed());
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "views/select_device.h"

#include "audio/audio_devices.h"
#include "utils/guarded.h"
#include "views/device_radio_button.h"
#include "views/ui_select_device.h"
#include "views/widget_setup.h"

#include <string>

namespace ostra {

SelectDevice::SelectDevice(QWidget *parent) : QWidget(parent), ui_(formOf<Ui::SelectDevice>(*this))
{
    setAttribute(
        Qt::WA_StyledBackground); // a plain widget of a class of its own paints no background of a stylesheet otherwise
    ui_->microphone_test_select_mic_device_label->setText(translated("SELECT_A_MICROPHONE_DEVICE"));
    // Set by the scroll area; it would lie on the stylesheet's background.
    ui_->microphone_test_selection_radio_buttons_list->setAutoFillBackground(false);
    ui_->microphone_test_selection_radio_buttons_space->viewport()->setAutoFillBackground(false);
    prepareButtons();
    listMicrophones();
}

SelectDevice::~SelectDevice() = default;

void SelectDevice::prepareButtons()
{
    prepareButton(*ui_->microphone_test_cancel_button, "CANCEL");
    prepareButton(*ui_->microphone_test_next_button, "NEXT");
    connect(ui_->microphone_test_cancel_button, SIGNAL(clicked(bool)), this, SLOT(onBtnCancelClicked()));
    connect(ui_->microphone_test_next_button, SIGNAL(clicked(bool)), this, SLOT(onBtnNextClicked()));
}

void SelectDevice::listMicrophones()
{
    choices_.setExclusive(true);
    for (const std::string &name : audio::listAudioDevices(true)) {
        auto *choice = new DeviceRadioButton(QString::fromStdString(name));
        choice->setObjectName(QStringLiteral("microphone_test_radio_button"));
        choice->setCursor(Qt::PointingHandCursor);
        ui_->radio_group->addWidget(choice);
        choices_.addButton(choice);
    }
    if (choices_.buttons().isEmpty())
        return;
    choices_.buttons().constFirst()->setChecked(true);
}

void SelectDevice::takeFocus()
{
    // The choices were made after the buttons that stand below them; before the page is in its place this has no effect.
    if (!choices_.buttons().isEmpty()) {
        QWidget::setTabOrder(choices_.buttons().constLast(), ui_->microphone_test_cancel_button);
        QWidget::setTabOrder(ui_->microphone_test_cancel_button, ui_->microphone_test_next_button);
    }
    QWidget *checked = choices_.checkedButton();
    (checked != nullptr ? checked : ui_->microphone_test_cancel_button)->setFocus();
}

void SelectDevice::onBtnNextClicked()
{
    const QAbstractButton *checked = choices_.checkedButton();
    if (checked == nullptr)
        return;
    utils::guarded([=, this] {
        emit micChanged(checked->text());
        emit NextWidget();
    });
}

void SelectDevice::onBtnCancelClicked()
{
    utils::guarded([this] { emit cancelTest(); });
}

} // namespace ostra

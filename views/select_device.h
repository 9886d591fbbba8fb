// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QButtonGroup>
#include <QString>
#include <QWidget>

#include <memory>

namespace Ui {
class SelectDevice;
}

namespace ostra {

/// First page of the microphone test: the microphones of the machine, of which the user picks one. GUI thread only.
class SelectDevice : public QWidget {
    Q_OBJECT

public:
    /// Lists the microphones once, in the sound library's order; the first is checked. There may be none.
    explicit SelectDevice(QWidget *parent = nullptr);
    ~SelectDevice() override;

    /// Gives the focus to the checked microphone, so that it is not on a button that ends the dialog.
    void takeFocus();

signals:
    void NextWidget();
    /// Before each `NextWidget()`.
    void micChanged(QString name);
    void cancelTest();

public slots:
    /// Hands on the checked microphone; without one nothing is emitted and the page stays.
    void onBtnNextClicked();
    void onBtnCancelClicked();

private:
    void listMicrophones();
    void prepareButtons();

    std::unique_ptr<Ui::SelectDevice> ui_;
    QButtonGroup choices_;
};

} // namespace ostra

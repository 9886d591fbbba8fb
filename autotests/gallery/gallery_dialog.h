// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/accessible_dialog_base.h"

class QLayout;
class QPushButton;

/// A dialog of the module's kind with one of each widget that the product's stylesheet knows, in its states.
class GalleryDialog : public ostra::utils::accessibility::AccessibleDialogBase {
public:
    explicit GalleryDialog(QWidget *parent = nullptr);

private:
    QWidget *header();
    QWidget *buttons();
    QWidget *choicesAndFields();
    QWidget *views();
    QWidget *numpad();
    QWidget *microphonePage();
    QWidget *sequenceRow();
    QWidget *cards();
    QPushButton *addButton(QLayout &layout, const QString &text, const char *name = "");
};

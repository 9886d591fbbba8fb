// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QDialog;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace host {

/// The last row of a dialog. `first` is the one that goes on.
struct PromptButtons {
    QPushButton *first;
    QPushButton *second;
};

/// Name, title and modality that all of the program's own dialogs have.
void preparePrompt(QDialog &dialog, const QString &name);

QVBoxLayout *makePromptLayout(QDialog &dialog);
void addPromptTitle(QVBoxLayout &layout, const QString &text, const QString &name);
/// Plain text that is wrapped.
QLabel *addPromptText(QVBoxLayout &layout, const QString &text, const QString &name);
/// Two buttons labelled by their keys, with a mnemonic each.
PromptButtons addPromptButtons(QVBoxLayout &layout, const char *firstKey, const char *secondKey, const QString &name);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QPushButton>
#include <QString>

#include <memory>

namespace ostra {

/// The text of `key` in the language of the application, the key itself where there is no translation.
inline QString translated(const char *key) { return QCoreApplication::translate("AUDIO", key); }

/// What every button of the microphone test has in common: the hand, and that Return presses none of them, neither while it
/// has the focus nor while a choice has it.
inline void prepareButton(QPushButton &button)
{
    button.setAutoDefault(false);
    button.setDefault(false);
    button.setCursor(Qt::PointingHandCursor);
}

/// The same for a button with a text.
inline void prepareButton(QPushButton &button, const char *key)
{
    button.setText(translated(key));
    prepareButton(button);
}

/// The form of `widget`, set up.
template <typename Form, typename Widget>
std::unique_ptr<Form> formOf(Widget &widget)
{
    auto form = std::make_unique<Form>();
    form->setupUi(&widget);
    return form;
}

} // namespace ostra

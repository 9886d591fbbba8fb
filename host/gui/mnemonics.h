// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

/// Texts with a mnemonic ("&") each: the first letter or digit that no other text of the list has, from the Latin alphabet; a
/// text without a free one gets the next free letter of the alphabet in brackets behind it, as is the custom where the script
/// has no keys of its own. So the mnemonics of a window differ in every language, without a translator's care.
QStringList withMnemonics(const QStringList &texts);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_reason.h"

#include <QString>
#include <QStringList>

namespace host {

/// Text of one of the program's own keys, in the language in force.
QString hostText(const char *key);

/// Text for anything that the module hands over: a key of its own or of the program, or a composite of keys joined by "|", ": "
/// and ", ". The whole is looked up first, then its pieces. A piece that is no key but has the shape of one is made readable.
/// Several sentences come joined by a blank.
QString shownText(const QString &keyOrComposite);

/// The same, one sentence ("|") each; no empty ones.
QStringList shownSentences(const QString &keyOrComposite);

/// Text of a reason or a warning.
QString shownReason(const RunReason &reason);
/// Why a run has no verdict of the module's own, from the words that its record has for it.
QString shownReason(const QString &words);

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

/// Why a run has no pass, or why a check of the channels measured nothing, for people and for programs.
struct RunReason {
    QString key;           ///< of the host (context "HOST") or of the module, or a composite of the module's keys
    QStringList arguments; ///< for "%1" and so on in its translation
    QString words;         ///< the host's own English words; empty for a key of the module
};

/// `text` with the arguments in place of its "%1" and "%2".
QString withArguments(const QString &text, const QStringList &arguments);

/// The host's English words for one of its reasons; the key without a word for it stands for itself.
QString reasonWords(const char *key, const QStringList &arguments = {});
/// The way back: what `words` say. Words of another program get a key that stands for any.
RunReason reasonOf(const QString &words);

/// All reasons of a run that is no pass: the host's own, else the module's messages, after what its verdict alone tells where
/// they do not explain it. None of a pass.
QList<RunReason> reasonsOf(const RunRecord &record);

} // namespace host

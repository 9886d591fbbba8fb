// SPDX-License-Identifier: Apache-2.0
#include "host/gui/key_text.h"

#include "host/translations/key_sentences.h"

#include <QCoreApplication>

namespace host {

QString hostText(const char *key)
{
    const QString text = QCoreApplication::translate("HOST", key);
    return text == QLatin1String(key) ? readableKey(text) : text;
}

QStringList shownSentences(const QString &keyOrComposite) { return keySentences(keyOrComposite); }

QString shownText(const QString &keyOrComposite) { return shownSentences(keyOrComposite).join(u' '); }

QString shownReason(const RunReason &reason) { return withArguments(shownText(reason.key), reason.arguments); }

QString shownReason(const QString &words) { return shownReason(reasonOf(words)); }

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace host {

/// Text for one key; nothing where there is none.
using KeyLookup = std::function<std::optional<QString>(const QString &key)>;

/// In the language in force: the module's texts before the host's.
std::optional<QString> installedText(const QString &key);
/// In English, whatever is in force. Main thread only.
std::optional<QString> englishText(const QString &key);

/// A text that has the shape of a key, such as "LEFT_EAR", made readable; any other as it is.
QString readableKey(const QString &text);

/// The sentences of a key or a composite of keys joined by "|" (between sentences), ": " and ", ". The whole is looked up
/// first, then its pieces; a piece without a text is made readable. No empty ones.
QStringList keySentences(const QString &keyOrComposite, const KeyLookup &lookUp = installedText);

} // namespace host

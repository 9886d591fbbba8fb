// SPDX-License-Identifier: Apache-2.0
#include "utils/system_language.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <algorithm>

namespace ostra::utils {

namespace {

// The order in which setlocale() looks for the language of messages.
constexpr std::array<const char *, 3> localeVariables = {"LC_ALL", "LC_MESSAGES", "LANG"};

QString messageLocale()
{
    for (const char *variable : localeVariables) {
        if (const QByteArray value = qgetenv(variable); !value.isEmpty())
            return QString::fromUtf8(value);
    }
    return {};
}

QString languageOf(const QString &locale)
{
    const auto isEnd = [](QChar unit) { return unit == u'.' || unit == u'@'; };
    const auto end = std::find_if(locale.begin(), locale.end(), isEnd);
    const QString language = locale.left(end - locale.begin());
    return language == u"C" || language == u"POSIX" ? QString() : language;
}

} // namespace

bool preferredUiLanguages(std::uint32_t &languageCount, LanguageList &list)
{
    const QString language = languageOf(messageLocale());
    constexpr qsizetype terminatorUnitCount = 2;
    if (language.size() + terminatorUnitCount > static_cast<qsizetype>(list.size()))
        return false;
    languageCount = language.isEmpty() ? 0 : 1;
    std::transform(language.begin(), language.end(), list.begin(), [](QChar unit) { return unit.unicode(); });
    return true;
}

} // namespace ostra::utils

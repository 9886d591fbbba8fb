// SPDX-License-Identifier: Apache-2.0
#include "host/core/language_setting.h"

#include "utils/language.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <array>

namespace host {

namespace {

struct Language {
    QLatin1StringView code;
    const char *nativeName; // UTF-8
};

constexpr std::array<Language, 9> languages = {{
    {QLatin1StringView("pt_BR"), "Português (Brasil)"},
    {QLatin1StringView("en_US"), "English"},
    {QLatin1StringView("es_ES"), "Español"},
    {QLatin1StringView("fr_FR"), "Français"},
    {QLatin1StringView("it_IT"), "Italiano"},
    {QLatin1StringView("de_DE"), "Deutsch"},
    {QLatin1StringView("nl_NL"), "Nederlands"},
    {QLatin1StringView("zh_CN"), "中文"},
    {QLatin1StringView("ja_JP"), "日本語"},
}};

// Read by the module's own rules, so that both always mean the same language. This is the program's own copy of that code.
QString languageInForce()
{
    ostra::utils::initLanguage();
    const QString inForce = QString::fromStdString(ostra::utils::currentLanguage());
    for (const Language &language : languages) {
        if (inForce.compare(language.code, Qt::CaseInsensitive) == 0)
            return language.code;
    }
    return QStringLiteral("en_US");
}

bool writeFile(const QString &folder, const QString &code)
{
    QSaveFile file(QDir(folder).filePath(QStringLiteral("config.ini")));
    const QByteArray text = "[LANGUAGE]\nDEFAULT_LANGUAGE=" + code.toLatin1() + '\n';
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

} // namespace

QStringList LanguageSetting::codes()
{
    QStringList codes;
    for (const Language &language : languages)
        codes.append(language.code);
    return codes;
}

QString LanguageSetting::nativeName(const QString &code)
{
    for (const Language &language : languages) {
        if (code == language.code)
            return QString::fromUtf8(language.nativeName);
    }
    return code;
}

QString LanguageSetting::defaultFolder() { return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation); }

bool LanguageSetting::useOwnFolder(const QString &folder)
{
    if (!QDir().mkpath(folder) || !enter(folder)) {
        code_ = languageInForce(); // what the module will read where the program was started
        return false;
    }
    isOwn_ = true;
    return change(code_);
}

bool LanguageSetting::useForeignFolder(const QString &folder)
{
    isOwn_ = false;
    return enter(folder);
}

bool LanguageSetting::change(const QString &code)
{
    if (!isOwn_ || !codes().contains(code) || !writeFile(folder_, code))
        return false;
    code_ = code;
    return QDir::setCurrent(folder_);
}

bool LanguageSetting::enter(const QString &folder)
{
    if (!QFileInfo(folder).isDir() || !QDir::setCurrent(folder))
        return false;
    folder_ = QFileInfo(folder).absoluteFilePath();
    code_ = languageInForce();
    return true;
}

} // namespace host

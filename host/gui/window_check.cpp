// SPDX-License-Identifier: Apache-2.0
#include "host/gui/window_check.h"

#include "host/translations/translators.h"

#include <QFontDatabase>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace host {

namespace {

void addPictures(QList<WindowCheck> &checks)
{
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const std::pair<const char *, const char *> needed[] = {{"png", "the dialogs have no pictures"},
                                                            {"gif", "nothing moves while a sound plays"},
                                                            {"svg", "high-contrast icons keep their own colours"}};
    for (const auto &[format, lacking] : needed)
        checks.append({QStringLiteral("pictures: ") + QLatin1String(format), formats.contains(format), QLatin1String(lacking)});
}

void addTexts(QList<WindowCheck> &checks)
{
    for (const QLatin1StringView code : translationCodes)
        checks.append({QStringLiteral("texts: ") + code, installTranslators(code),
                       QStringLiteral("windows and dialogs show keys in place of texts"), false});
    for (const QLatin1StringView code : translationCodes) {
        if (code != QLatin1StringView("en_US"))
            checks.append({QStringLiteral("texts of Qt: ") + code, hasToolkitTexts(code),
                           QStringLiteral("file dialog, message boxes and names of keys stay English")});
    }
}

void addFonts(QList<WindowCheck> &checks)
{
    const std::pair<const char *, QFontDatabase::WritingSystem> needed[] = {{"Chinese", QFontDatabase::SimplifiedChinese},
                                                                            {"Japanese", QFontDatabase::Japanese}};
    for (const auto &[language, system] : needed)
        checks.append({QStringLiteral("fonts: ") + QLatin1String(language), !QFontDatabase::families(system).isEmpty(),
                       QStringLiteral("that language is shown as empty boxes")});
}

} // namespace

QList<WindowCheck> checkWindows()
{
    QList<WindowCheck> checks;
    addPictures(checks);
    addTexts(checks);
    addFonts(checks);
    return checks;
}

QByteArray windowCheckLine(const QList<WindowCheck> &checks)
{
    QJsonArray list;
    for (const WindowCheck &check : checks)
        list.append(QJsonObject{{QStringLiteral("name"), check.name},
                                {QStringLiteral("ok"), check.isThere},
                                {QStringLiteral("limit"), check.isLimit},
                                {QStringLiteral("lacking"), check.isThere ? QString() : check.lacking}});
    return QJsonDocument(list).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace host

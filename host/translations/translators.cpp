// SPDX-License-Identifier: Apache-2.0
#include "host/translations/translators.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <algorithm>

// Outside of any namespace, as the macro demands. A program that links this code as objects has no other call of it.
static void initResource() { Q_INIT_RESOURCE(host_translations); }

namespace host {

namespace {

constexpr std::array<QLatin1StringView, 2> parts = {QLatin1StringView("audio"), QLatin1StringView("host")};

// Empty again by themselves when the application, which owns the translators, is gone.
std::array<QPointer<QTranslator>, parts.size()> &installed()
{
    static std::array<QPointer<QTranslator>, parts.size()> translators;
    return translators;
}

QString knownCode(const QString &code)
{
    const bool isKnown = std::find(translationCodes.begin(), translationCodes.end(), code) != translationCodes.end();
    return isKnown ? code : QStringLiteral("en_US");
}

bool loadToolkitTexts(QTranslator &translator, const QString &code)
{
    for (const QString &folder : {QCoreApplication::applicationDirPath() + QStringLiteral("/translations"),
                                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)}) {
        if (translator.load(QLocale(code), QStringLiteral("qtbase"), QStringLiteral("_"), folder))
            return true;
    }
    return false;
}

// English is what they say without.
void installToolkitTexts(const QString &code)
{
    static QPointer<QTranslator> translator;
    delete translator;
    translator = new QTranslator(QCoreApplication::instance());
    if (code != QLatin1StringView("en_US") && loadToolkitTexts(*translator, code))
        QCoreApplication::installTranslator(translator);
}

bool install(QPointer<QTranslator> &translator, const QString &file)
{
    delete translator; // takes it out of force
    translator = new QTranslator(QCoreApplication::instance());
    return translator->load(file) && QCoreApplication::installTranslator(translator);
}

} // namespace

void registerTranslations() { initResource(); }

bool installTranslators(const QString &code, const QString &folder)
{
    registerTranslations();
    const QString known = knownCode(code);
    installToolkitTexts(known);
    QLocale locale(known); // its decimal sign; four digits need no grouping
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(locale);
    bool isComplete = true;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        const QString file = QStringLiteral("%1/%2_%3.qm").arg(folder, parts[index], known);
        isComplete = install(installed()[index], file) && isComplete;
    }
    return isComplete;
}

bool hasToolkitTexts(const QString &code)
{
    QTranslator translator;
    return code == QLatin1StringView("en_US") || loadToolkitTexts(translator, code);
}

} // namespace host

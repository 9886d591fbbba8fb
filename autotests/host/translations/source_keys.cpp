// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/translations/source_keys.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QSet<QString> allCaptures(const QRegularExpression &expression, const QString &text)
{
    QSet<QString> found;
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found.insert(match.next().captured(1));
    return found;
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

QSet<QString> keysInCalls(const QString &source, const QString &context)
{
    const QString standard = QStringLiteral(R"re(\b(?:translate|QT_TRANSLATE_NOOP\w*)\s*\(\s*"%1"\s*,)re").arg(context);
    const bool hasShortForm = context == QLatin1String("HOST");
    const QString opening = hasShortForm ? standard + QLatin1String(R"re(|\bhostText\s*\()re") : standard;
    return allCaptures(QRegularExpression(QStringLiteral(R"re((?:%1)\s*"([^"]*)")re").arg(opening)), source);
}

QSet<QString> declaredLiterals(const QString &source)
{
    static const QRegularExpression literal(QStringLiteral(R"re(=\s*"([^"]+)";)re"));
    return allCaptures(literal, source);
}

QSet<QString> keyLikeLiterals(const QString &source)
{
    static const QRegularExpression literal(QStringLiteral(R"re([">]([A-Z][A-Z0-9_.|]{3,}|kTk\w+)["<])re"));
    return allCaptures(literal, source);
}

QMap<QString, QString> sourcesIn(const QString &folder)
{
    const QString path = QStringLiteral(SOURCE_FOLDER "/") + folder;
    if (QFileInfo(path).isFile())
        return {{path, contents(path)}};
    QMap<QString, QString> sources;
    const QStringList suffixes = {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")};
    for (QDirIterator file(path, suffixes, QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
        const QString name = file.next();
        sources.insert(name, contents(name));
    }
    return sources;
}

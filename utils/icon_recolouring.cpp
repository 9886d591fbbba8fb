// SPDX-License-Identifier: Apache-2.0
#include "utils/icon_recolouring.h"

#include "contract/sal.h"
#include "utils/application_folders.h"
#include "utils/guarded.h"
#include "utils/temporary_icon_folder.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringConverter>
#include <QTemporaryFile>

#include <algorithm>
#include <memory>

namespace ostra::utils {

namespace {

// Between the first two quotation marks that have anything between them.
QString quotedPath(const QString &propertyValue)
{
    qsizetype start = propertyValue.indexOf(u'"');
    while (start >= 0) {
        const qsizetype end = propertyValue.indexOf(u'"', start + 1);
        if (end > start + 1)
            return propertyValue.sliced(start + 1, end - start - 1);
        start = end;
    }
    return {};
}

QString textOfFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    QStringDecoder decode(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    return QString(decode(bytes)).remove(u'\r');
}

QString recoloured(QString svgText, const QString &colour)
{
    constexpr QLatin1StringView fill("fill=\"");
    const qsizetype start = svgText.indexOf(fill);
    const qsizetype end = start < 0 ? -1 : svgText.indexOf(u'"', start + fill.size());
    const QString oldColour = end < 0 ? QString() : svgText.mid(start + fill.size(), end - start - fill.size());
    if (oldColour.isEmpty()) // an empty text would be found between all characters
        return svgText;
    return svgText.replace(oldColour, colour, Qt::CaseSensitive);
}

QString temporaryFolder()
{
    const auto ask = [] {
        sal::TemporaryPath *host = get_temporary_path();
        return host == nullptr ? QString() : QString::fromStdString(host->path());
    };
    const QString hostPath = answerOr(ask, QString());
    if (hostPath.isEmpty())
        return QString::fromStdU16String(applicationFolder(application_folder::temporary));
    return hostPath + QDir::separator() + QStringLiteral("temp");
}

// A quotation mark ends the name, a backslash hides the character behind it, a line end breaks the text.
bool canStandInUrl(const QString &fileName)
{
    return std::none_of(fileName.begin(), fileName.end(),
                        [](QChar unit) { return unit == u'"' || unit == u'\\' || unit < u' '; });
}

bool isFileStem(const QString &baseName)
{
    // The colon would name a stream of another file on Windows.
    return canStandInUrl(baseName) && !baseName.contains(u':');
}

bool writeText(QTemporaryFile &file, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

QString recolourIcon(QObject *dialog, const QString &propertyValue, const QString &colour)
{
    const QString svgText = textOfFile(quotedPath(propertyValue));
    if (svgText.isEmpty() || svgText.contains(QChar::Null)) // a zero character: a bitmap, which must not pass through as text
        return propertyValue;
    const QString baseName = iconBaseName(propertyValue);
    QTemporaryFile *file = writeTemporarySvg(dialog, baseName, recoloured(svgText, colour), temporaryFolder());
    return file == nullptr ? propertyValue : QStringLiteral("url(\"") + file->fileName() + QStringLiteral("\")");
}

QString iconBaseName(const QString &propertyValue)
{
    QString name = propertyValue.trimmed();
    name.remove(QStringLiteral("url(\":/"));
    name.remove(u'=');
    name.remove(QStringLiteral("\")"));
    name.remove(QStringLiteral(".svg"));
    return name.trimmed().replace(u'/', u'_');
}

QTemporaryFile *writeTemporarySvg(QObject *dialog, const QString &baseName, const QString &svgText, const QString &folder)
{
    if (!isFileStem(baseName) || !ensureTemporaryIconFolder(folder))
        return nullptr;
    const QString stem = baseName.isEmpty() ? QStringLiteral("temp_svg") : baseName;
    auto file = std::make_unique<QTemporaryFile>(folder + u'/' + stem + QStringLiteral("_XXXXXX.svg"));
    // Asking for its name gives it one: on Linux it is made without.
    if (!file->open() || file->fileName().isEmpty() || !canStandInUrl(file->fileName()) || !writeText(*file, svgText))
        return nullptr;
    file->setParent(dialog);
    return file.release();
}

} // namespace ostra::utils

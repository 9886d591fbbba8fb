// SPDX-License-Identifier: Apache-2.0
#include "utils/icon_recolouring.h"

#include "contract/sal.h"
#include "utils/application_folders.h"
#include "utils/guarded.h"
#include "utils/temporary_icon_folder.h"
#include "utils/utf8_text.h"

#include <QByteArray>
#include <QDir>
#include <QResource>
#include <QStringConverter>
#include <QTemporaryFile>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

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

// As UTF-8 without carriage returns. Most drawings are taken as they are.
QByteArray textOf(QByteArray bytes)
{
    const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (isAsciiWithoutCarriageReturn(view))
        return bytes;
    const auto marked = QStringConverter::encodingForData(bytes);
    if (marked || !isUtf8(view)) {
        // Stateless: a sequence that the end of the file cuts is malformed, too.
        QStringDecoder decode(marked.value_or(QStringConverter::Utf8), QStringConverter::Flag::Stateless);
        return QString(decode(bytes)).remove(u'\r').toUtf8();
    }
    bytes.removeIf([](char byte) { return byte == '\r'; });
    return bytes;
}

QByteArray recoloured(QByteArray svgText, const QByteArray &colour)
{
    constexpr QByteArrayView fill("fill=\"");
    const qsizetype start = svgText.indexOf(fill);
    const qsizetype end = start < 0 ? -1 : svgText.indexOf('"', start + fill.size());
    const QByteArray oldColour = end < 0 ? QByteArray() : svgText.mid(start + fill.size(), end - start - fill.size());
    if (oldColour.isEmpty()) // an empty text would be found between all characters
        return svgText;
    return svgText.replace(oldColour, colour);
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

QTemporaryFile *writeNewFile(QObject *dialog, const QString &baseName, const QByteArray &bytes, const QString &folder)
{
    if (!isFileStem(baseName) || !ensureTemporaryIconFolder(folder))
        return nullptr;
    const QString stem = baseName.isEmpty() ? QStringLiteral("temp_svg") : baseName;
    auto file = std::make_unique<QTemporaryFile>(folder + u'/' + stem + QStringLiteral("_XXXXXX.svg"));
    // Asking for its name gives it one: on Linux it is made without.
    if (!file->open() || file->fileName().isEmpty() || !canStandInUrl(file->fileName()) || file->write(bytes) != bytes.size() ||
        !file->flush())
        return nullptr;
    file->setParent(dialog);
    return file.release();
}

} // namespace

QString recolourIcon(QObject *dialog, const QString &propertyValue, const QString &colour)
{
    const QString path = quotedPath(propertyValue);
    const QString baseName = iconBaseName(propertyValue);
    if (!path.startsWith(QLatin1String(":/")) || !isFileStem(baseName)) // nothing is read that will not be written
        return propertyValue;
    const QByteArray svg = recolouredSvg(QResource(path).uncompressedData(), colour.toUtf8());
    if (svg.isEmpty())
        return propertyValue;
    QTemporaryFile *file = writeNewFile(dialog, baseName, svg, temporaryFolder());
    return file == nullptr ? propertyValue : QStringLiteral("url(\"") + file->fileName() + QStringLiteral("\")");
}

QByteArray recolouredSvg(QByteArray fileBytes, const QByteArray &colour)
{
    QByteArray text = textOf(std::move(fileBytes));
    if (text.contains('\0')) // a bitmap, which must not pass through as text
        return {};
    return recoloured(std::move(text), colour);
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
    return writeNewFile(dialog, baseName, svgText.toUtf8(), folder);
}

} // namespace ostra::utils

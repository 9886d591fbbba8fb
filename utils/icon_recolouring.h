// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

class QObject;
class QTemporaryFile;

/// Icons of a stylesheet in another colour: a recoloured copy of the SVG takes the place of the original.
///
/// Threading: GUI thread. Nothing is reported; what cannot be done leaves the icon as it was designed.
namespace ostra::utils {

/// `propertyValue` is the value of an "image" or "icon" property, url(":/path/of/icon.svg"). Replaces the colour of the
/// first fill attribute, wherever that colour's text occurs, by `colour` (QColor::name), writes the result to a temporary
/// file owned by `dialog` and returns url("...") with its full name, with "/" as the separator. Returns the value unchanged
/// when the icon is none of the resources, cannot be read, is empty or is no text (a bitmap), or when no file can be written
/// whose name can stand in a stylesheet.
///
/// The file lies in the folder "temp" below the host's temporary path, else in the application folder for temporary files.
QString recolourIcon(QObject *dialog, const QString &propertyValue, const QString &colour);

/// The SVG text that is `fileBytes`, as UTF-8 with line feeds, with `colour` in place of the first fill attribute's colour; a
/// text without such an attribute is only brought into that form. Empty when the bytes are no text (one character is zero) or
/// hold none. A byte order mark tells another encoding than UTF-8 and does not stay; what is malformed becomes U+FFFD. Pure,
/// callable from any thread.
QByteArray recolouredSvg(QByteArray fileBytes, const QByteArray &colour);

/// Name of the icon for its temporary file: url(":/icons/audio/play.svg") gives icons_audio_play.
QString iconBaseName(const QString &propertyValue);

/// Writes `svgText` as UTF-8 to a new file "baseName_XXXXXX.svg" (six random characters; "temp_svg" for an empty base) in
/// `folder`, which is created when missing. The file exists on disk, stays open and is removed with its parent `dialog`.
///
/// Null when the folder cannot be made or is not safe to use (see `utils/temporary_icon_folder.h`), when the file cannot be
/// opened or written in full, and when the base name holds a quotation mark, a backslash or a colon.
QTemporaryFile *writeTemporarySvg(QObject *dialog, const QString &baseName, const QString &svgText, const QString &folder);

} // namespace ostra::utils

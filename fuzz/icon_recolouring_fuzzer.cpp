// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_sal.h"
#include "fuzz/fuzz_check.h"
#include "resources/icons.h"
#include "utils/icon_recolouring.h"
#include "utils/style_rules.h"
#include "utils/utf8_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <string_view>

using namespace ostra::utils;
using fuzz::require;

namespace {

constexpr std::string_view newColour = "#a1b2c3";

struct Input {
    std::string folder;
    std::string baseName;
    std::string svg;
};

std::string takeLine(std::string_view &text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string line(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

/// What is to come of a text that needs no decoding; nothing of one with a zero character.
std::string expectedBytes(std::string svg)
{
    constexpr std::string_view fill = "fill=\"";
    if (svg.find('\0') != std::string::npos)
        return {};
    const std::size_t at = svg.find(fill);
    const std::size_t end = at == std::string::npos ? at : svg.find('"', at + fill.size());
    if (end == std::string::npos)
        return svg;
    const std::string old = svg.substr(at + fill.size(), end - at - fill.size());
    if (old.empty())
        return svg;
    std::string result;
    std::size_t from = 0;
    for (std::size_t hit = svg.find(old); hit != std::string::npos; hit = svg.find(old, from)) {
        result += svg.substr(from, hit - from);
        result += newColour;
        from = hit + old.size();
    }
    return result + svg.substr(from);
}

// A byte order mark chooses another decoding, carriage returns may go.
bool passesAsItIs(const std::string &svg)
{
    return isUtf8(svg) && svg.find('\r') == std::string::npos && svg.find("\xEF\xBB\xBF") == std::string::npos;
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    require(file.open(QIODevice::ReadOnly), "the drawing is there");
    return file.readAll();
}

// Whatever the folder is called, the value is one value: the rules around it stay what they are.
void checkInSheet(const QString &value)
{
    const QString sheet = QStringLiteral("A { color: red; image: %1; margin: 1px }\nB { color: blue }\n").arg(value);
    const StyleRules rules = StyleRules::parse(sheet);
    require(rules.rules().size() == 2, "a path adds no rule and takes none away");
    const StyleRule &first = rules.rules().front();
    require(first.declarations().size() == 3, "a path adds no declaration and takes none away");
    require(first.value(QStringLiteral("image")) == value, "a path is read as it was written");
}

void checkDrawing(const std::string &svg)
{
    const std::string result =
        recolouredSvg(QByteArray::fromStdString(svg), QByteArray(newColour.data(), newColour.size())).toStdString();
    require(isUtf8(result) && result.find('\r') == std::string::npos, "a recoloured drawing is UTF-8 with line feeds");
    require(result.find('\0') == std::string::npos, "no bitmap passes as a text");
    if (passesAsItIs(svg))
        require(result == expectedBytes(svg), "only the first fill's colour is replaced");
}

/// True when it was recoloured, which depends on the folder.
bool checkIcon()
{
    const QString path = QStringLiteral(":/audio/resources/icons/close.svg");
    const QString value = QStringLiteral("url(\"%1\")").arg(path);
    const QString colour = QString::fromLatin1(newColour.data(), newColour.size());
    QObject dialog;
    const QString result = recolourIcon(&dialog, value, colour);
    require(dialog.children().size() == (result == value ? 0 : 1), "a new value has a file of its own");
    checkInSheet(result);
    if (result == value)
        return false;
    const QString fileName = result.sliced(5, result.size() - 7);
    require(QFileInfo(fileName).isAbsolute(), "the file can be found from any current folder");
    require(contentOf(fileName) == recolouredSvg(contentOf(path), colour.toLatin1()), "the file holds the recoloured drawing");
    return true;
}

void checkFileName(const Input &input, const QString &folder)
{
    const QString value = QStringLiteral("url(\":/") + QString::fromStdString(input.baseName) + QStringLiteral(".svg\")");
    const QString baseName = iconBaseName(value);
    require(!baseName.contains(u'/') && !baseName.contains(u'='), "a base name is no path");
    QObject dialog;
    const QTemporaryFile *file = writeTemporarySvg(&dialog, baseName, QStringLiteral("<svg/>"), folder);
    require(file == nullptr || QFileInfo(file->fileName()).canonicalPath() == QFileInfo(folder).canonicalFilePath(),
            "the file lies in its folder");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    static const QTemporaryDir root(QStringLiteral("/dev/shm/fuzz_XXXXXX"));
    static const bool isPlainFolderUsed = [] {
        ostra::initIcons();
        fake_sal::state().temporaryPath = root.path().toStdString();
        return checkIcon();
    }();
    require(isPlainFolderUsed, "icons are recoloured at all");
    std::string_view rest(fuzz::chars(data), byteCount);
    const Input input{takeLine(rest), takeLine(rest), std::string(rest)};
    // A single new name below the own folder, whatever the engine makes up: it is removed with all that is in it.
    if (input.folder.find_first_not_of('.') == std::string::npos || input.folder.find('/') != std::string::npos ||
        input.folder.find('\0') != std::string::npos || input.folder.size() > 80)
        return -1;
    const QString folder = root.path() + u'/' + QString::fromStdString(input.folder);
    fake_sal::state().temporaryPath = folder.toStdString();
    checkDrawing(input.svg);
    checkIcon();
    checkFileName(input, folder);
    QDir(folder).removeRecursively();
    return 0;
}

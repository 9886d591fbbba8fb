// SPDX-License-Identifier: Apache-2.0
#include "utils/config_reader.h"

#include "utils/ascii_text.h"
#include "utils/utf8_text.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ostra::utils {

namespace {

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

constexpr std::uint32_t repeatedSectionCode = 1;
constexpr std::uint32_t repeatedKeyCode = 2;

class ConfigTextParser {
public:
    explicit ConfigTextParser(IniConfiguration &configuration)
        : configuration_(configuration), section_(configuration.try_emplace(std::string()).first)
    {}

    ConfigParseResult parse(std::string_view text);

private:
    using Rejection = std::optional<ConfigParseResult>;

    Rejection parseLine(std::string_view line);
    Rejection openSection(std::string_view name);
    Rejection storePair(const ConfigPair &pair);
    ConfigParseResult rejected(std::uint32_t code) const;

    IniConfiguration &configuration_;
    IniConfiguration::iterator section_;
    std::uint32_t lineNumber_ = 0;
};

ConfigParseResult ConfigTextParser::parse(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t lineByteCount = std::min(text.find('\n'), text.size());
        ++lineNumber_;
        if (Rejection rejection = parseLine(text.substr(0, lineByteCount)))
            return *std::move(rejection);
        text.remove_prefix(std::min(lineByteCount + 1, text.size()));
    }
    ConfigParseResult result;
    result.fileRead = true;
    return result;
}

ConfigTextParser::Rejection ConfigTextParser::parseLine(std::string_view line)
{
    line = withoutComment(line);
    if (isBlankConfigLine(line))
        return std::nullopt;
    const ConfigMarks marks = configMarks(line);
    if (const std::uint32_t code = configLineCode(line, marks); code != 0)
        return rejected(code);
    if (marks.hasOpening) {
        if (const auto name = findSectionName(line))
            return openSection(*name);
    }
    if (const auto pair = findKeyAndValue(line))
        return storePair(*pair);
    return std::nullopt;
}

ConfigTextParser::Rejection ConfigTextParser::openSection(std::string_view name)
{
    const auto [section, isNew] = configuration_.try_emplace(toUpperAscii(name));
    if (!isNew) {
        ConfigParseResult result = rejected(repeatedSectionCode);
        result.section = section->first;
        return result;
    }
    section_ = section;
    return std::nullopt;
}

ConfigTextParser::Rejection ConfigTextParser::storePair(const ConfigPair &pair)
{
    const auto [entry, isNew] = section_->second.try_emplace(toUpperAscii(pair.key), pair.value);
    if (!isNew) {
        ConfigParseResult result = rejected(repeatedKeyCode);
        result.key = entry->first;
        result.section = section_->first;
        return result;
    }
    return std::nullopt;
}

ConfigParseResult ConfigTextParser::rejected(std::uint32_t code) const
{
    ConfigParseResult result;
    result.fileRead = true;
    result.code = code;
    result.line = static_cast<std::int32_t>(lineNumber_);
    return result;
}

std::string_view view(const QByteArray &bytes) { return {bytes.constData(), static_cast<std::size_t>(bytes.size())}; }

/// The characters a text stream in text mode would show of `bytes`, in its order: a carriage return goes last, so one
/// inside a sequence of bytes spoils the sequence.
QByteArray decoded(QByteArray bytes)
{
    if (isAsciiWithoutCarriageReturn(view(bytes))) // most files; looked for in one go
        return bytes;
    if (bytes.startsWith(byteOrderMark))
        bytes.remove(0, byteOrderMark.size());
    if (!isUtf8(view(bytes)))
        bytes = QByteArray::fromStdString(repairedUtf8(view(bytes)));
    if (bytes.contains('\r'))
        bytes.removeIf([](char byte) { return byte == '\r'; });
    return bytes;
}

// Anything but a file is left alone: a pipe would hold the host until somebody writes into it, a device may never end.
bool openForReading(QFile &file) { return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

} // namespace

// The file is read in one go and decoded here instead of by a text stream: the bytes are then parsed where they lie,
// without a detour through UTF-16.
ConfigParseResult readConfigFile(const std::string &fileName, IniConfiguration &configuration)
{
    QFile file(QString::fromStdString(fileName));
    if (fileName.empty() || !openForReading(file))
        return {};
    const QByteArray text = decoded(file.readAll());
    return ConfigTextParser(configuration).parse(view(text));
}

std::string getConfigValue(const IniConfiguration &configuration, const std::string &section, const std::string &key)
{
    const auto keys = configuration.find(section);
    if (keys == configuration.end())
        return {};
    const auto value = keys->second.find(key);
    return value == keys->second.end() ? std::string() : value->second;
}

} // namespace ostra::utils

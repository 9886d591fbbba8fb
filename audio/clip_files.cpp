// SPDX-License-Identifier: Apache-2.0
#include "audio/clip_files.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

namespace ostra::audio {

namespace {

// Through Qt: the narrow streams of the standard library take the ANSI code page on Windows and open directories on Linux.
bool canBeRead(const std::string &path)
{
    QFile file(QString::fromStdString(path));
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}

} // namespace

std::string clipPath(const std::string &folder, const std::string &language, std::int32_t number)
{
    return folder + "/audio_files/" + language + "/" + std::to_string(number) + "_" + language + ".wav";
}

bool allClipsPresent(const std::string &folder, const std::string &language)
{
    for (std::int32_t digit = 0; digit <= 9; ++digit)
        if (!canBeRead(clipPath(folder, language, digit)))
            return false;
    return true;
}

} // namespace ostra::audio

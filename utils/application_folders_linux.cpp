// SPDX-License-Identifier: Apache-2.0
#include "utils/application_folders.h"

#include "utils/folder_separator.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

namespace ostra::utils {

namespace {

struct Account {
    QByteArray name;
    QByteArray home;
};

Account processAccount()
{
    std::vector<char> texts(1024);
    passwd entry{};
    passwd *found = nullptr;
    while (::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found) == ERANGE)
        texts.resize(texts.size() * 2);
    return found == nullptr ? Account() : Account{found->pw_name, found->pw_dir};
}

std::u16string toUtf16(QByteArray folder)
{
    while (folder.endsWith('/'))
        folder.chop(1);
    return QFile::decodeName(folder).toStdU16String();
}

// The XDG Base Directory Specification has relative folders ignored.
std::u16string baseFolder(const char *variable, const char *folderInHome)
{
    if (const QByteArray folder = qgetenv(variable); folder.startsWith('/'))
        return toUtf16(folder);
    QByteArray home = qgetenv("HOME");
    if (!home.startsWith('/'))
        home = processAccount().home;
    return home.startsWith('/') ? toUtf16(home + folderInHome) : std::u16string();
}

} // namespace

const char16_t folderSeparator = u'/';

std::u16string systemDataFolder() { return baseFolder("XDG_DATA_HOME", "/.local/share"); }

std::u16string systemCacheFolder() { return baseFolder("XDG_CACHE_HOME", "/.cache"); }

std::u16string systemUserName() { return QString::fromLocal8Bit(processAccount().name).toStdU16String(); }

std::u16string systemCurrentFolder()
{
    std::error_code failure;
    const std::filesystem::path folder = std::filesystem::current_path(failure);
    return failure ? std::u16string() : QFile::decodeName(QByteArray(folder.c_str())).toStdU16String();
}

} // namespace ostra::utils

// SPDX-License-Identifier: Apache-2.0
#include "host/core/module_library.h"

#include "host/core/module_file_name.h"
#include "host/core/sound_environment.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace host {

namespace {

template <typename Function>
bool resolve(QLibrary &library, const char *name, Function *&function)
{
    function = reinterpret_cast<Function *>(library.resolve(name));
    return function != nullptr;
}

} // namespace

QString ModuleLibrary::defaultPath()
{
    return QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QLatin1String(moduleFileName()));
}

ModuleLibrary::ModuleLibrary(const QString &path) : path_(QFileInfo(path).absoluteFilePath()), library_(path_)
{
    // A library that lacks something it imports shall fail here, not at the first call.
    library_.setLoadHints(QLibrary::ResolveAllSymbolsHint);
}

ModuleLibrary::~ModuleLibrary()
{
    if (module_ != nullptr)
        releaseInstance_();
}

bool ModuleLibrary::load()
{
    if (getProductVersion_ != nullptr)
        return true;
    if (!QFileInfo(path_).isFile())
        return fail(QStringLiteral("the file is missing"));
    if (!library_.load())
        return fail(library_.errorString().simplified());
    return resolveExports();
}

bool ModuleLibrary::open()
{
    if (module_ != nullptr)
        return true;
    if (!load())
        return false;
    keepInterruptSignals();
    module_ = getInstance_();
    return module_ != nullptr || fail(QStringLiteral("it gave no module interface"));
}

QString ModuleLibrary::productVersion() const
{
    const ostra::ProductVersion *version = getProductVersion_ != nullptr ? getProductVersion_() : nullptr;
    if (version == nullptr)
        return {};
    return QStringLiteral("%1.%2.%3.%4")
        .arg(version->major())
        .arg(version->minor())
        .arg(version->build())
        .arg(version->revision());
}

bool ModuleLibrary::fail(const QString &reason)
{
    errorText_ = QStringLiteral("the module '%1' cannot be used: %2").arg(QDir::toNativeSeparators(path_), reason);
    return false;
}

bool ModuleLibrary::resolveExports()
{
    const char *missing = nullptr;
    GetProductVersionFunction *getProductVersion = nullptr;
    if (!resolve(library_, ostra::exports::getModuleInterfaceInstance, getInstance_))
        missing = ostra::exports::getModuleInterfaceInstance;
    else if (!resolve(library_, ostra::exports::releaseModuleInterfaceInstance, releaseInstance_))
        missing = ostra::exports::releaseModuleInterfaceInstance;
    else if (!resolve(library_, ostra::exports::getProductVersion, getProductVersion))
        missing = ostra::exports::getProductVersion;
    if (missing != nullptr)
        return fail(QStringLiteral("it has no function '%1'").arg(QLatin1String(missing)));
    getProductVersion_ = getProductVersion; // last: stands for a complete load
    return true;
}

} // namespace host

// SPDX-License-Identifier: Apache-2.0
#include "host/cli/maudio_command.h"

#include "host/cli/console.h"
#include "host/cli/maudio_arguments.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"

#include <algorithm>

namespace host {

namespace {

// The longest of its names says most; a test without one can still be chosen along with all others.
QString spokenName(const CatalogueNames &names)
{
    return QString::fromStdString(names.commandLineNames.empty() ? names.nameKey : names.commandLineNames.back());
}

class Answer {
public:
    Answer(const ModuleLibrary &library, Console &console) : library_(library), console_(console) {}

    ExitCode operator()(const HelpRequest & /*request*/) const
    {
        const ostra::Resource *resource = library_.module()->resource();
        console_.print(QByteArray::fromStdString(resource != nullptr ? resource->helpText() : std::string()));
        return ExitCode::success;
    }

    ExitCode operator()(const SelectionError &error) const
    {
        console_.complain(QStringLiteral("%1 (try -Maudio help)").arg(QString::fromStdString(error.message)));
        return ExitCode::usage;
    }

    ExitCode operator()(const TestSelection &selection) const
    {
        return everyDeviceIsKnown(selection) ? refuse(selection) : ExitCode::usage;
    }

private:
    bool everyDeviceIsKnown(const TestSelection &selection) const
    {
        if (selection.deviceIds.empty())
            return true; // the devices are not even opened
        DeviceList list;
        console_.tellProgress(QStringLiteral("Reading devices…"));
        if (ostra::SystemComponentManager *manager = library_.module()->componentManager())
            list.refresh(*manager);
        const auto unknown = std::find_if(selection.deviceIds.begin(), selection.deviceIds.end(),
                                          [&list](const std::string &id) { return list.find(QString::fromStdString(id)) < 0; });
        if (unknown == selection.deviceIds.end())
            return true;
        console_.complain(QStringLiteral("unknown device '%1' (list shows them)").arg(QString::fromStdString(*unknown)));
        return false;
    }

    ExitCode refuse(const TestSelection &selection) const
    {
        QStringList names;
        for (const CatalogueTest &test : selection.tests)
            names.append(spokenName(test.names));
        console_.complain(QStringLiteral("not supported on the command line: %1 (use the graphical host)")
                              .arg(names.join(QStringLiteral(", "))));
        return ExitCode::cannotBePerformed;
    }

    const ModuleLibrary &library_;
    Console &console_;
};

std::vector<std::string> utf8List(const QStringList &texts)
{
    std::vector<std::string> list;
    for (const QString &text : texts)
        list.push_back(text.toStdString());
    return list;
}

} // namespace

ExitCode runMaudio(const ModuleLibrary &library, const QStringList &arguments, Console &console)
{
    const MaudioRequest request = parseMaudioArguments(utf8List(arguments), readCatalogue(*library.module()));
    return std::visit(Answer(library, console), request);
}

} // namespace host

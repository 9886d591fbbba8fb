// SPDX-License-Identifier: Apache-2.0
#include "host/cli/list_command.h"

#include "contract/property_keys.h"
#include "host/cli/console.h"
#include "host/cli/json_output.h"
#include "host/cli/text_table.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"
#include "host/precheck/capture_devices.h"
#include "host/precheck/virtual_devices.h"

#include <QJsonArray>
#include <QJsonObject>

namespace host {

namespace {

using ostra::properties::driverName;
using ostra::properties::driverVersion;
using ostra::properties::numberOfChannels;
using ostra::properties::sampleRate;

QJsonValue jsonText(const std::optional<QString> &text) { return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Null); }

QJsonValue jsonNumber(const std::optional<QString> &text)
{
    bool isNumber = false;
    const qlonglong number = text ? text->toLongLong(&isNumber) : 0;
    return isNumber ? QJsonValue(number) : QJsonValue(QJsonValue::Null);
}

// An object would sort the keys; their order is part of what the module says.
QJsonArray jsonProperties(const Device &device)
{
    QJsonArray properties;
    for (const auto &[key, value] : device.properties)
        properties.append(QJsonObject{{QLatin1String("key"), key}, {QLatin1String("value"), value}});
    return properties;
}

QJsonValue jsonVirtual(const VirtualDevices &devices, const QString &name)
{
    return devices.isKnown ? QJsonValue(devices.contains(name)) : QJsonValue();
}

QJsonObject jsonDevice(qsizetype number, const Device &device, const QJsonValue &isVirtual)
{
    return {{QLatin1String("number"), number},
            {QLatin1String("virtual"), isVirtual},
            {QLatin1String("name"), device.name},
            {QLatin1String("id"), device.id},
            {QLatin1String("numberOfChannels"), jsonNumber(device.property(numberOfChannels))},
            {QLatin1String("sampleRate"), jsonNumber(device.property(sampleRate))},
            {QLatin1String("driverName"), jsonText(device.property(driverName))},
            {QLatin1String("driverVersion"), jsonText(device.property(driverVersion))},
            {QLatin1String("properties"), jsonProperties(device)}};
}

QJsonArray jsonInputs(const QList<CaptureDevice> &inputs)
{
    QJsonArray list;
    for (const CaptureDevice &input : inputs)
        list.append(QJsonObject{
            {QLatin1String("name"), input.name}, {QLatin1String("id"), input.id}, {QLatin1String("virtual"), input.isVirtual}});
    return list;
}

void printDocument(const ModuleLibrary &library, const QList<Device> &devices, const QList<CaptureDevice> &inputs,
                   Console &console)
{
    const VirtualDevices virtualDevices = readVirtualDevices();
    QJsonArray list;
    for (qsizetype number = 0; number < devices.size(); ++number)
        list.append(jsonDevice(number, devices[number], jsonVirtual(virtualDevices, devices[number].name)));
    printJson(console, {{QLatin1String("productVersion"), library.productVersion()},
                        {QLatin1String("devices"), list},
                        {QLatin1String("inputs"), jsonInputs(inputs)}});
}

QString yesOrNo(bool isYes) { return isYes ? QStringLiteral("yes") : QStringLiteral("no"); }

QStringList tableRow(qsizetype number, const Device &device, const VirtualDevices &virtualDevices)
{
    QStringList row{QString::number(number), QStringLiteral("output"), device.name};
    for (const char *key : {numberOfChannels, sampleRate, driverName, driverVersion})
        row.append(device.property(key).value_or(QString()));
    row.append(virtualDevices.isKnown ? yesOrNo(virtualDevices.contains(device.name)) : QStringLiteral("not known"));
    return row;
}

// Without a number: no test is run on an input, and `--microphone` takes the name.
QStringList tableRow(const CaptureDevice &input)
{
    return {{}, QStringLiteral("input"), input.name, {}, {}, {}, {}, yesOrNo(input.isVirtual)};
}

void printTable(const QList<Device> &devices, const QList<CaptureDevice> &inputs, Console &console)
{
    const VirtualDevices virtualDevices = readVirtualDevices();
    QList<QStringList> rows;
    for (qsizetype number = 0; number < devices.size(); ++number)
        rows.append(tableRow(number, devices[number], virtualDevices));
    for (const CaptureDevice &input : inputs)
        rows.append(tableRow(input));
    const QStringList header{QStringLiteral("No"),
                             QStringLiteral("Direction"),
                             QStringLiteral("Device"),
                             QStringLiteral("Channels"),
                             QStringLiteral("Sample rate"),
                             QStringLiteral("Driver"),
                             QStringLiteral("Driver version"),
                             QStringLiteral("Virtual")};
    console.print(textTable(header, rows, console.isStyled() ? TableStyle::boldHeader : TableStyle::plain));
}

} // namespace

ExitCode runList(const ModuleLibrary &library, bool isJson, Console &console)
{
    DeviceList list;
    console.tellProgress(QStringLiteral("Reading devices…"));
    ostra::SystemComponentManager *manager = library.module()->componentManager();
    const bool isComplete = manager == nullptr || list.refresh(*manager);
    const QList<CaptureDevice> inputs = readCaptureDevices();
    if (isJson)
        printDocument(library, list.devices(), inputs, console);
    else if (!list.devices().isEmpty() || !inputs.isEmpty())
        printTable(list.devices(), inputs, console);
    if (!isComplete) {
        console.complain(QStringLiteral("the list of devices is not complete: out of memory"));
        return ExitCode::notCompleted;
    }
    if (list.devices().isEmpty())
        console.explain(QStringLiteral("No output device found.\n"));
    return ExitCode::success;
}

} // namespace host

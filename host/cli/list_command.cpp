// SPDX-License-Identifier: Apache-2.0
#include "host/cli/list_command.h"

#include "audio/endpoints/endpoint_volume.h"
#include "contract/property_keys.h"
#include "host/cli/console.h"
#include "host/cli/json_output.h"
#include "host/cli/missing_module.h"
#include "host/cli/text_table.h"
#include "host/core/device_list.h"
#include "host/core/module_library.h"
#include "host/precheck/capture_devices.h"
#include "host/precheck/sound_state.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>

#include <chrono>

namespace host {

namespace {

using ostra::properties::driverName;
using ostra::properties::driverVersion;
using ostra::properties::numberOfChannels;
using ostra::properties::sampleRate;

struct Listed {
    QList<Device> devices;
    QList<CaptureDevice> inputs; ///< the monitors behind the microphones
    SoundState sound;
};

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

// What the system does not tell is null.
void addState(QJsonObject &entry, const std::optional<EndpointStanding> &state)
{
    const QJsonValue unknown(QJsonValue::Null);
    entry.insert(QLatin1String("volumePercent"), state ? QJsonValue(state->percent) : unknown);
    entry.insert(QLatin1String("muted"), state ? QJsonValue(state->isMuted) : unknown);
    entry.insert(QLatin1String("default"), state ? QJsonValue(state->isDefault) : unknown);
}

QJsonObject jsonDevice(qsizetype number, const Device &device, const SoundState &sound)
{
    QJsonObject entry{{QLatin1String("number"), number},
                      {QLatin1String("virtual"), jsonVirtual(sound.virtualDevices, device.name)},
                      {QLatin1String("name"), device.name},
                      {QLatin1String("id"), device.id},
                      {QLatin1String("numberOfChannels"), jsonNumber(device.property(numberOfChannels))},
                      {QLatin1String("sampleRate"), jsonNumber(device.property(sampleRate))},
                      {QLatin1String("driverName"), jsonText(device.property(driverName))},
                      {QLatin1String("driverVersion"), jsonText(device.property(driverVersion))},
                      {QLatin1String("properties"), jsonProperties(device)}};
    addState(entry, sound.output(device.name));
    return entry;
}

QJsonArray jsonInputs(const Listed &listed)
{
    QJsonArray list;
    for (const CaptureDevice &input : listed.inputs) {
        QJsonObject entry{{QLatin1String("name"), input.name},
                          {QLatin1String("id"), input.id},
                          {QLatin1String("virtual"), input.isVirtual},
                          {QLatin1String("monitor"), input.isMonitor}};
        addState(entry, listed.sound.withId(input.id));
        list.append(entry);
    }
    return list;
}

void printDocument(const ModuleLibrary &library, const Listed &listed, Console &console)
{
    QJsonArray list;
    for (qsizetype number = 0; number < listed.devices.size(); ++number)
        list.append(jsonDevice(number, listed.devices[number], listed.sound));
    printJson(console, {{QLatin1String("productVersion"), library.productVersion()},
                        {QLatin1String("soundServerAnswers"), listed.sound.isAnswering},
                        {QLatin1String("devices"), list},
                        {QLatin1String("inputs"), jsonInputs(listed)}});
}

QString yesOrNo(bool isYes) { return isYes ? QStringLiteral("yes") : QStringLiteral("no"); }

QStringList stateCells(const std::optional<EndpointStanding> &state)
{
    if (!state)
        return {{}, {}, {}};
    return {QStringLiteral("%1 %").arg(state->percent), yesOrNo(state->isMuted), yesOrNo(state->isDefault)};
}

QStringList tableRow(qsizetype number, const Device &device, const SoundState &sound)
{
    QStringList row{QString::number(number), QStringLiteral("output"), device.name};
    for (const char *key : {numberOfChannels, sampleRate, driverName, driverVersion})
        row.append(device.property(key).value_or(QString()));
    const VirtualDevices &virtualDevices = sound.virtualDevices;
    row.append(virtualDevices.isKnown ? yesOrNo(virtualDevices.contains(device.name)) : QStringLiteral("not known"));
    return row + stateCells(sound.output(device.name));
}

// Without a number: no test is run on an input, and `--microphone` and `--listen` take the name.
QStringList tableRow(const CaptureDevice &input, const SoundState &sound)
{
    const QString direction = input.isMonitor ? QStringLiteral("monitor") : QStringLiteral("input");
    return QStringList{{}, direction, input.name, {}, {}, {}, {}, yesOrNo(input.isVirtual)} +
           stateCells(sound.withId(input.id));
}

void printTable(const Listed &listed, Console &console)
{
    QList<QStringList> rows;
    for (qsizetype number = 0; number < listed.devices.size(); ++number)
        rows.append(tableRow(number, listed.devices[number], listed.sound));
    for (const CaptureDevice &input : listed.inputs)
        rows.append(tableRow(input, listed.sound));
    const QStringList header{QStringLiteral("No"),
                             QStringLiteral("Direction"),
                             QStringLiteral("Device"),
                             QStringLiteral("Channels"),
                             QStringLiteral("Sample rate"),
                             QStringLiteral("Driver"),
                             QStringLiteral("Driver version"),
                             QStringLiteral("Virtual"),
                             QStringLiteral("Volume"),
                             QStringLiteral("Muted"),
                             QStringLiteral("Default")};
    console.print(textTable(header, rows, console.isStyled() ? TableStyle::boldHeader : TableStyle::plain));
}

// One that refuses at once is not silent: the sound library may start it.
bool isServerSilent()
{
    constexpr std::chrono::milliseconds rounding{50}; // of the waits that the bound is made of
    QElapsedTimer asked;
    asked.start();
    return !isSoundServerAnswering() && asked.elapsed() >= (ostra::audio::passBound - rounding).count();
}

// Asked before the module starts the sound library, which would wait half a minute for a silent server.
bool lookAround(ModuleLibrary &library, Listed &listed, bool &isComplete)
{
    if (isServerSilent())
        return library.load();
    if (!library.open())
        return false;
    DeviceList list;
    ostra::SystemComponentManager *manager = library.module()->componentManager();
    isComplete = manager == nullptr || list.refresh(*manager);
    listed.devices = list.devices();
    listed.sound = readSoundState();
    if (listed.sound.isAnswering)
        listed.inputs = readCaptureDevices() + readMonitors();
    return true;
}

} // namespace

ExitCode runList(ModuleLibrary &library, bool isJson, Console &console)
{
    console.tellProgress(QStringLiteral("Reading devices…"));
    Listed listed;
    bool isComplete = true;
    if (!lookAround(library, listed, isComplete))
        return tellMissingModule(library.errorText(), isJson, console);
    if (isJson)
        printDocument(library, listed, console);
    else if (!listed.devices.isEmpty() || !listed.inputs.isEmpty())
        printTable(listed, console);
    if (!isComplete) {
        console.complain(QStringLiteral("the list of devices is not complete: out of memory"));
        return ExitCode::notCompleted;
    }
    if (!listed.devices.isEmpty())
        return ExitCode::success;
    console.explain(listed.sound.isAnswering ? QStringLiteral("No output device found.\n")
                                             : QStringLiteral("The sound server does not answer.\n"));
    return listed.sound.isAnswering ? ExitCode::success : ExitCode::cannotBePerformed;
}

} // namespace host

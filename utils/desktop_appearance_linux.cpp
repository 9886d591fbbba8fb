// SPDX-License-Identifier: Apache-2.0
#include "utils/desktop_appearance_linux.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QFile>
#include <QMap>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <chrono>

namespace ostra::utils {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds portalWait = 200ms;
constexpr std::chrono::milliseconds answerLifetime = 50ms;
constexpr std::chrono::milliseconds failureLifetime = 5s;

using Settings = QMap<QString, QVariantMap>;

QString appearanceGroup() { return QStringLiteral("org.freedesktop.appearance"); }

// Without an address the bus library would start a bus of its own.
bool hasSessionBus()
{
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFile::exists(QFile::decodeName(runtimeFolder) + QStringLiteral("/bus"));
}

std::optional<QVariantMap> askPortal()
{
    if (!hasSessionBus())
        return std::nullopt;
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"));
    question << QStringList{appearanceGroup()};
    const auto answer = QDBusConnection::sessionBus().call(question, QDBus::Block, static_cast<int>(portalWait.count()));
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QStringLiteral("a{sa{sv}}"))
        return std::nullopt;
    return qdbus_cast<Settings>(answer.arguments().constFirst()).value(appearanceGroup());
}

std::optional<uint> numberOf(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt ? std::optional(value.toUInt()) : std::nullopt;
}

// A part outside of 0 to 1 stands for no accent colour.
std::optional<QColor> colorOf(const QVariant &value)
{
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return std::nullopt;
    std::array<double, 3> parts{};
    argument.beginStructure();
    argument >> parts[0] >> parts[1] >> parts[2];
    argument.endStructure();
    if (!std::all_of(parts.begin(), parts.end(), [](double part) { return part >= 0.0 && part <= 1.0; }))
        return std::nullopt;
    return QColor::fromRgbF(static_cast<float>(parts[0]), static_cast<float>(parts[1]), static_cast<float>(parts[2]));
}

DesktopAppearance appearanceOf(const QVariantMap &settings)
{
    DesktopAppearance appearance;
    if (const auto contrast = numberOf(settings.value(QStringLiteral("contrast"))))
        appearance.highContrast = *contrast == 1;
    if (const auto scheme = numberOf(settings.value(QStringLiteral("color-scheme"))); scheme == 1U || scheme == 2U)
        appearance.dark = *scheme == 1;
    appearance.accent = colorOf(settings.value(QStringLiteral("accent-color")));
    return appearance;
}

struct Memory {
    DesktopAppearance appearance;
    QDeadlineTimer validity{0};
};

} // namespace

DesktopAppearance desktopAppearance()
{
    static Memory memory;
    if (memory.validity.hasExpired()) {
        const auto settings = askPortal();
        memory.appearance = appearanceOf(settings.value_or(QVariantMap()));
        memory.validity.setRemainingTime(settings ? answerLifetime : failureLifetime);
    }
    return memory.appearance;
}

} // namespace ostra::utils

// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_message.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <utility>

namespace host {

namespace {

using Kind = GuardianMessage::Kind;

constexpr std::array<std::pair<Kind, QLatin1String>, 5> kindNames{{{Kind::ready, QLatin1String("ready")},
                                                                   {Kind::putBack, QLatin1String("putBack")},
                                                                   {Kind::done, QLatin1String("done")},
                                                                   {Kind::failed, QLatin1String("failed")},
                                                                   {Kind::busy, QLatin1String("busy")}}};

bool isComplaint(Kind kind) { return kind == Kind::failed || kind == Kind::busy; }

} // namespace

QByteArray toLine(const GuardianMessage &message)
{
    const auto name = std::ranges::find(kindNames, message.kind, &std::pair<Kind, QLatin1String>::first);
    QJsonObject line{{QLatin1String("event"), name->second}};
    if (!message.text.isEmpty())
        line.insert(QLatin1String(isComplaint(message.kind) ? "reason" : "name"), message.text);
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<GuardianMessage> fromLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString event = object[QLatin1String("event")].toString();
    for (const auto &[kind, name] : kindNames) {
        if (event == name)
            return GuardianMessage{kind, object[QLatin1String(isComplaint(kind) ? "reason" : "name")].toString()};
    }
    return std::nullopt;
}

bool CommandReader::feed(const QByteArray &bytes)
{
    constexpr qsizetype lineLimit = sizeof(finishCommand);
    for (const char byte : bytes) {
        if (line_.size() < lineLimit)
            line_.append(byte);
        if (byte != '\n')
            continue;
        if (line_ == finishCommand)
            return true;
        line_.clear();
    }
    return false;
}

} // namespace host

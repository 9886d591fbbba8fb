// SPDX-License-Identifier: Apache-2.0
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <array>
#include <chrono>
#include <cstdio>

/// Plays the settings of the desktop portal for one test: the arguments are contrast, color-scheme, the three parts of
/// accent-color and the time to think in milliseconds; "-" leaves a setting out. Tells by "QuestionCount" how
/// often it was asked, also while it thinks. Prints "ready" and runs until it is ended.
namespace {

struct Accent {
    std::array<double, 3> parts{};
};

QDBusArgument &operator<<(QDBusArgument &argument, const Accent &accent)
{
    argument.beginStructure();
    argument << accent.parts[0] << accent.parts[1] << accent.parts[2];
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Accent &accent)
{
    argument.beginStructure();
    argument >> accent.parts[0] >> accent.parts[1] >> accent.parts[2];
    argument.endStructure();
    return argument;
}

using Settings = QMap<QString, QVariantMap>;

class Portal final : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit Portal(const QStringList &arguments) : arguments_(arguments) {}

    QString introspect(const QString & /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() == QStringLiteral("QuestionCount"))
            return connection.send(message.createReply(questionCount_));
        if (message.member() != QStringLiteral("ReadAll"))
            return false;
        ++questionCount_;
        const Settings settings{{message.arguments().constFirst().toStringList().constFirst(), appearance()}};
        const QDBusMessage answer = message.createReply(QVariant::fromValue(settings));
        QTimer::singleShot(arguments_.at(6).toInt(), this, [connection, answer] { connection.send(answer); });
        return true;
    }

private:
    QVariantMap appearance() const
    {
        QVariantMap group;
        if (arguments_.at(1) != u'-')
            group.insert(QStringLiteral("contrast"), arguments_.at(1).toUInt());
        if (arguments_.at(2) != u'-')
            group.insert(QStringLiteral("color-scheme"), arguments_.at(2).toUInt());
        if (arguments_.at(3) != u'-') {
            const Accent accent{{arguments_.at(3).toDouble(), arguments_.at(4).toDouble(), arguments_.at(5).toDouble()}};
            group.insert(QStringLiteral("accent-color"), QVariant::fromValue(accent));
        }
        return group;
    }

    QStringList arguments_;
    int questionCount_ = 0;
};

} // namespace

Q_DECLARE_METATYPE(Accent)
Q_DECLARE_METATYPE(Settings)

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qDBusRegisterMetaType<Accent>();
    qDBusRegisterMetaType<Settings>();
    Portal portal(QCoreApplication::arguments());
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal) ||
        !bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
#include "pretend_portal.moc"

// SPDX-License-Identifier: Apache-2.0
#include "contract/sal.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr const char *driverNameSpace = "root\\CIMV2";
constexpr const char *driverClass = "Win32_PnPSignedDriver";
constexpr const char *driverCondition = "DeviceClass LIKE '%AUDIOENDPOINT%'";
constexpr std::array<const char *, 3> driverProperties{"Description", "DriverVersion", "FriendlyName"};

std::int32_t askForDrivers(std::vector<sal::CimRow> &rows)
{
    return get_cim()->query(rows, driverCondition, driverClass, driverProperties.size(), driverProperties.data(),
                            driverNameSpace);
}

// Names another sound server for as long as it lives.
class ServerAddress {
public:
    explicit ServerAddress(const QByteArray &address) : before_(qgetenv("PULSE_SERVER")) { qputenv("PULSE_SERVER", address); }
    ~ServerAddress() { before_.isNull() ? qunsetenv("PULSE_SERVER") : qputenv("PULSE_SERVER", before_); }
    ServerAddress(const ServerAddress &) = delete;
    ServerAddress &operator=(const ServerAddress &) = delete;

private:
    QByteArray before_;
};

// A socket that takes connections and never says anything: what a frozen server looks like.
class SilentServer {
public:
    explicit SilentServer(const QByteArray &path) : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
        isListening_ =
            ::bind(socket_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 && ::listen(socket_, 8) == 0;
    }
    ~SilentServer() { ::close(socket_); }
    SilentServer(const SilentServer &) = delete;
    SilentServer &operator=(const SilentServer &) = delete;

    bool isListening() const { return isListening_; }

private:
    int socket_;
    bool isListening_ = false;
};

} // namespace

class TestSalCimLinux : public QObject {
    Q_OBJECT

private slots:
    void devicesWithoutACardHaveNoRow();
    void rowsOfTheCallerAreKept();
    void anyOtherQuestionIsRefused_data();
    void anyOtherQuestionIsRefused();
    void malformedRequestIsRefused();
    void missingServerGivesACodeAtOnce();
    void silentServerGivesACodeInBoundedTime();
};

void TestSalCimLinux::devicesWithoutACardHaveNoRow()
{
    std::vector<sal::CimRow> rows;
    QCOMPARE(askForDrivers(rows), 0);
    QCOMPARE(rows.size(), std::size_t{0});
}

void TestSalCimLinux::rowsOfTheCallerAreKept()
{
    std::vector<sal::CimRow> rows{{std::string("kept")}};
    QCOMPARE(askForDrivers(rows), 0);
    QCOMPARE(rows.size(), std::size_t{1});
}

void TestSalCimLinux::anyOtherQuestionIsRefused_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("nameSpace");
    const QByteArray condition(driverCondition);
    const QByteArray className(driverClass);
    const QByteArray property("Description");
    const QByteArray nameSpace(driverNameSpace);
    QTest::newRow("condition") << QByteArray("DeviceClass LIKE '%MEDIA%'") << className << property << nameSpace;
    QTest::newRow("no condition") << QByteArray() << className << property << nameSpace;
    QTest::newRow("class") << condition << QByteArray("Win32_Processor") << property << nameSpace;
    QTest::newRow("property") << condition << className << QByteArray("Manufacturer") << nameSpace;
    QTest::newRow("namespace") << condition << className << property << QByteArray("root\\WMI");
}

void TestSalCimLinux::anyOtherQuestionIsRefused()
{
    QFETCH(QByteArray, condition);
    QFETCH(QByteArray, className);
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, nameSpace);
    std::vector<sal::CimRow> rows;
    const char *name = property.constData();
    QCOMPARE(get_cim()->query(rows, condition.toStdString(), className.toStdString(), 1, &name, nameSpace.toStdString()),
             ENOTSUP);
}

void TestSalCimLinux::malformedRequestIsRefused()
{
    std::vector<sal::CimRow> rows;
    const char *missing = nullptr;
    QCOMPARE(get_cim()->query(rows, driverCondition, driverClass, 0, driverProperties.data(), driverNameSpace), EINVAL);
    QCOMPARE(get_cim()->query(rows, driverCondition, driverClass, 1, nullptr, driverNameSpace), EINVAL);
    QCOMPARE(get_cim()->query(rows, driverCondition, driverClass, 1, &missing, driverNameSpace), EINVAL);
}

void TestSalCimLinux::missingServerGivesACodeAtOnce()
{
    const ServerAddress address("unix:/nonexistent/native");
    std::vector<sal::CimRow> rows;
    QElapsedTimer watch;
    watch.start();
    QCOMPARE(askForDrivers(rows), ECONNREFUSED);
    QVERIFY2(watch.elapsed() < 2000, qPrintable(QString::number(watch.elapsed())));
}

void TestSalCimLinux::silentServerGivesACodeInBoundedTime()
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("native")).toLocal8Bit();
    const SilentServer server(path);
    QVERIFY(server.isListening());
    const ServerAddress address("unix:" + path);
    std::vector<sal::CimRow> rows;
    QElapsedTimer watch;
    watch.start();
    QCOMPARE(askForDrivers(rows), ETIMEDOUT);
    QVERIFY2(watch.elapsed() >= 1900 && watch.elapsed() < 10000, qPrintable(QString::number(watch.elapsed())));
}

QTEST_GUILESS_MAIN(TestSalCimLinux)
#include "tst_sal_cim_linux.moc"

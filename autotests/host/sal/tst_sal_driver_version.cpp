// SPDX-License-Identifier: Apache-2.0
#include "host/sal/driver_version_linux.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QString>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

class TestSalDriverVersion : public QObject {
    Q_OBJECT

private slots:
    void moduleThatDeclaresAVersionGivesIt();
    void otherwiseTheKernelsReleaseIsNamedAsSuch_data();
    void otherwiseTheKernelsReleaseIsNamedAsSuch();
};

namespace {

bool writeModuleVersion(const QTemporaryDir &system, const QString &card, const QByteArray &text)
{
    const QString folder = system.filePath(QStringLiteral("class/sound/%1/device/driver/module").arg(card));
    if (!QDir().mkpath(folder))
        return false;
    QFile file(folder + QStringLiteral("/version"));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace

void TestSalDriverVersion::moduleThatDeclaresAVersionGivesIt()
{
    const QTemporaryDir system;
    QVERIFY(writeModuleVersion(system, QStringLiteral("card1"), "1.2.3-dkms\n"));
    QCOMPARE(sal::kernelDriverVersion(1, system.path().toStdString()), std::string("1.2.3-dkms"));
}

void TestSalDriverVersion::otherwiseTheKernelsReleaseIsNamedAsSuch_data()
{
    QTest::addColumn<int>("card"); // -1: a card that the kernel's sound system does not drive
    QTest::newRow("no version file") << 0;
    QTest::newRow("empty version file") << 2;
    QTest::newRow("no kernel card") << -1;
}

void TestSalDriverVersion::otherwiseTheKernelsReleaseIsNamedAsSuch()
{
    QFETCH(int, card);
    const QTemporaryDir system;
    QVERIFY(writeModuleVersion(system, QStringLiteral("card2"), "\n"));
    const auto alsaCard = card < 0 ? std::nullopt : std::optional<std::uint32_t>(static_cast<std::uint32_t>(card));
    const std::string expected = "kernel " + QSysInfo::kernelVersion().toStdString();
    QCOMPARE(sal::kernelDriverVersion(alsaCard, system.path().toStdString()), expected);
}

QTEST_GUILESS_MAIN(TestSalDriverVersion)
#include "tst_sal_driver_version.moc"

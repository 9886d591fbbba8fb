// SPDX-License-Identifier: Apache-2.0
#include "host/core/module_library.h"

#include "host/core/module_file_name.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

using host::ModuleLibrary;

namespace {

QString suffix() { return QFileInfo(QLatin1String(host::moduleFileName())).suffix(); }

QString fixture(const QString &name) { return QCoreApplication::applicationDirPath() + u'/' + name + u'.' + suffix(); }

QString realModule()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/") +
                           QLatin1String(host::moduleFileName()));
}

} // namespace

class TestHostModuleLibrary : public QObject {
    Q_OBJECT

private slots:
    void refuses_data();
    void refuses();
    void refusesAFileThatIsNoLibrary();
    void refusesAnAbsentInstance();
    void looksBesideTheProgramOnly();
    void makesEveryPathAbsolute();
    void givesTheInstanceBackOnce();
    void givesNothingBackWhenOnlyLoaded();
    void opensTheRealModule();
    void opensTheRealModuleAgain();
    void keepsInterruptSignalsFromTheSoundLibrary();
};

void TestHostModuleLibrary::refuses_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing file") << fixture(QStringLiteral("no_such_module")) << QStringLiteral("the file is missing");
    QTest::newRow("folder") << QCoreApplication::applicationDirPath() << QStringLiteral("the file is missing");
    QTest::newRow("no export") << fixture(QStringLiteral("module_without_exports"))
                               << QStringLiteral("it has no function 'GetModuleInterfaceInstance'");
    QTest::newRow("one export missing") << fixture(QStringLiteral("module_without_version"))
                                        << QStringLiteral("it has no function 'GetProductVersion'");
}

void TestHostModuleLibrary::refuses()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    ModuleLibrary library(path);
    QVERIFY(!library.load());
    QVERIFY(!library.open());
    QVERIFY2(library.errorText().endsWith(reason), qPrintable(library.errorText()));
    QVERIFY2(library.errorText().contains(QDir::toNativeSeparators(path)), qPrintable(library.errorText()));
    QCOMPARE(library.module(), nullptr);
    QCOMPARE(library.productVersion(), QString());
}

void TestHostModuleLibrary::refusesAFileThatIsNoLibrary()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QLatin1String(host::moduleFileName()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no library\n");
    file.close();

    ModuleLibrary library(path);
    QVERIFY(!library.open());
    QVERIFY2(library.errorText().contains(QDir::toNativeSeparators(path)), qPrintable(library.errorText()));
    QVERIFY2(!library.errorText().contains(u'\n'), qPrintable(library.errorText()));
    QCOMPARE(library.module(), nullptr);
}

void TestHostModuleLibrary::refusesAnAbsentInstance()
{
    ModuleLibrary library(fixture(QStringLiteral("module_without_instance")));
    QVERIFY(!library.open());
    QVERIFY2(library.errorText().endsWith(QStringLiteral("it gave no module interface")), qPrintable(library.errorText()));
    QCOMPARE(library.productVersion(), QStringLiteral("1.2.3.4"));
}

void TestHostModuleLibrary::looksBesideTheProgramOnly()
{
    QCOMPARE(ModuleLibrary::defaultPath(),
             QCoreApplication::applicationDirPath() + u'/' + QLatin1String(host::moduleFileName()));
    ModuleLibrary library; // none lies beside this test, and the system's search path is not asked
    QVERIFY(!library.open());
    QVERIFY(library.errorText().endsWith(QStringLiteral("the file is missing")));
}

void TestHostModuleLibrary::makesEveryPathAbsolute()
{
    QVERIFY(QDir::isAbsolutePath(ModuleLibrary(QLatin1String(host::moduleFileName())).path()));
}

void TestHostModuleLibrary::givesTheInstanceBackOnce()
{
    const QString path = fixture(QStringLiteral("module_counting_instances"));
    const auto heldInstanceCount = reinterpret_cast<int (*)()>(QLibrary::resolve(path, "heldInstanceCount"));
    QVERIFY(heldInstanceCount != nullptr);
    {
        ModuleLibrary library(path);
        QVERIFY(library.open());
        QVERIFY(library.open());
        QCOMPARE(heldInstanceCount(), 1);
    }
    QCOMPARE(heldInstanceCount(), 0);
}

void TestHostModuleLibrary::givesNothingBackWhenOnlyLoaded()
{
    const QString path = fixture(QStringLiteral("module_counting_instances"));
    const auto heldInstanceCount = reinterpret_cast<int (*)()>(QLibrary::resolve(path, "heldInstanceCount"));
    {
        ModuleLibrary library(path);
        QVERIFY(library.load());
        QCOMPARE(library.productVersion(), QStringLiteral("1.2.3.4"));
        QCOMPARE(library.module(), nullptr);
    }
    QCOMPARE(heldInstanceCount(), 0);
}

void TestHostModuleLibrary::opensTheRealModule()
{
    ModuleLibrary library(realModule());
    QVERIFY2(library.open(), qPrintable(library.errorText()));
    QCOMPARE(library.productVersion(), QStringLiteral("4.42.0.92"));
    QCOMPARE(library.module()->diagnosticCount(), std::uint64_t{1});
    QCOMPARE(library.errorText(), QString());
}

void TestHostModuleLibrary::opensTheRealModuleAgain()
{
    ModuleLibrary library(realModule());
    QVERIFY2(library.open(), qPrintable(library.errorText()));
    QVERIFY(library.module()->componentManager()->hasComponents());
}

void TestHostModuleLibrary::keepsInterruptSignalsFromTheSoundLibrary()
{
    qunsetenv("SDL_NO_SIGNAL_HANDLERS");
    ModuleLibrary library(fixture(QStringLiteral("module_counting_instances")));
    QVERIFY(library.open());
    // The process's block, which is not the C library's copy on Windows.
    QCOMPARE(QProcessEnvironment::systemEnvironment().value(QStringLiteral("SDL_NO_SIGNAL_HANDLERS")), QStringLiteral("1"));
}

QTEST_GUILESS_MAIN(TestHostModuleLibrary)
#include "tst_host_module_library.moc"

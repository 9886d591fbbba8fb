// SPDX-License-Identifier: Apache-2.0
// The real shared library, as a host loads it, against a real sound server with the sink "X".
#include "autotests/support/live_memory.h"
#include "autotests/support/wave_files.h"
#include "contract/exports.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra;

class TestModuleLibrary : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void getsTheSameInstanceUntilItIsReleased();
    void listsTheDevice();
    void staysMappedAfterItsFirstInstance();
    void twoHundredRoundsLeaveNothingBehind();

private:
    static QString libraryPath();
    GetModuleInterfaceInstanceFunction *get_ = nullptr;
    ReleaseModuleInterfaceInstanceFunction *release_ = nullptr;
    GetProductVersionFunction *version_ = nullptr;
    QTemporaryDir state_;
};

QString TestModuleLibrary::libraryPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/" MODULE_NAME));
}

void TestModuleLibrary::initTestCase()
{
    QVERIFY(QDir::setCurrent(state_.path()));
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    // A high rate makes the sound library's wait on closing short.
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"),
                             wave_files::wave(192000, 2, 1000));
    QLibrary library(libraryPath());
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    get_ = reinterpret_cast<GetModuleInterfaceInstanceFunction *>(library.resolve(exports::getModuleInterfaceInstance));
    release_ =
        reinterpret_cast<ReleaseModuleInterfaceInstanceFunction *>(library.resolve(exports::releaseModuleInterfaceInstance));
    version_ = reinterpret_cast<GetProductVersionFunction *>(library.resolve(exports::getProductVersion));
    QVERIFY(get_ != nullptr && release_ != nullptr && version_ != nullptr);
}

void TestModuleLibrary::cleanupTestCase()
{
    QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively();
}

void TestModuleLibrary::getsTheSameInstanceUntilItIsReleased()
{
    ModuleInterface *instance = get_();
    QVERIFY(instance != nullptr);
    QCOMPARE(get_(), instance);
    release_();
    release_();
    QVERIFY(get_() != nullptr);
    release_();
}

void TestModuleLibrary::listsTheDevice()
{
    SystemComponentManager *manager = get_()->componentManager();
    manager->refresh();
    QVERIFY(manager->componentCount() >= 1); // Wine adds an endpoint of its own behind the sink
    QCOMPARE(manager->componentAt(0)->name(), std::string("X"));
    QCOMPARE(manager->componentAt(0)->info().properties.at(2), (std::pair<std::string, std::string>{"SAMPLE_RATE", "192000"}));
    release_();
}

void TestModuleLibrary::staysMappedAfterItsFirstInstance()
{
    get_();
    release_();
    QLibrary library(libraryPath());
    QVERIFY(library.load());
    while (library.unload()) {
    }
    QCOMPARE(version_()->minor(), 42U); // would crash if the code were gone
}

void TestModuleLibrary::twoHundredRoundsLeaveNothingBehind()
{
    const auto round = [this] {
        get_()->componentManager()->refresh();
        release_();
    };
    for (int warmUp = 0; warmUp < 20; ++warmUp)
        round();
    const std::size_t before = liveByteCount();
    for (int turn = 0; turn < 200; ++turn)
        round();
    const std::size_t after = liveByteCount();
    const auto growth = static_cast<qint64>(after) - static_cast<qint64>(before);
    qInfo("live bytes before %zu, after %zu, growth a round %.1f", before, after, double(growth) / 200);
    // One forgotten clip of this test would be 4000 bytes a round, one forgotten component some 500.
    QVERIFY2(growth < 200 * 300, qPrintable(QString::number(growth)));
}

QTEST_GUILESS_MAIN(TestModuleLibrary)
#include "tst_module_library.moc"

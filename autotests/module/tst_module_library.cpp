// SPDX-License-Identifier: Apache-2.0
// The real shared library, as a host loads it, against a real sound server with the sink "X".
#include "autotests/support/live_memory.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/wave_files.h"
#include "contract/exports.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace ostra;

namespace {

constexpr qint64 residentBytesAtMost = 24 * 1024 * 1024; // the allocators' own slack
constexpr qint64 releaseLimit = 5000;                    // ms; a second is what a host may count on

} // namespace

class TestModuleLibrary : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void getsTheSameInstanceUntilItIsReleased();
    void listsTheDevice();
    void staysMappedAfterItsFirstInstance();
    void manyRoundsLeaveNothingBehind();

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
    SystemComponent *device = nullptr; // Wine adds an endpoint of its own, before the sink or behind it
    for (std::uint32_t index = 0; device == nullptr && index < manager->componentCount(); ++index) {
        if (manager->componentAt(index)->name() == "X")
            device = manager->componentAt(index);
    }
    QVERIFY(device != nullptr);
    QCOMPARE(device->info().properties.at(2), (std::pair<std::string, std::string>{"SAMPLE_RATE", "192000"}));
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

void TestModuleLibrary::manyRoundsLeaveNothingBehind()
{
    // Loaded and unloaded each time, as a host may; the code stays where it is.
    qint64 longestRelease = 0;
    const auto round = [this, &longestRelease] {
        QLibrary library(libraryPath());
        QVERIFY(library.load());
        get_()->componentManager()->refresh();
        QElapsedTimer timer;
        timer.start();
        release_();
        longestRelease = std::max(longestRelease, timer.elapsed());
        library.unload();
    };
    for (int warmUp = 0; warmUp < 20; ++warmUp)
        round();
    const int rounds = std::max(50, qEnvironmentVariableIntValue("LIBRARY_ROUNDS"));
    const std::size_t before = liveByteCount();
    const process_facts::Facts factsBefore = process_facts::now();
    for (int turn = 0; turn < rounds; ++turn)
        round();
    const std::size_t after = liveByteCount();
    const process_facts::Facts factsAfter = process_facts::now();
    const auto growth = static_cast<qint64>(after) - static_cast<qint64>(before);
    qInfo("%d rounds: live bytes before %zu, after %zu, growth a round %.1f; before %s; after %s", rounds, before, after,
          double(growth) / rounds, process_facts::text(factsBefore).c_str(), process_facts::text(factsAfter).c_str());
    qInfo("the longest release took %lld ms", static_cast<long long>(longestRelease));
    QVERIFY2(longestRelease < releaseLimit, qPrintable(QString::number(longestRelease)));
    // One forgotten clip of this test would be 4000 bytes a round, one forgotten component some 500.
    QVERIFY2(growth < rounds * 300 + 15000, qPrintable(QString::number(growth)));
    const auto residentGrowth = static_cast<qint64>(factsAfter.residentBytes) - static_cast<qint64>(factsBefore.residentBytes);
    QVERIFY2(residentGrowth < residentBytesAtMost, qPrintable(QString::number(residentGrowth)));
    QVERIFY(factsAfter.threads <= factsBefore.threads);
    QVERIFY(factsAfter.handles <= factsBefore.handles + 8); // the system opens some for itself now and then
}

QTEST_GUILESS_MAIN(TestModuleLibrary)
#include "tst_module_library.moc"

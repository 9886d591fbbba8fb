// SPDX-License-Identifier: Apache-2.0
// Run after run of both tests within one process: a few, or as many as ENDURANCE_RUNS says. With REAL_DEVICES they are those of
// a sound server, and every second is waited for.
#include "autotests/faults/driven_runs.h"
#include "autotests/support/fake_sal.h"
#include "autotests/support/live_memory.h"
#include "autotests/support/process_facts.h"
#include "contract/exports.h"
#include "contract/style_manager.h"
#include "utils/screen_sources.h"
#include "views/digit_sequence.h"

#include <QDir>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTest>

#include <optional>

using namespace ostra;
using driven_runs::Kind;

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
}

namespace {

constexpr int warmUpRuns = 5;
// One forgotten dialog would be some 200 KiB a run, one forgotten recording a megabyte, one forgotten icon 4 KiB on disk.
constexpr qint64 liveBytesPerRun = LIVE_BYTES_PER_RUN;
constexpr qint64 liveBytesInAll = 64 * 1024;             // caches that fill once; real devices took 19 KiB in fifty runs
constexpr qint64 residentBytesAtMost = 24 * 1024 * 1024; // the allocators' own slack

// Qt keeps an icon's pictures until its cache is full, at 10 MB, which would look like growth: a few runs fill this one. When a
// picture has left it, Qt 6.4 still keeps its name and its key. Of the 669 bytes that a playback run left, heaptrack shows 663
// as theirs; a microphone run leaves 988.
constexpr int pictureCacheLimit = 40; // KB
constexpr qint64 pictureNamesOf(Kind kind) { return kind == Kind::playback ? 704 : 1024; }

int runCount() { return std::max(1, qEnvironmentVariableIntValue("ENDURANCE_RUNS")); }

bool &hasIcons()
{
    static bool has = false;
    return has;
}

class SomeStyle final : public utils::style_manager::StyleManager {
public:
    std::string Stylesheet() const override
    {
        return hasIcons() ? "QPushButton { image: url(\":/audio/resources/icons/close.svg\"); }"
                          : "QPushButton { color: #123456; }";
    }
};

struct Measure {
    process_facts::Facts facts = process_facts::now();
    qint64 liveBytes = static_cast<qint64>(liveByteCount());
};

} // namespace

utils::style_manager::StyleManager *utils::style_manager::StyleManager::instance()
{
    static SomeStyle style;
    return &style;
}

class TestEndurance : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { ReleaseModuleInterfaceInstance(); }
    void manyRunsLeaveEverythingAsItWas_data();
    void manyRunsLeaveEverythingAsItWas();

private:
    void runOnce(Kind kind);
    void runOften(Kind kind, int count);

    driven_runs::Place place_;
    std::optional<driven_runs::Devices> devices_; // none: real ones
    ModuleInterface *module_ = nullptr;
};

void TestEndurance::initTestCase()
{
    if (!qEnvironmentVariableIsSet("REAL_DEVICES")) {
        qputenv("PULSE_SERVER", "none"); // the volumes are not what is measured here
        devices_.emplace();
    }
    QPixmapCache::setCacheLimit(pictureCacheLimit);
    playbackSources().digit = &driven_runs::nextDigit;
    fake_sal::state().temporaryPath = QDir::currentPath().toStdString();
    utils::screenSources().highContrastOn = [] { return true; };
    module_ = GetModuleInterfaceInstance();
    QVERIFY(module_ != nullptr);
    qputenv("QT_LOGGING_RULES", "default.debug=false");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtDebugMsg) // three lines of every dialog
            fprintf(stderr, "%s\n", qPrintable(text));
    });
}

void TestEndurance::runOnce(Kind kind)
{
    module_->componentManager()->refresh();
    ScriptedContext context(module_->componentManager()->componentAt(0));
    driven_runs::Driver driver(kind);
    driver.isPatient = !devices_;
    const driven_runs::Outcome outcome = driver.run(*module_, context);
    QCOMPARE(outcome.code.value_or(99), 0U);
    QVERIFY(!outcome.hasSlotThrown);
    fake_sal::state().queries.clear();
}

void TestEndurance::runOften(Kind kind, int count)
{
    for (int run = 0; run < count && !QTest::currentTestFailed(); ++run)
        runOnce(kind);
}

void TestEndurance::manyRunsLeaveEverythingAsItWas_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("withIcons");
    QTest::newRow("playback") << int(Kind::playback) << false;
    QTest::newRow("microphone") << int(Kind::microphone) << false;
    if (!devices_)
        return; // icons know nothing of devices
    QTest::newRow("playback, icons recoloured") << int(Kind::playback) << true;
    QTest::newRow("microphone, icons recoloured") << int(Kind::microphone) << true;
}

void TestEndurance::manyRunsLeaveEverythingAsItWas()
{
    QFETCH(const int, kind);
    QFETCH(const bool, withIcons);
    hasIcons() = withIcons;
    QDir(QStringLiteral("temp")).removeRecursively(); // an earlier test's
    runOften(Kind(kind), devices_ ? warmUpRuns : 1);
    if (QTest::currentTestFailed())
        return;
    QVERIFY(driven_runs::leftovers(process_facts::now().threads).empty());
    QCOMPARE(QDir(QStringLiteral("temp")).exists(), withIcons);
    const QDir folder = QDir::current();
    const auto fileCount = [&folder] { return QDir(folder.filePath(QStringLiteral("temp"))).entryList(QDir::Files).size(); };
    const qsizetype files = fileCount();
    const Measure before;
    QElapsedTimer time;
    time.start();
    runOften(Kind(kind), runCount());
    if (QTest::currentTestFailed())
        return;
    const qint64 took = time.elapsed();
    const std::string left = driven_runs::leftovers(before.facts.threads);
    QVERIFY2(left.empty(), left.c_str());
    const Measure after;
    qInfo("%d runs in %lld ms: before %s, %lld live bytes; after %s, %lld live bytes; %lld temporary files", runCount(),
          static_cast<long long>(took), process_facts::text(before.facts).c_str(), static_cast<long long>(before.liveBytes),
          process_facts::text(after.facts).c_str(), static_cast<long long>(after.liveBytes),
          static_cast<long long>(fileCount()));
    QCOMPARE(fileCount(), files);
    QVERIFY(after.facts.threads <= before.facts.threads);
    QVERIFY(after.facts.handles <= before.facts.handles + 8); // the system opens some for itself now and then
    const qint64 bytesPerRun = liveBytesPerRun + (withIcons ? pictureNamesOf(Kind(kind)) : 0);
    QVERIFY(after.liveBytes - before.liveBytes < liveBytesInAll + runCount() * bytesPerRun);
    QVERIFY(qint64(after.facts.residentBytes) - qint64(before.facts.residentBytes) < residentBytesAtMost);
    if (devices_)
        QCOMPARE(devices_->sound.openedCount.load(), devices_->sound.closedCount.load());
}

QTEST_MAIN(TestEndurance)
#include "tst_endurance.moc"

// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/pulse_truth_linux.h"
#include "host/core/language_setting.h"
#include "host/core/module_library.h"
#include "host/gui/device_watcher.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/test_session.h"

#include "autotests/host/gui/fake_module.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

constexpr int patienceMilliseconds = 15'000;

QString bundledModule()
{
    const QString here = QCoreApplication::applicationDirPath();
    return QDir(here + QStringLiteral("/../../../bundle")).absoluteFilePath(QStringLiteral("module_audio.so"));
}

} // namespace

/// The real module, the real sound server, and a sound card that is plugged in and out.
class TestLiveRefreshSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void listsACardThatComesAndGoes();
    void ignoresChangesOfTheVolume();
    void waitsForTheEndOfARun();

private:
    QStringList names() const;

    QString before_ = QDir::currentPath();
    QTemporaryDir folder_;
    host::LanguageSetting language_;
    host::DialogPrompter prompter_;
    std::unique_ptr<host::ModuleLibrary> library_;
    std::unique_ptr<host::TestSession> session_;
    std::unique_ptr<host::DeviceWatcher> watcher_;
};

void TestLiveRefreshSound::initTestCase()
{
    QVERIFY(language_.useOwnFolder(folder_.path()));
    library_ = std::make_unique<host::ModuleLibrary>(bundledModule());
    QVERIFY2(library_->open(), qPrintable(library_->errorText()));
    session_ = std::make_unique<host::TestSession>(*library_->module(), prompter_, folder_.path());
    watcher_ = std::make_unique<host::DeviceWatcher>();
    connect(watcher_.get(), &host::DeviceWatcher::devicesChanged, session_.get(), &host::TestSession::refreshWhenQuiet);
    session_->refresh();
    QCOMPARE(names(), QStringList{QStringLiteral("Speakers")});
}

void TestLiveRefreshSound::cleanupTestCase()
{
    watcher_.reset();
    session_.reset();
    library_.reset();
    QVERIFY(QDir::setCurrent(before_));
}

QStringList TestLiveRefreshSound::names() const
{
    QStringList names;
    for (const host::Device &device : session_->deviceList().devices())
        names.append(device.name);
    return names;
}

void TestLiveRefreshSound::listsACardThatComesAndGoes()
{
    // The watcher's own connection comes up on its thread: until then nothing is noticed.
    const QSignalSpy noticed(watcher_.get(), &host::DeviceWatcher::devicesChanged);
    QTRY_VERIFY_WITH_TIMEOUT(
        pulse_truth::run({QStringLiteral("list"), QStringLiteral("clients")}).contains(QStringLiteral("TamrexDiagnostics")),
        patienceMilliseconds);
    QElapsedTimer time;
    time.start();
    pulse_truth::addSink(QStringLiteral("plugged"));
    QTRY_COMPARE_WITH_TIMEOUT(names().size(), 2, patienceMilliseconds);
    QVERIFY2(time.elapsed() >= 950, qPrintable(QString::number(time.elapsed()))); // only after the quiet second
    qInfo("listed after %lld ms", static_cast<long long>(time.elapsed()));
    QVERIFY(!noticed.isEmpty());
    pulse_truth::remove(QStringLiteral("plugged"));
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList{QStringLiteral("Speakers")}, patienceMilliseconds);
}

void TestLiveRefreshSound::ignoresChangesOfTheVolume()
{
    const QSignalSpy noticed(watcher_.get(), &host::DeviceWatcher::devicesChanged);
    pulse_truth::set(QStringLiteral("sink"), QStringLiteral("sink1"), {30'000, 30'000}, false);
    pulse_truth::addSink(QStringLiteral("fence")); // its notice comes behind that of the volume, if there were one
    QTRY_VERIFY_WITH_TIMEOUT(!noticed.isEmpty(), patienceMilliseconds);
    QCOMPARE(noticed.size(), 1);
    pulse_truth::remove(QStringLiteral("fence"));
    QTRY_COMPARE_WITH_TIMEOUT(noticed.size(), 2, patienceMilliseconds);
}

void TestLiveRefreshSound::waitsForTheEndOfARun()
{
    FakeModule module;
    host::TestSession session(module.interface(), prompter_, folder_.path());
    connect(watcher_.get(), &host::DeviceWatcher::devicesChanged, &session, &host::TestSession::refreshWhenQuiet);
    session.refresh();
    int during = 0;
    const QSignalSpy noticed(watcher_.get(), &host::DeviceWatcher::devicesChanged);
    module.playback = [&](ostra::TestContext &) {
        pulse_truth::addSink(QStringLiteral("late"));
        QElapsedTimer time;
        const bool isNoticed = QTest::qWaitFor([&noticed] { return !noticed.isEmpty(); }, patienceMilliseconds);
        time.start();
        const bool isQuiet = QTest::qWaitFor([&time] { return time.hasExpired(2 * host::TestSession::quietTime.count()); },
                                             patienceMilliseconds);
        during = isNoticed && isQuiet ? module.refreshCount : -1;
        return ostra::result::passed;
    };
    session.run(0, 0, QStringLiteral("en_US"));
    QCOMPARE(during, 1);
    QCOMPARE(module.refreshCount, 2);
    pulse_truth::remove(QStringLiteral("late"));
}

QTEST_MAIN(TestLiveRefreshSound)
#include "tst_live_refresh_sound.moc"

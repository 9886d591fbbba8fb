// SPDX-License-Identifier: Apache-2.0
// A host all of whose services throw, one after the other. Every call of a run throws where EVERY_CALL is set, else some.
#include "audio/volume_guard.h"
#include "autotests/faults/driven_runs.h"
#include "autotests/support/fake_sal.h"
#include "autotests/support/process_facts.h"
#include "autotests/tests/sound_truth.h"
#include "contract/exports.h"
#include "contract/property_keys.h"
#include "contract/style_manager.h"
#include "utils/screen_sources.h"
#include "views/interaction_dialog.h"

#include <QDir>
#include <QTest>

#include <functional>
#include <new>
#include <stdexcept>
#include <utility>

using namespace ostra;
using driven_runs::Kind;

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
}

namespace {

using Throw = void (*)();

[[noreturn]] void throwError() { throw std::runtime_error("a service of the host"); }
[[noreturn]] void throwNoMemory() { throw std::bad_alloc(); }
[[noreturn]] void throwNumber() { throw 42; }

constexpr std::array<Throw, 3> throws{&throwError, &throwNoMemory, &throwNumber};

Throw &stylesheetThrows()
{
    static Throw current = nullptr;
    return current;
}

class FakeStyle final : public utils::style_manager::StyleManager {
public:
    std::string Stylesheet() const override
    {
        if (stylesheetThrows() != nullptr)
            stylesheetThrows()();
        return "QPushButton { image: url(\":/audio/resources/icons/close.svg\"); }";
    }
};

struct ServiceRow {
    const char *service;
    bool isStyle;
};

// Those that a run asks; what a refresh asks is refused further below.
constexpr std::array services{
    ServiceRow{"timer", false},
#ifdef Q_OS_WIN
    ServiceRow{"module loader", false},
#endif
    ServiceRow{"temporary path", false},
    ServiceRow{"stylesheet", true},
};

} // namespace

utils::style_manager::StyleManager *utils::style_manager::StyleManager::instance()
{
    static FakeStyle style;
    return &style;
}

class TestThrowingHost : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void aCallThatThrowsEndsTheRun_data();
    void aCallThatThrowsEndsTheRun();
    void anEventSourceThatFailsOnceIsNoPass_data();
    void anEventSourceThatFailsOnceIsNoPass();
    void aWatcherThatThrowsStopsTheDialog_data();
    void aWatcherThatThrowsStopsTheDialog();
    void aWatcherThatFailsOnceIsNoPass_data();
    void aWatcherThatFailsOnceIsNoPass();
    void aPlatformServiceThatThrowsIsAbsent_data();
    void aPlatformServiceThatThrowsIsAbsent();
    void aRefreshLetsLackOfMemoryOutOnly();
    void nothingIsToldToAHostWithoutServices();

private:
    void checkAsBefore(const driven_runs::Outcome &outcome, const std::string &what);

    driven_runs::Place place_;
    driven_runs::Devices devices_;
    std::size_t threads_ = 0;
    std::string levels_;
};

void TestThrowingHost::initTestCase()
{
    qputenv("XDG_DATA_HOME", QDir::currentPath().toUtf8()); // where icons go when the host names no folder
    fake_sal::state().temporaryPath = QDir::currentPath().toStdString();
    utils::screenSources().highContrastOn = [] { return true; };
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    for (const Kind kind : {Kind::playback, Kind::microphone}) { // what the system makes once is made
        ScriptedContext context(module->componentManager()->componentAt(0));
        QCOMPARE(driven_runs::Driver(kind).run(*module, context).code.value_or(99), 0U);
    }
    QVERIFY(driven_runs::leftovers(process_facts::now().threads).empty());
    threads_ = process_facts::now().threads;
    sound_truth::turnDown();
    levels_ = sound_truth::levels();
    {
        const audio::VolumeGuard raised = audio::makeVolumeGuard(100);
        QVERIFY(!sound_truth::canTell() || sound_truth::levels() != levels_); // what is not put back is seen
    }
    QCOMPARE(sound_truth::levels(), levels_);
}

void TestThrowingHost::cleanup()
{
    fake_sal::state().onCall = [](const std::string &) {};
    stylesheetThrows() = nullptr;
    ReleaseModuleInterfaceInstance();
}

void TestThrowingHost::checkAsBefore(const driven_runs::Outcome &outcome, const std::string &what)
{
    QVERIFY2(outcome.code.has_value(), what.c_str());
    QVERIFY2(!outcome.hasSlotThrown, what.c_str());
    QVERIFY2(!outcome.isStuck, what.c_str());
    const std::string left = driven_runs::leftovers(threads_);
    QVERIFY2(left.empty(), (left + what).c_str());
    QCOMPARE(devices_.sound.openedCount.load(), devices_.sound.closedCount.load());
}

void TestThrowingHost::aCallThatThrowsEndsTheRun_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("playback") << int(Kind::playback);
    QTest::newRow("microphone") << int(Kind::microphone);
}

void TestThrowingHost::aCallThatThrowsEndsTheRun()
{
    QFETCH(const int, kind);
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    const auto run = [&](ScriptedContext &context) {
        context.notesServices = true;
        return driven_runs::Driver{Kind(kind)}.run(*module, context);
    };
    ScriptedContext all(module->componentManager()->componentAt(0));
    QCOMPARE(run(all).code.value_or(99), 0U);
    const std::size_t count = all.calls.size();
    const std::size_t stride = qEnvironmentVariableIsSet("EVERY_CALL") ? 1 : std::max<std::size_t>(1, count / 6);
    std::size_t runs = 0;
    for (std::size_t call = 0; call < count; call += stride, ++runs) {
        module->componentManager()->refresh(); // the instructions are asked for anew
        ScriptedContext context(module->componentManager()->componentAt(0));
        context.throwingCall = call;
        context.fail = throws.at(runs % throws.size());
        const driven_runs::Outcome outcome = run(context);
        const std::string what = std::to_string(call) + ' ' + all.calls.at(call);
        checkAsBefore(outcome, what);
        if (QTest::currentTestFailed())
            return;
        if (outcome.callCount > call) { // the windows ask more often in some runs than in others
            const std::string thrown = what + ", in this run " + context.calls.at(call) + ": code ";
            QVERIFY2(outcome.code == 4U, (thrown + std::to_string(outcome.code.value_or(99))).c_str());
        }
    }
    QCOMPARE(sound_truth::levels(), levels_);
    qInfo("%zu calls, %zu of them thrown at", count, runs);
}

void TestThrowingHost::anEventSourceThatFailsOnceIsNoPass_data()
{
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("nothing else happens") << false;
    QTest::newRow("a click that ends it waits already") << true;
}

// Afterwards the host knows of no event.
void TestThrowingHost::anEventSourceThatFailsOnceIsNoPass()
{
    QFETCH(const bool, isClicked);
    struct FailingOnce final : EventSource {
        std::uint32_t pendingEvents() override
        {
            if (std::exchange(fails, false))
                throwError();
            return 0;
        }
        bool fails = false;
    } events;
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, &events);
    QTimer::singleShot(0, &dialog, [&] {
        events.fails = true;
        if (isClicked)
            QMetaObject::invokeMethod(&dialog, &InteractionDialog::Finish, Qt::QueuedConnection);
        dialog.CheckSystemEvent();
    });
    QCOMPARE(dialog.exec(), dialog_result::closed);
    QVERIFY(dialog.isAborted());
}

void TestThrowingHost::aWatcherThatThrowsStopsTheDialog_data() { aCallThatThrowsEndsTheRun_data(); }

void TestThrowingHost::aWatcherThatThrowsStopsTheDialog()
{
    QFETCH(const int, kind);
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    ScriptedContext context(module->componentManager()->componentAt(0));
    context.throwsAt = "wants stop";
    driven_runs::Driver driver{Kind(kind)};
    driver.waits = true;
    const driven_runs::Outcome outcome = driver.run(*module, context);
    checkAsBefore(outcome, "watcher");
    QCOMPARE(outcome.code.value_or(99), 4U);
    QCOMPARE(sound_truth::levels(), levels_);
}

void TestThrowingHost::aWatcherThatFailsOnceIsNoPass_data() { aCallThatThrowsEndsTheRun_data(); }

void TestThrowingHost::aWatcherThatFailsOnceIsNoPass()
{
    QFETCH(const int, kind);
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    ScriptedContext context(module->componentManager()->componentAt(0));
    context.throwsAt = "wants stop";
    context.fail = [&context] {
        context.throwsAt.clear(); // from now on it answers that the test may go on
        throwError();
    };
    driven_runs::Driver driver{Kind(kind)};
    driver.waits = true;
    const driven_runs::Outcome outcome = driver.run(*module, context);
    checkAsBefore(outcome, "watcher, once");
    QCOMPARE(outcome.code.value_or(99), 4U);
}

void TestThrowingHost::aPlatformServiceThatThrowsIsAbsent_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<bool>("isStyle");
    QTest::addColumn<int>("thrown");
    constexpr std::array<const char *, 3> kinds{"an error", "no memory", "a number"};
    const bool isThorough = qEnvironmentVariableIsSet("EVERY_CALL");
    for (std::size_t index = 0; index < services.size(); ++index) {
        const ServiceRow &row = services.at(index);
        for (std::size_t kind = 0; kind < throws.size(); ++kind) {
            if (isThorough || kind == index % throws.size())
                QTest::addRow("%s, %s", row.service, kinds.at(kind))
                    << QString::fromLatin1(row.service) << row.isStyle << int(kind);
        }
    }
}

void TestThrowingHost::aPlatformServiceThatThrowsIsAbsent()
{
    QFETCH(const QString, service);
    QFETCH(const bool, isStyle);
    QFETCH(const int, thrown);
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    const Throw failure = throws.at(static_cast<std::size_t>(thrown));
    int asked = 0;
    if (isStyle)
        stylesheetThrows() = failure;
    fake_sal::state().onCall = [&](const std::string &called) {
        if (called != service.toStdString())
            return;
        ++asked;
        failure();
    };
    ScriptedContext context(module->componentManager()->componentAt(0));
    const driven_runs::Outcome outcome = driven_runs::Driver(Kind::playback).run(*module, context);
    checkAsBefore(outcome, service.toStdString());
    // Without memory the dialog, or a digit, need not come about. Nobody has heard anything then.
    const bool isNoMemory = failure == &throwNoMemory;
    QVERIFY(outcome.code == 0U || (isNoMemory && outcome.code == 4U));
    QVERIFY(isStyle || asked > 0);
    QCOMPARE(sound_truth::levels(), levels_);
}

void TestThrowingHost::aRefreshLetsLackOfMemoryOutOnly()
{
    SystemComponentManager *manager = GetModuleInterfaceInstance()->componentManager();
    for (const std::string service : {"cim", "number handler"}) {
        for (const Throw failure : throws) {
            fake_sal::state().onCall = [&](const std::string &called) {
                if (called == service)
                    failure();
            };
            bool isBadAlloc = false;
            try {
                manager->refresh();
            } catch (const std::bad_alloc &) {
                isBadAlloc = true;
            } catch (...) {
                QFAIL(service.c_str());
            }
            QCOMPARE(isBadAlloc, failure == &throwNoMemory);
            QCOMPARE(devices_.sound.openedCount.load(), devices_.sound.closedCount.load());
            QCOMPARE(manager->componentCount(), std::uint64_t(isBadAlloc ? 0 : 1));
            if (isBadAlloc)
                continue;
            const SystemComponentInfo info = manager->componentAt(0)->info();
            QCOMPARE(info.properties.size(), std::size_t(4)); // no version of a driver
            QCOMPARE(info.properties.at(2).second, std::string("48000"));
        }
    }
}

// The first question already throws.
void TestThrowingHost::nothingIsToldToAHostWithoutServices()
{
    ModuleInterface *module = GetModuleInterfaceInstance();
    for (std::uint32_t index = 0; index < 2; ++index) {
        ScriptedContext context(nullptr);
        context.notesServices = true;
        context.throwingCall = 0;
        QCOMPARE(module->diagnosticAt(0)->testAt(index)->run(&context), 4U);
        QCOMPARE(context.calls.size(), std::size_t(1));
    }
}

QTEST_MAIN(TestThrowingHost)
#include "tst_throwing_host.moc"

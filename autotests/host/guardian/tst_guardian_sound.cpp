// SPDX-License-Identifier: Apache-2.0
// Real hosts that hold the volumes of a real sound server, and the ways in which they end. The server's own tool tells what the
// volumes are.
#include "autotests/host/guardian/guarded_host_linux.h"
#include "autotests/support/pulse_truth_linux.h"
#include "host/guardian/guardian_client.h"
#include "host/guardian/note_file.h"
#include "host/guardian/put_back.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <chrono>
#include <csignal>
#include <memory>

using namespace std::chrono_literals;
using host::GuardianClient;
using host::NoteFile;
using pulse_truth::Devices;

namespace {

constexpr unsigned full = 65536;
const QString sinkKind = QStringLiteral("sink");
const QString sourceKind = QStringLiteral("source");
const QString holding = QStringLiteral("holding");
const QString nothingToDo = QStringLiteral("put back:; error:");

// The promise for a host that was killed.
constexpr std::chrono::milliseconds restoreBound = 2s;
constexpr std::chrono::milliseconds waitBound = 5 * restoreBound;

const Devices before{{"speakers", {{16384, 32768}, false}}, // out of balance
                     {"headset", {{0, 0}, true}},
                     {"microphone", {{91750, 91750}, false}}}; // 140 %

const Devices raised{
    {"speakers", {{full, full}, false}}, {"headset", {{full, full}, false}}, {"microphone", {{full, full}, false}}};

Devices endpoints()
{
    Devices devices = pulse_truth::devices();
    std::erase_if(devices, [](const auto &entry) { return entry.first.ends_with(".monitor"); });
    return devices;
}

void addSink(const char *name, const char *description)
{
    pulse_truth::run({QStringLiteral("load-module"), QStringLiteral("module-null-sink"),
                      QStringLiteral("sink_name=%1").arg(QLatin1String(name)),
                      QStringLiteral("sink_properties=device.description=%1").arg(QLatin1String(description))});
}

void setAsBefore(const QString &kind, const char *name)
{
    pulse_truth::set(kind, QLatin1String(name), before.at(name).volumes, before.at(name).muted);
}

} // namespace

class TestGuardianSound : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void namesWhatWillBeRaised();
    void restoresWithinTwoSecondsAfter_data();
    void restoresWithinTwoSecondsAfter();
    void isNotEndedByAnInterrupt();
    void restoresOnItsOwnTermination();
    void putsBackNothingAfterAnUndisturbedRun();
    void completesTheRestoreThatAnAddedEndpointStopped();
    void remembersAVanishedEndpointUntilItComesBack();
    void servesTheNextStartAfterAPowerCut();
    void servesTheNextStartWithoutEndpointsThatAreGone();
    void forgetsTheOldestOfManyVanishedEndpoints();
    void leavesWhatWasSetSinceAPowerCut();
    void putsBackHalfARaiseButNothingLouder();
    void leavesTheEndpointsOfAnotherServer();
    void startsOnlyAfterPuttingBackLeftovers();
    void replacesALostGuardian();
    void refusesASecondHost();
    void keepsALiveGuardiansNoteFromTheNextStart();
    void triesAgainUntilAFrozenServerAnswers();
    void leavesTheNoteWhenTheServerStaysFrozen();
    void doesNotStartOnAFrozenServer();
    void doesNotStartWithoutServer();

private:
    void powerCut();
    bool isAtRest() const { return !GuardedHost::isGuarded(state()) && !QFile::exists(note().path()); }
    QString state() const { return folder_->path(); }
    NoteFile note() const { return NoteFile(state()); }

    std::unique_ptr<QTemporaryDir> folder_;
};

void TestGuardianSound::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    addSink("speakers", "Speakers");
    addSink("headset", "Headset");
    pulse_truth::run({QStringLiteral("load-module"), QStringLiteral("module-null-source"),
                      QStringLiteral("source_name=microphone"), QStringLiteral("description=Microphone")});
    setAsBefore(sinkKind, "speakers");
    setAsBefore(sinkKind, "headset");
    setAsBefore(sourceKind, "microphone");
    QCOMPARE(endpoints(), before);
}

void TestGuardianSound::cleanup()
{
    QTRY_VERIFY_WITH_TIMEOUT(!GuardedHost::isGuarded(state()), 60'000);
    for (const auto &entry : endpoints())
        pulse_truth::remove(QString::fromStdString(entry.first));
}

void TestGuardianSound::namesWhatWillBeRaised()
{
    QCOMPARE(host::endpointsThatWillBeRaised(),
             QStringList({QStringLiteral("Speakers"), QStringLiteral("Headset"), QStringLiteral("Microphone")}));
}

void TestGuardianSound::restoresWithinTwoSecondsAfter_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::addColumn<bool>("isForTheGroup");

    QTest::newRow("kill") << SIGKILL << false;
    QTest::newRow("kill of the process group") << SIGKILL << true;
    QTest::newRow("crash") << SIGSEGV << false;
    QTest::newRow("Ctrl-C") << SIGINT << true;
    QTest::newRow("closed terminal") << SIGHUP << true;
}

void TestGuardianSound::restoresWithinTwoSecondsAfter()
{
    QFETCH(const int, signalNumber);
    QFETCH(const bool, isForTheGroup);
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    QCOMPARE(endpoints(), raised);
    QVERIFY(QFile::exists(note().path()));
    QElapsedTimer timer;
    timer.start();
    isForTheGroup ? host.killGroup(signalNumber) : host.kill(signalNumber);
    QTRY_COMPARE_WITH_TIMEOUT(endpoints(), before, static_cast<int>(waitBound.count()));
    QVERIFY2(timer.elapsed() < restoreBound.count(), qPrintable(QString::number(timer.elapsed())));
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 10'000);
    QVERIFY(!host.isRunning());
    QCOMPARE(endpoints(), before);
}

void TestGuardianSound::isNotEndedByAnInterrupt()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    host.killGuardian(SIGINT);
    host.killGuardian(SIGQUIT);
    host.kill(SIGKILL);
    QTRY_COMPARE_WITH_TIMEOUT(endpoints(), before, static_cast<int>(waitBound.count()));
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 10'000);
}

void TestGuardianSound::restoresOnItsOwnTermination()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    host.killGuardian(SIGTERM);
    QTRY_COMPARE_WITH_TIMEOUT(endpoints(), before, static_cast<int>(waitBound.count()));
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 10'000);
    QVERIFY(host.isRunning());
}

void TestGuardianSound::putsBackNothingAfterAnUndisturbedRun()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    QCOMPARE(host.finish(), nothingToDo);
    QCOMPARE(endpoints(), before);
    QVERIFY(isAtRest());
}

void TestGuardianSound::completesTheRestoreThatAnAddedEndpointStopped()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    pulse_truth::addSink(QStringLiteral("just_plugged_in"));
    pulse_truth::set(sinkKind, QStringLiteral("just_plugged_in"), {10000, 10000}, true);
    QCOMPARE(host.finish(), QStringLiteral("put back: Microphone; error:")); // it comes after the new sink
    Devices expected = before;
    expected["just_plugged_in"] = {{10000, 10000}, true};
    QCOMPARE(endpoints(), expected);
    QVERIFY(isAtRest());
}

// The system gives it the volume that it went with.
void TestGuardianSound::remembersAVanishedEndpointUntilItComesBack()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    pulse_truth::remove(QStringLiteral("headset"));
    QCOMPARE(host.finish(), nothingToDo);
    Devices expected = before;
    expected.erase("headset");
    QCOMPARE(endpoints(), expected);
    QVERIFY(!GuardedHost::isGuarded(state()));

    GuardianClient client(state());
    QVERIFY2(client.start(), qPrintable(client.errorText())); // a whole run without it
    QCOMPARE(client.finish(), QStringList());
    QCOMPARE(client.restoreLeftovers(), QStringList());
    addSink("headset", "Headset");
    pulse_truth::set(sinkKind, QStringLiteral("headset"), raised.at("headset").volumes, raised.at("headset").muted);
    QCOMPARE(client.restoreLeftovers(), QStringList{QStringLiteral("Headset")});
    QCOMPARE(endpoints(), before);
    QVERIFY(isAtRest());
}

// Host and guardian are gone, the volumes are still raised.
void TestGuardianSound::powerCut()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    host.killGuardian(SIGKILL);
    host.kill(SIGKILL);
    QTRY_VERIFY_WITH_TIMEOUT(!GuardedHost::isGuarded(state()), 10'000);
    QCOMPARE(endpoints(), raised);
    QVERIFY(QFile::exists(note().path()));
}

void TestGuardianSound::servesTheNextStartAfterAPowerCut()
{
    powerCut();
    GuardianClient client(state());
    QCOMPARE(client.restoreLeftovers().size(), 3);
    QCOMPARE(client.errorText(), QString());
    QCOMPARE(endpoints(), before);
    QVERIFY(isAtRest());
    pulse_truth::set(sinkKind, QStringLiteral("speakers"), {1000, 1000}, false);
    QCOMPARE(client.restoreLeftovers(), QStringList()); // once is enough
    QCOMPARE(endpoints().at("speakers").volumes.front(), 1000U);
}

void TestGuardianSound::servesTheNextStartWithoutEndpointsThatAreGone()
{
    powerCut();
    pulse_truth::remove(QStringLiteral("speakers"));
    pulse_truth::addSink(QStringLiteral("just_plugged_in"));
    GuardianClient client(state());
    QCOMPARE(client.restoreLeftovers(), QStringList({QStringLiteral("Headset"), QStringLiteral("Microphone")}));
    Devices expected = before;
    expected.erase("speakers");
    expected["just_plugged_in"] = {{full, full}, false};
    QCOMPARE(endpoints(), expected);
    const auto waiting = note().read();
    QVERIFY(waiting);
    QCOMPARE(waiting->volumes.size(), std::size_t{1});
    QCOMPARE(waiting->volumes.front().id, std::u16string(u"speakers"));
}

// A note has a limit of its size.
void TestGuardianSound::forgetsTheOldestOfManyVanishedEndpoints()
{
    ostra::audio::EndpointVolumes vanished;
    for (int number = 0; number < 70; ++number)
        vanished.push_back({0.5F, false, QStringLiteral("gone%1").arg(number).toStdU16String(), {32768, 32768}});
    QVERIFY(note().write({vanished, {}}));
    GuardianClient client(state());
    QCOMPARE(client.restoreLeftovers(), QStringList());
    const auto waiting = note().read();
    QVERIFY(waiting);
    QCOMPARE(waiting->volumes.size(), std::size_t{64});
    QCOMPARE(waiting->volumes.front().id, std::u16string(u"gone6"));
    QCOMPARE(waiting->volumes.back().id, std::u16string(u"gone69"));
    QCOMPARE(endpoints(), before);
}

void TestGuardianSound::leavesWhatWasSetSinceAPowerCut()
{
    powerCut();
    pulse_truth::set(sinkKind, QStringLiteral("speakers"), {13107, 13107}, false); // 20 %
    pulse_truth::set(sourceKind, QStringLiteral("microphone"), {full, full}, true);
    Devices expected = before;
    expected["speakers"] = {{13107, 13107}, false};
    expected["microphone"] = {{full, full}, true};
    GuardianClient client(state());
    QCOMPARE(client.restoreLeftovers(), QStringList{QStringLiteral("Headset")});
    QCOMPARE(client.leftAlone(), QStringList({QStringLiteral("Speakers"), QStringLiteral("Microphone")}));
    QCOMPARE(client.errorText(), QString());
    QCOMPARE(endpoints(), expected);
    QVERIFY(isAtRest());
    QVERIFY2(client.start(), qPrintable(client.errorText()));
    QCOMPARE(client.finish(), QStringList());
    QCOMPARE(endpoints(), expected);
}

// Killed between the two steps of raising one, or made louder than a run makes it.
void TestGuardianSound::putsBackHalfARaiseButNothingLouder()
{
    powerCut();
    pulse_truth::set(sinkKind, QStringLiteral("headset"), {full, full}, true);
    pulse_truth::run({QStringLiteral("set-sink-volume"), QStringLiteral("speakers"), QStringLiteral("140%")});
    GuardianClient client(state());
    QCOMPARE(client.restoreLeftovers(), QStringList({QStringLiteral("Headset"), QStringLiteral("Microphone")}));
    QCOMPARE(client.leftAlone(), QStringList{QStringLiteral("Speakers")});
    QCOMPARE(endpoints().at("headset"), before.at("headset"));
    QCOMPARE(endpoints().at("microphone"), before.at("microphone"));
}

void TestGuardianSound::leavesTheEndpointsOfAnotherServer()
{
    powerCut();
    const auto own = note().read();
    QVERIFY(own && !own->server.isEmpty());
    QVERIFY(note().write({own->volumes, own->server + QStringLiteral("2")}));
    GuardianClient client(state());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("belongs to another sound server")));
    QCOMPARE(client.restoreLeftovers(), QStringList());
    QCOMPARE(client.errorText(), QString());
    QCOMPARE(endpoints(), raised);
    QVERIFY(!QFile::exists(note().path()));
    QVERIFY(note().isThere());
}

// Otherwise the raised volumes would be noted as the user's own.
void TestGuardianSound::startsOnlyAfterPuttingBackLeftovers()
{
    powerCut();
    GuardianClient client(state());
    QVERIFY2(client.start(), qPrintable(client.errorText()));
    QCOMPARE(endpoints(), before);
    QCOMPARE(client.finish().size(), 3);
    QVERIFY(isAtRest());
}

void TestGuardianSound::replacesALostGuardian()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    host.killGuardian(SIGKILL);
    pulse_truth::addSink(QStringLiteral("just_plugged_in"));
    QCOMPARE(host.finish(), QStringLiteral("put back: Microphone; error:"));
    Devices expected = before;
    expected["just_plugged_in"] = {{full, full}, false};
    QCOMPARE(endpoints(), expected);
    QVERIFY(isAtRest());
}

void TestGuardianSound::refusesASecondHost()
{
    GuardedHost first(state());
    QCOMPARE(first.start(), holding);
    GuardedHost second(state());
    const QString answer = second.start();
    QVERIFY2(answer.startsWith(QStringLiteral("refused: Another run is holding the volumes (guardian process ")),
             qPrintable(answer));
    QCOMPARE(endpoints(), raised);
    QCOMPARE(first.finish(), nothingToDo);
    QCOMPARE(endpoints(), before);
    GuardedHost third(state());
    QCOMPARE(third.start(), holding);
    QCOMPARE(third.finish(), nothingToDo);
}

void TestGuardianSound::keepsALiveGuardiansNoteFromTheNextStart()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    GuardianClient client(state());
    QCOMPARE(client.restoreLeftovers(), QStringList());
    QVERIFY2(client.errorText().startsWith(QStringLiteral("Another run is holding the volumes (guardian process ")),
             qPrintable(client.errorText()));
    QCOMPARE(endpoints(), raised);
    QVERIFY(QFile::exists(note().path()));
    QCOMPARE(host.finish(), nothingToDo);
}

void TestGuardianSound::triesAgainUntilAFrozenServerAnswers()
{
    GuardedHost host(state());
    QCOMPARE(host.start(), holding);
    {
        const pulse_truth::FrozenServer frozen;
        host.kill(SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(host.log().contains("trying again"), static_cast<int>(5 * ostra::audio::passBound.count()));
    }
    QTRY_COMPARE_WITH_TIMEOUT(endpoints(), before, static_cast<int>(waitBound.count()));
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 10'000);
}

void TestGuardianSound::leavesTheNoteWhenTheServerStaysFrozen()
{
    GuardedHost host(state(), GuardedHost::Log::toNobody); // what cannot be told must not end it
    QCOMPARE(host.start(), holding);
    GuardianClient client(state());
    {
        const pulse_truth::FrozenServer frozen;
        QElapsedTimer timer;
        timer.start();
        host.kill(SIGKILL);
        const auto bound = 5 * (host::guardianPatience.bound + 4 * ostra::audio::passBound);
        QTRY_VERIFY_WITH_TIMEOUT(!GuardedHost::isGuarded(state()), static_cast<int>(bound.count()));
        QVERIFY2(timer.elapsed() > 2 * ostra::audio::passBound.count(), "one try only");
        QVERIFY(QFile::exists(note().path()));
        timer.restart();
        QCOMPARE(client.restoreLeftovers(), QStringList());
        QVERIFY(timer.elapsed() < 5 * 2 * ostra::audio::passBound.count());
        QCOMPARE(client.errorText(), QStringLiteral("The volumes of an earlier run could not be put back yet."));
    }
    QCOMPARE(endpoints(), raised);
    QCOMPARE(client.restoreLeftovers().size(), 3);
    QCOMPARE(endpoints(), before);
}

void TestGuardianSound::doesNotStartOnAFrozenServer()
{
    const pulse_truth::FrozenServer frozen;
    GuardianClient client(state());
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!client.start());
    QVERIFY2(timer.elapsed() < 5 * ostra::audio::passBound.count(), qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(client.errorText(), QStringLiteral("The sound system does not tell its volumes."));
    QVERIFY(isAtRest());
}

void TestGuardianSound::doesNotStartWithoutServer()
{
    const pulse_truth::OtherServer nowhere("unix:nowhere");
    GuardianClient client(state());
    QVERIFY(!client.start());
    QCOMPARE(client.errorText(), QStringLiteral("The sound system does not tell its volumes."));
    QCOMPARE(client.finish(), QStringList());
    QCOMPARE(host::endpointsThatWillBeRaised(), QStringList());
}

QTEST_GUILESS_MAIN(TestGuardianSound)
#include "tst_guardian_sound.moc"

// SPDX-License-Identifier: Apache-2.0
// The host changes its mind at the k-th time that it is asked whether a test has to end: for every k with CLOSE_EVERY=1, else
// for a dozen of them.
#include "autotests/support/polling_host.h"
#include "autotests/tests/closing/module_stage.h"
#include "autotests/tests/closing/test_user.h"
#include "contract/message_keys.h"
#include "utils/pace.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace ostra;

namespace {

constexpr int closeLimit = 2000; // ms of the real clock
constexpr int sampleCount = 12;
// The same as designed, by a timer beside those of the dialogs: a busy machine makes all of them late.
constexpr std::chrono::milliseconds tick{200};
constexpr int tickLimit = 10 + 2;

enum class Change { event, stop };

struct Course {
    std::uint32_t code = 99;
    int pollCount = 0;
    bool wasRaised = false;
    bool wasTold = false;   ///< of the event
    bool ranDialog = false; ///< at all
    int dialogResult = -1;
    bool wasDialogOpen = false; ///< when it was raised
    qint64 took = 0;            ///< ms from then until exec returned
    int ticksUntilEnd = 0;      ///< the same in ticks
    bool hasCancelKey = false;
    std::size_t messageCount = 0;
};

// At poll number `raisedAt`, from 1; 0 for never.
Course follow(ModuleStage &stage, Kind kind, Change change, int raisedAt)
{
    Course course;
    course.code = stage.run(kind, [&](Test &test, SystemComponent &device) {
        PollingHost host(&device);
        const TestUser user(host, stage.devices.sound);
        QElapsedTimer sinceRaised;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
            if (course.wasDialogOpen && host.showing == PollingHost::Showing::dialog)
                ++course.ticksUntilEnd;
        });
        clock.start(utils::paced(tick));
        host.onPoll = [&](int poll) {
            if (poll != raisedAt)
                return;
            sinceRaised.start();
            course.wasRaised = true;
            course.wasDialogOpen = host.showing == PollingHost::Showing::dialog;
            if (change == Change::event)
                host.flags = 0x100;
            else
                host.wantsStop = true;
        };
        const std::uint32_t code = test.run(&host);
        course.pollCount = host.pollCount;
        course.wasTold = host.wasToldOfEvent;
        course.ranDialog = host.sinceDialogEnded.isValid();
        course.dialogResult = host.dialogResult;
        if (course.wasDialogOpen)
            course.took = sinceRaised.elapsed() - host.sinceDialogEnded.elapsed();
        const auto &keys = host.messageKeys;
        course.hasCancelKey = std::find(keys.begin(), keys.end(), keys::testCanceledByEvent) != keys.end();
        course.messageCount = keys.size();
        return code;
    });
    return course;
}

std::uint32_t expectedCode(Change change, const Course &course)
{
    if (change == Change::event)
        return course.wasTold ? 4 : 0;
    // Where the user was done before the host was asked, the user's answer counts.
    return course.dialogResult == 1 ? 0 : 4;
}

} // namespace
Q_DECLARE_METATYPE(Kind)
Q_DECLARE_METATYPE(Change)

class TestCloseSweep : public QObject {
    Q_OBJECT

private slots:
    void everyMomentEndsTheTest_data();
    void everyMomentEndsTheTest();
};

void TestCloseSweep::everyMomentEndsTheTest_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Change>("change");
    QTest::newRow("playback, event") << Kind::playback << Change::event;
    QTest::newRow("playback, stop") << Kind::playback << Change::stop;
    QTest::newRow("microphone, event") << Kind::microphone << Change::event;
    QTest::newRow("microphone, stop") << Kind::microphone << Change::stop;
}

void TestCloseSweep::everyMomentEndsTheTest()
{
    QFETCH(const Kind, kind);
    QFETCH(const Change, change);
    ModuleStage stage;
    const Course undisturbed = follow(stage, kind, change, 0);
    QCOMPARE(undisturbed.code, 0U);
    stage.begin();
    const bool takesEvery = qEnvironmentVariableIntValue("CLOSE_EVERY") != 0;
    const int last = undisturbed.pollCount;
    const int step = takesEvery ? 1 : std::max(1, last / sampleCount);
    int raisedCount = 0;
    qint64 longest = 0;
    int mostTicks = 0;
    bool wasRaised = true;
    // Beyond the last one of that run too: no two runs are asked equally often.
    for (int poll = 1; poll <= last || (takesEvery && wasRaised); poll += step) {
        const Course course = follow(stage, kind, change, poll);
        wasRaised = course.wasRaised;
        const QByteArray what = "poll " + QByteArray::number(poll) + ": code " + QByteArray::number(course.code) + ", result " +
                                QByteArray::number(course.dialogResult) + ", " + QByteArray::number(course.took) + " ms, " +
                                QByteArray::number(course.ticksUntilEnd) + " ticks";
        QVERIFY2(course.code == (wasRaised ? expectedCode(change, course) : 0U), what.constData());
        QVERIFY2(course.hasCancelKey == (change == Change::event && course.wasTold), what.constData());
        QVERIFY2(course.messageCount == (course.hasCancelKey ? 1U : 0U), what.constData());
        QVERIFY2(course.took <= closeLimit && course.ticksUntilEnd <= tickLimit, what.constData());
        const QString left = stage.leftovers();
        QVERIFY2(left.isEmpty(), (what + ": " + left.toUtf8()).constData());
        raisedCount += wasRaised ? 1 : 0;
        longest = std::max(longest, course.took);
        mostTicks = std::max(mostTicks, course.ticksUntilEnd);
    }
    qInfo("%d polls in an undisturbed run; raised at %d of them; the longest end took %lld ms and %d ticks", last, raisedCount,
          longest, mostTicks);
    QVERIFY(raisedCount >= std::min(sampleCount, last) / 2);
}

QTEST_MAIN(TestCloseSweep)
#include "tst_close_sweep.moc"

// SPDX-License-Identifier: Apache-2.0
// Ends both tests at random moments in every way that there is. CLOSE_COUNT says how often, CLOSE_SEED repeats a series.
#include "autotests/support/polling_host.h"
#include "autotests/tests/closing/module_stage.h"
#include "autotests/tests/closing/test_user.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <random>

using namespace ostra;

namespace {

constexpr int closeLimit = 2000; // ms of the real clock; the longest designed wait lasts 15 ms here

struct Plan {
    Kind kind;
    End end;
    std::chrono::milliseconds moment;
};

struct Course {
    std::uint32_t code = 99;
    bool wasEnded = false;
    PollingHost::Showing shown = PollingHost::Showing::nothing; ///< when it was ended
    bool wasUserDone = false;                                   ///< by then: the dialog had a result of its own
    qint64 took = 0;                                            ///< ms from the end to the result
    qint64 length = 0;                                          ///< ms of the whole run
};

const char *nameOf(End end)
{
    static constexpr const char *names[] = {"close button", "escape",     "page button",    "event",
                                            "watcher",      "host close", "window manager", "quit"};
    return names[static_cast<std::size_t>(end)];
}

std::uint32_t expectedCode(const Plan &plan, const Course &course)
{
    // What happens while the question is asked no longer changes its answer.
    if (!course.wasEnded || course.shown == PollingHost::Showing::question)
        return 0;
    if (course.wasUserDone) // only the microphone test reads the host's events once more
        return plan.kind == Kind::microphone && plan.end == End::event ? 4 : 0;
    if (plan.kind == Kind::microphone)
        return plan.end == End::hostClose ? 0 : 4;
    return plan.end == End::pageButton ? 1 : 4;
}

Course follow(ModuleStage &stage, const Plan &plan)
{
    Course course;
    course.code = stage.run(plan.kind, [&](Test &test, SystemComponent &device) {
        PollingHost host(&device);
        TestUser user(host, stage.devices.sound);
        QElapsedTimer sinceEnd;
        QElapsedTimer sinceStart;
        sinceStart.start();
        QTimer ender;
        ender.setSingleShot(true);
        ender.setTimerType(Qt::PreciseTimer);
        QObject::connect(&ender, &QTimer::timeout, &ender, [&] {
            course.shown = host.showing;
            course.wasUserDone = host.showing == PollingHost::Showing::dialog && TestUser::openDialog() == nullptr;
            user.stop();
            sinceEnd.start();
            course.wasEnded = bringToAnEnd(plan.end, host);
            if (!course.wasEnded)
                user.goOn();
        });
        if (plan.moment.count() >= 0)
            ender.start(plan.moment);
        const std::uint32_t code = test.run(&host);
        course.took = course.wasEnded ? sinceEnd.elapsed() : 0;
        course.length = sinceStart.elapsed();
        return code;
    });
    return course;
}

int numberFrom(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}

} // namespace

class TestRandomCloses : public QObject {
    Q_OBJECT

private slots:
    void leaveNothingBehind();
};

void TestRandomCloses::leaveNothingBehind()
{
    ModuleStage stage;
    QMap<Kind, qint64> lengths;
    // Undisturbed, twice: the first runs start what the system keeps for the process, and take longer.
    for (const Kind kind : {Kind::playback, Kind::microphone, Kind::playback, Kind::microphone}) {
        const Course course = follow(stage, {kind, End::escape, std::chrono::milliseconds(-1)});
        QCOMPARE(course.code, 0U);
        lengths[kind] = course.length;
    }
    stage.begin();
    QCOMPARE(stage.leftovers(), QString());

    const int count = numberFrom("CLOSE_COUNT", 200);
    const int seed = numberFrom("CLOSE_SEED", static_cast<int>(std::random_device()() >> 1));
    qInfo("CLOSE_SEED=%d, %d closes, undisturbed runs of %lld and %lld ms", seed, count, lengths[Kind::playback],
          lengths[Kind::microphone]);
    std::mt19937 generator(static_cast<std::mt19937::result_type>(seed));
    QMap<QString, int> ends;
    qint64 longest = 0;
    for (int turn = 0; turn < count; ++turn) {
        const Kind kind = generator() % 4 == 0 ? Kind::playback : Kind::microphone;
        const auto end = static_cast<End>(generator() % 8);
        const Plan plan{kind, end, std::chrono::milliseconds(generator() % static_cast<unsigned>(lengths[kind]))};
        const Course course = follow(stage, plan);
        const QByteArray what = QByteArray::number(turn) + ": " + nameOf(end) + " after " +
                                QByteArray::number(qint64{plan.moment.count()}) + " ms of " +
                                (kind == Kind::playback ? "playback" : "microphone") + ", shown " +
                                QByteArray::number(static_cast<int>(course.shown)) + ": code " +
                                QByteArray::number(course.code) + " after " + QByteArray::number(course.took) + " ms";
        QVERIFY2(course.code == expectedCode(plan, course), what.constData());
        QVERIFY2(course.took <= closeLimit, what.constData());
        const QString left = stage.leftovers();
        QVERIFY2(left.isEmpty(), (what + ": " + left.toUtf8()).constData());
        longest = std::max(longest, course.took);
        if (!course.wasEnded) // a run that nothing disturbed: a busy machine may have made the first ones long
            lengths[kind] = std::min(lengths[kind], std::max<qint64>(course.length, 1));
        ++ends[course.wasEnded ? QLatin1String(nameOf(end)) : QStringLiteral("too late")];
    }
    for (auto end = ends.cbegin(); end != ends.cend(); ++end)
        qInfo("%s: %d", qPrintable(end.key()), end.value());
    qInfo("the longest end took %lld ms; %d callbacks", longest, LiveDevices::callCount());
    QVERIFY(ends.value(QStringLiteral("too late")) < count / 2);
}

QTEST_MAIN(TestRandomCloses)
#include "tst_random_closes.moc"

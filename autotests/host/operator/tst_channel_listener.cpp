// SPDX-License-Identifier: Apache-2.0
#include "host/operator/channel_listener.h"

#include "autotests/host/operator/listener_script.h"
#include "host/operator/heard_log.h"

#include <QCoreApplication>
#include <QFile>
#include <QLockFile>
#include <QObject>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <memory>

using host::ChannelCheck;
using host::ChannelListener;
using host::ChannelMapping;
using std::chrono::milliseconds;

namespace {

constexpr int limitMs = 60'000;

const host::ChannelListening listening{QStringLiteral("Speakers"), QStringLiteral("Monitor of Speakers"),
                                       QStringLiteral("/clips"), QStringLiteral("de_DE")};

QString beside(const char *name) { return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name); }

QString contentOf(const char *name)
{
    QFile file(beside(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList speakerArguments() { return contentOf("speaker_arguments").split(u'\n'); }

/// Says what a listener would, whenever the speaker has spoken: its clip's digit on the sides that the test wants.
class Room : public QObject {
public:
    struct Hearing {
        QByteArray levels; ///< of left and right; empty: the digit is not recognised
        double loudestDbfs = -120;
    };

    /// What is heard each time, the last one also of every further time.
    using Hearings = QList<Hearing>;

    Room(const Hearing &left, const Hearing &right, int sourceChannelCount = 2)
        : Room(Hearings{left}, Hearings{right}, sourceChannelCount)
    {}

    Room(const Hearings &left, const Hearings &right, int sourceChannelCount = 2) : hearings_{left, right}
    {
        QFile::remove(beside("speaker_spoke"));
        heardUpToMs_ = host::steadyNowMs();
        script_.say(R"({"event":"ready","steadyMs":)" + QByteArray::number(heardUpToMs_) + R"(,"sourceChannels":)" +
                    QByteArray::number(sourceChannelCount) + '}');
        startTimer(20);
    }

    QStringList sides;
    QList<int> digits;

protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        const QString note = contentOf("speaker_spoke");
        const QStringList spoke = note.split(u' ');
        if (spoke.size() != 2 || note == answered_)
            return;
        answered_ = note;
        const Hearings &hearings = hearings_[spoke[0] == QLatin1String("left") ? 0 : 1];
        const Hearing &hearing = hearings[std::min(sides.count(spoke[0]), hearings.size() - 1)];
        sides.append(spoke[0]);
        const QString clip = speakerArguments().value(3);
        digits.append(clip.mid(clip.lastIndexOf(u'/') + 1, 1).toInt());
        answer(hearing, spoke[1].toLongLong());
    }

private:
    void answer(const Hearing &hearing, qint64 spokeMs)
    {
        if (!hearing.levels.isEmpty())
            script_.say(R"({"event":"digit","digit":)" + QByteArray::number(digits.last()) +
                        R"(,"score":0.9,"margin":0.5,"levelDbfs":-20,"clipped":false,"measured":{"channelDbfs":[)" +
                        hearing.levels + R"(]},"startMs":)" + QByteArray::number(spokeMs) + '}');
        script_.say(R"({"event":"meter","peakDbfs":-4,"rmsDbfs":-20,"channelDbfs":[)" +
                    QByteArray::number(hearing.loudestDbfs) + R"(,-120],"wave":[],"atMs":)" +
                    QByteArray::number(spokeMs + 200) + '}');
        const qint64 atMs = spokeMs + 30'000; // everything has been listened to
        script_.say(R"({"event":"level","levelDbfs":-20,"frames":)" + QByteArray::number((atMs - heardUpToMs_) * 48) +
                    R"(,"atMs":)" + QByteArray::number(atMs) + '}');
        heardUpToMs_ = atMs;
    }

    ListenerScript script_{false};
    Hearings hearings_[2];
    QString answered_;
    qint64 heardUpToMs_ = 0;
};

const Room::Hearing silence{"", -120};
const Room::Hearing onTheLeft{"-20,-90", -20};
const Room::Hearing onTheRight{"-90,-20", -20};
const Room::Hearing onBothSides{"-20,-20", -20};
const Room::Hearing softly{"", -48};

ChannelCheck check(const host::ChannelListening &what = listening)
{
    ChannelListener listener(what);
    QList<ChannelCheck> checks;
    QObject::connect(&listener, &ChannelListener::finished, &listener,
                     [&checks](const ChannelCheck &made) { checks.append(made); });
    listener.start();
    if (!QTest::qWaitFor([&checks] { return !checks.isEmpty(); }, limitMs))
        qFatal("it never ended");
    return checks.constFirst();
}

} // namespace

class TestChannelListener : public QObject {
    Q_OBJECT

private slots:
    void drawsTwoDifferentDigits();
    void speaksEachSideAndMeasuresIt();
    void passesOnWhatTheSourceHears();
    void tellsSilenceFromSoftness_data();
    void tellsSilenceFromSoftness();
    void speaksASilentSideOnceMore_data();
    void speaksASilentSideOnceMore();
    void takesWhatWasHeardAsItIs_data();
    void takesWhatWasHeardAsItIs();
    void endsWhenNothingAnswers_data();
    void endsWhenNothingAnswers();
    void endsWhenTheListenerCannotStart();
    void endsWhenTheDeviceCannotBeOpened();
    void endsWhenTheListenerDies();
};

void TestChannelListener::drawsTwoDifferentDigits()
{
    QSet<int> drawn;
    for (int round = 0; round < 1000; ++round) {
        const auto digits = host::drawnDigits();
        QVERIFY(digits[0] != digits[1]);
        for (const int digit : digits) {
            QVERIFY(digit >= 0 && digit <= 9);
            drawn.insert(digit);
        }
    }
    QCOMPARE(drawn.size(), 10);
}

void TestChannelListener::speaksEachSideAndMeasuresIt()
{
    const Room room({"-20,-90", -20}, {"-88,-21", -21});
    const ChannelCheck made = check();
    QCOMPARE(made.reason, QString());
    QCOMPARE(made.mapping, ChannelMapping::straight);
    QCOMPARE(made.source, listening.source);
    QCOMPARE(made.ofRight->leftDbfs, -88.0);
    QCOMPARE(room.sides, (QStringList{QStringLiteral("left"), QStringLiteral("right")}));
    QVERIFY(room.digits[0] != room.digits[1]);
    QCOMPARE(speakerArguments(), (QStringList{QStringLiteral("--device"), QStringLiteral("Speakers"), QStringLiteral("--play"),
                                              QStringLiteral("/clips/de_DE/%1_de_DE.wav").arg(room.digits[1]),
                                              QStringLiteral("--channel"), QStringLiteral("right")}));
}

void TestChannelListener::passesOnWhatTheSourceHears()
{
    const Room room({"-20,-20", -20}, {"-20,-20", -20}, 1);
    QVERIFY(check().reason.contains(QStringLiteral("one channel only")));
}

void TestChannelListener::tellsSilenceFromSoftness_data()
{
    QTest::addColumn<double>("loudest");
    QTest::addColumn<ChannelMapping>("mapping");
    QTest::newRow("silent") << -120.0 << ChannelMapping::rightSilent;
    QTest::newRow("soft") << -48.0 << ChannelMapping::notMeasurable;
}

void TestChannelListener::tellsSilenceFromSoftness()
{
    QFETCH(const double, loudest);
    QFETCH(const ChannelMapping, mapping);
    const Room room({"-20,-90", -20}, {"", loudest});
    QCOMPARE(check().mapping, mapping);
}

void TestChannelListener::speaksASilentSideOnceMore_data()
{
    QTest::addColumn<Room::Hearings>("left");
    QTest::addColumn<Room::Hearings>("right");
    QTest::addColumn<ChannelMapping>("mapping");
    const auto row = [](const char *name, const Room::Hearings &left, const Room::Hearings &right, ChannelMapping mapping) {
        QTest::newRow(name) << left << right << mapping;
    };
    row("left wakes up", {silence, onTheLeft}, {onTheRight}, ChannelMapping::straight);
    row("right wakes up", {onTheLeft}, {silence, onTheRight}, ChannelMapping::straight);
    row("left wakes up on the other side", {silence, onTheRight}, {onTheLeft}, ChannelMapping::swapped);
    row("left wakes up beside the right one", {silence, onTheRight}, {onTheRight}, ChannelMapping::mixed);
    row("left wakes up on both", {silence, onBothSides}, {onTheRight}, ChannelMapping::mixed);
    row("left wakes up softly", {silence, softly}, {onTheRight}, ChannelMapping::notMeasurable);
    row("left silent twice", {silence, silence, onTheLeft}, {onTheRight}, ChannelMapping::leftSilent);
    row("right silent twice", {onTheLeft}, {silence, silence, onTheRight}, ChannelMapping::rightSilent);
}

void TestChannelListener::speaksASilentSideOnceMore()
{
    QFETCH(const Room::Hearings, left);
    QFETCH(const Room::Hearings, right);
    QFETCH(const ChannelMapping, mapping);
    const Room room(left, right);
    QCOMPARE(check().mapping, mapping);
    QStringList sides{QStringLiteral("left"), QStringLiteral("right")};
    sides.append(sides[left.size() > 1 ? 0 : 1]);
    QCOMPARE(room.sides, sides);
    QCOMPARE(room.digits[2], room.digits[left.size() > 1 ? 0 : 1]);
}

// Nothing but silence is tried again: a better second time would hide the first.
void TestChannelListener::takesWhatWasHeardAsItIs_data()
{
    QTest::addColumn<Room::Hearings>("left");
    QTest::addColumn<Room::Hearings>("right");
    QTest::addColumn<ChannelMapping>("mapping");
    QTest::newRow("swapped") << Room::Hearings{onTheRight, onTheLeft} << Room::Hearings{onTheLeft, onTheRight}
                             << ChannelMapping::swapped;
    QTest::newRow("mixed") << Room::Hearings{onBothSides, onTheLeft} << Room::Hearings{onTheRight} << ChannelMapping::mixed;
    QTest::newRow("soft") << Room::Hearings{softly, onTheLeft} << Room::Hearings{onTheRight} << ChannelMapping::notMeasurable;
    QTest::newRow("nothing") << Room::Hearings{silence, onTheLeft} << Room::Hearings{silence, onTheRight}
                             << ChannelMapping::notMeasurable;
}

void TestChannelListener::takesWhatWasHeardAsItIs()
{
    QFETCH(const Room::Hearings, left);
    QFETCH(const Room::Hearings, right);
    QFETCH(const ChannelMapping, mapping);
    const Room room(left, right);
    QCOMPARE(check().mapping, mapping);
    QCOMPARE(room.sides.size(), 2);
}

void TestChannelListener::endsWhenNothingAnswers_data()
{
    QTest::addColumn<bool>("isListening");
    QTest::addColumn<QString>("device");
    QTest::addColumn<milliseconds>("opening");
    QTest::addColumn<milliseconds>("speech");
    QTest::addColumn<QString>("reason");
    const milliseconds opening = host::ChannelLimits().opening;
    const milliseconds speech = host::ChannelLimits().speech;
    QTest::newRow("listener") << false << "Speakers" << milliseconds(200) << speech << "the source could not be listened to";
    QTest::newRow("device") << true << "Slow" << opening << milliseconds(200) << "the device did not play";
    QTest::newRow("opening") << true << "Frozen" << milliseconds(5000) << speech << "the device could not be opened";
}

void TestChannelListener::endsWhenNothingAnswers()
{
    QFETCH(const bool, isListening);
    QFETCH(const QString, device);
    QFETCH(const milliseconds, opening);
    QFETCH(const milliseconds, speech);
    QFETCH(const QString, reason);
    host::ChannelListening what = listening;
    what.device = device;
    what.limits.opening = opening;
    what.limits.speech = speech;
    const ListenerScript script(isListening);
    const ChannelCheck made = check(what);
    QCOMPARE(made.mapping, ChannelMapping::notMeasurable);
    QCOMPARE(made.reason, reason);
    QVERIFY(!made.left && !made.right);
    QVERIFY(QLockFile(beside("speaker_lock")).tryLock(limitMs)); // it is not there any more
}

void TestChannelListener::endsWhenTheListenerCannotStart()
{
    ListenerScript script(false);
    script.end(3);
    const ChannelCheck made = check();
    QCOMPARE(made.mapping, ChannelMapping::notMeasurable);
    QVERIFY(!made.reason.isEmpty());
}

void TestChannelListener::endsWhenTheDeviceCannotBeOpened()
{
    const ListenerScript script;
    host::ChannelListening broken = listening;
    broken.device = QStringLiteral("Broken");
    const ChannelCheck made = check(broken);
    QCOMPARE(made.mapping, ChannelMapping::notMeasurable);
    QVERIFY2(made.reason.contains(QStringLiteral("'Broken' cannot be opened")), qPrintable(made.reason));
}

void TestChannelListener::endsWhenTheListenerDies()
{
    ListenerScript script;
    ChannelListener listener(listening);
    ChannelCheck made;
    made.mapping = ChannelMapping::straight;
    QObject::connect(&listener, &ChannelListener::finished, &listener, [&made](const ChannelCheck &told) { made = told; });
    QSignalSpy finished(&listener, &ChannelListener::finished);
    listener.start();
    QTimer::singleShot(300, &listener, [&script] { script.end(4); });
    QVERIFY(finished.wait(limitMs));
    QCOMPARE(made.mapping, ChannelMapping::notMeasurable);
}

QTEST_GUILESS_MAIN(TestChannelListener)
#include "tst_channel_listener.moc"

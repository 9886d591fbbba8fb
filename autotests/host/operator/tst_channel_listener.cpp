// SPDX-License-Identifier: Apache-2.0
#include "host/operator/channel_listener.h"

#include "autotests/host/operator/listener_script.h"
#include "host/operator/heard_log.h"

#include <QCoreApplication>
#include <QFile>
#include <QObject>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using host::ChannelCheck;
using host::ChannelListener;
using host::ChannelMapping;

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

    Room(const Hearing &left, const Hearing &right, int sourceChannelCount = 2) : hearings_{left, right}
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
        const QStringList spoke = contentOf("speaker_spoke").split(u' ');
        if (spoke.size() != 2 || sides.contains(spoke[0]))
            return;
        sides.append(spoke[0]);
        const QString clip = speakerArguments().value(3);
        digits.append(clip.mid(clip.lastIndexOf(u'/') + 1, 1).toInt());
        answer(hearings_[spoke[0] == QLatin1String("left") ? 0 : 1], spoke[1].toLongLong());
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
    Hearing hearings_[2];
    qint64 heardUpToMs_ = 0;
};

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

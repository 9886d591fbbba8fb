// SPDX-License-Identifier: Apache-2.0
#include "host/sal/sound_server_linux.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cerrno>
#include <chrono>

class TestSalSoundServer : public QObject {
    Q_OBJECT

private slots:
    void listsThePlaybackDevicesUnderTheirDescriptions();
    void aSpentBoundIsATimeout();
};

void TestSalSoundServer::listsThePlaybackDevicesUnderTheirDescriptions()
{
    sal::SoundFacts facts;
    QCOMPARE(sal::readSoundServer(facts), 0);
    QStringList descriptions;
    for (const sal::SinkFacts &sink : facts.sinks) {
        descriptions.append(QString::fromStdString(sink.description));
        QVERIFY(!sink.card.has_value());
    }
    QCOMPARE(descriptions, QStringList({QStringLiteral("Speakers"), QStringLiteral("Headphones")}));
    QVERIFY(facts.cards.empty());
}

void TestSalSoundServer::aSpentBoundIsATimeout()
{
    sal::SoundFacts facts;
    QCOMPARE(sal::readSoundServer(facts, std::chrono::milliseconds(0)), ETIMEDOUT);
    QVERIFY(facts.sinks.empty());
}

QTEST_GUILESS_MAIN(TestSalSoundServer)
#include "tst_sal_sound_server.moc"

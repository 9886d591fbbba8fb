// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/precheck.h"
#include "host/precheck/virtual_devices.h"
#include "host/translations/translators.h"

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using host::Precheck;
using host::PrecheckFinding;

Q_DECLARE_METATYPE(host::PrecheckFinding)

namespace {

bool pactl(const QString &arguments) { return QProcess::execute(QStringLiteral("pactl"), arguments.split(u' ')) == 0; }

QStringList keysOf(const QList<PrecheckFinding> &findings)
{
    QStringList keys;
    for (const PrecheckFinding &finding : findings)
        keys.append(QLatin1String(host::precheckKey(finding.what)));
    return keys;
}

QStringList lookAt(const char *device) { return keysOf(host::checkBeforeRun({QString::fromLatin1(device), {}, {}, false})); }

QString volumes()
{
    QProcess process;
    process.start(QStringLiteral("pactl"), {QStringLiteral("list"), QStringLiteral("sinks")});
    process.waitForFinished();
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
    return lines.filter(QStringLiteral("Mute:")).join(u' ') + lines.filter(QStringLiteral("Volume:")).join(u' ');
}

} // namespace

// The virtual card has the sinks "Speakers", "Speakers (2)" and "Quiet".
class TestPrecheckSound : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { host::installTranslators(QStringLiteral("en_US")); }
    void cleanup();

    void findsNothingOnAHealthyDevice();
    void findsTheMutedOne();
    void findsTheSilentOne();
    void changesNothing();
    void knowsNothingOfAnUnknownDevice();
    void tellsThatTheServerIsSilent();
    void marksNullSinks();
    void refusesALanguageWithoutClips();
    void refusesAnotherSentence();
    void everyFindingHasASentence_data();
    void everyFindingHasASentence();
};

void TestPrecheckSound::cleanup()
{
    for (const char *sink : {"sink1", "sink2", "sink3"}) {
        pactl(QStringLiteral("set-sink-mute %1 0").arg(QLatin1String(sink)));
        pactl(QStringLiteral("set-sink-volume %1 60%").arg(QLatin1String(sink)));
    }
}

void TestPrecheckSound::findsNothingOnAHealthyDevice() { QCOMPARE(lookAt("Speakers"), QStringList()); }

void TestPrecheckSound::findsTheMutedOne()
{
    QVERIFY(pactl(QStringLiteral("set-sink-mute sink2 1")));
    QCOMPARE(lookAt("Speakers (2)"), QStringList{QStringLiteral("PRECHECK_DEVICE_MUTED")});
    QCOMPARE(lookAt("Speakers"), QStringList());
    const auto findings = host::checkBeforeRun({QStringLiteral("Speakers (2)"), {}, {}, false});
    QVERIFY(!findings.first().isBlocking());
    QVERIFY2(host::precheckText(findings.first()).contains(QStringLiteral("\u201CSpeakers (2)\u201D")),
             qPrintable(host::precheckText(findings.first())));
}

void TestPrecheckSound::findsTheSilentOne()
{
    QVERIFY(pactl(QStringLiteral("set-sink-volume sink3 0")));
    QCOMPARE(lookAt("Quiet"), QStringList{QStringLiteral("PRECHECK_DEVICE_AT_ZERO")});
}

void TestPrecheckSound::changesNothing()
{
    QVERIFY(pactl(QStringLiteral("set-sink-volume sink3 0")));
    QVERIFY(pactl(QStringLiteral("set-sink-mute sink3 1")));
    const QString before = volumes();
    QCOMPARE(lookAt("Quiet").size(), 2);
    QCOMPARE(volumes(), before);
}

void TestPrecheckSound::knowsNothingOfAnUnknownDevice() { QCOMPARE(lookAt("Speakers (3)"), QStringList()); }

void TestPrecheckSound::tellsThatTheServerIsSilent()
{
    const QByteArray server = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", "unix:/no/such/server");
    const QStringList keys = lookAt("Speakers");
    const host::VirtualDevices devices = host::readVirtualDevices();
    qputenv("PULSE_SERVER", server);
    QCOMPARE(keys, QStringList{QStringLiteral("PRECHECK_SOUND_SERVER_SILENT")});
    QVERIFY(!devices.isKnown);
    QCOMPARE(host::virtualRefusal(devices, QStringLiteral("Speakers")), "REASON_VIRTUAL_UNKNOWN");
}

void TestPrecheckSound::marksNullSinks()
{
    const host::VirtualDevices devices = host::readVirtualDevices();
    for (const char *name : {"Speakers", "Speakers (2)", "Quiet"})
        QVERIFY2(devices.contains(QLatin1String(name)), name);
    QVERIFY(devices.isKnown && !devices.contains(QStringLiteral("Headset")));
}

void TestPrecheckSound::refusesALanguageWithoutClips()
{
    const QTemporaryDir folder;
    const auto findings = host::checkBeforeRun({QStringLiteral("Speakers"), folder.path(), QStringLiteral("it_IT"), false});
    QCOMPARE(keysOf(findings), QStringList{QStringLiteral("PRECHECK_CLIPS_MISSING")});
    QVERIFY(findings.first().isBlocking());
}

void TestPrecheckSound::refusesAnotherSentence()
{
    const QTemporaryDir folder;
    const auto findings = host::checkBeforeRun({QStringLiteral("Speakers"), folder.path(), {}, false, {}, true});
    QCOMPARE(keysOf(findings), QStringList{QStringLiteral("PRECHECK_CLIP_DAMAGED")});
    QVERIFY(findings.first().isBlocking());
    QCOMPARE(findings.first().subject, QStringLiteral("operator/sentence_en_US.wav"));
}

void TestPrecheckSound::everyFindingHasASentence_data()
{
    QTest::addColumn<QString>("language");
    for (const QLatin1StringView code : host::translationCodes)
        QTest::newRow(code.data()) << QString(code);
}

void TestPrecheckSound::everyFindingHasASentence()
{
    QFETCH(const QString, language);
    QVERIFY(host::installTranslators(language));
    for (int what = 0; what <= static_cast<int>(Precheck::sourceAtZero); ++what) {
        const QString text = host::precheckText({static_cast<Precheck>(what), QStringLiteral("X1")});
        QVERIFY2(!text.contains(QStringLiteral("PRECHECK")) && !text.contains(QStringLiteral("%1")), qPrintable(text));
    }
}

QTEST_GUILESS_MAIN(TestPrecheckSound)
#include "tst_precheck_sound.moc"

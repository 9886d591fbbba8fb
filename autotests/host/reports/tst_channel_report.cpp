// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/reports/json_schema.h"
#include "autotests/host/reports/sample_record.h"
#include "host/reports/html_report.h"
#include "host/reports/run_limits.h"
#include "host/reports/run_report.h"
#include "host/reports/text_report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTest>

#include <utility>

using host::RunRecord;

namespace {

QJsonObject parsed(const RunRecord &record, const host::TextLookup &lookUp = {})
{
    return QJsonDocument::fromJson(host::runReport(record, lookUp)).object();
}

QString unescaped(const QByteArray &html)
{
    QString text = QString::fromUtf8(html);
    for (const auto &[entity, letter] : {std::pair("&#39;", "'"), std::pair("&lt;", "<"), std::pair("&gt;", ">")})
        text.replace(QLatin1String(entity), QLatin1String(letter));
    return text;
}

host::ChannelCheck measured(const QString &source)
{
    host::ChannelCheck check =
        host::judgeChannels({{host::SideLevels{-90.04, -20.06}, -15}, {host::SideLevels{-20, -120}, -15}, 2, true});
    check.source = source;
    return check;
}

RunRecord checked(const host::ChannelCheck &check)
{
    RunRecord record = fullRecord();
    record.channels = check;
    return record;
}

} // namespace

// What a report says of left and right, which no verdict counts.
class TestChannelReport : public QObject {
    Q_OBJECT

private slots:
    void tellsWhatWasMeasured();
    void tellsWhatAPersonHeard();
    void tellsWhyNothingIsKnown();
    void tellsWhyInTheLanguageOfTheRun();
    void readsAReportWithoutTheTranslation();
    void keepsToTheSchema();
    void saysSoInEveryFormat_data();
    void saysSoInEveryFormat();
    void leavesTheVerdictAlone();
    void choosesTheLimit_data();
    void choosesTheLimit();
};

void TestChannelReport::tellsWhatWasMeasured()
{
    const QJsonObject expected{{QStringLiteral("mapping"), QStringLiteral("swapped")},
                               {QStringLiteral("source"), QStringLiteral("Monitor of X")},
                               {QStringLiteral("leftHeard"), QStringLiteral("right")},
                               {QStringLiteral("rightHeard"), QStringLiteral("left")},
                               {QStringLiteral("leftDbfs"), QJsonArray{-90.0, -20.1}},
                               {QStringLiteral("rightDbfs"), QJsonArray{-20, -120}},
                               {QStringLiteral("reason"), QString()},
                               {QStringLiteral("reasonKey"), QString()},
                               {QStringLiteral("reasonTranslated"), QString()}};
    QCOMPARE(parsed(checked(measured(QStringLiteral("Monitor of X")))).value(QLatin1String("channelMapping")).toObject(),
             expected);
    QVERIFY(parsed(fullRecord()).value(QLatin1String("channelMapping")).isNull());
}

void TestChannelReport::tellsWhatAPersonHeard()
{
    const RunRecord record = checked(host::answeredCheck(host::HeardSide::left, host::HeardSide::nothing));
    const QJsonValue told = parsed(record).value(QLatin1String("channelMapping"));
    QCOMPARE(told[QLatin1String("mapping")].toString(), QStringLiteral("right silent"));
    QCOMPARE(told[QLatin1String("rightHeard")].toString(), QStringLiteral("nothing"));
    QVERIFY(told[QLatin1String("leftDbfs")].isNull());
    QCOMPARE(told[QLatin1String("source")].toString(), QString());
}

void TestChannelReport::tellsWhyNothingIsKnown()
{
    host::ChannelCheck lost;
    lost.reason = QStringLiteral("listener lost");
    const QJsonValue told = parsed(checked(lost)).value(QLatin1String("channelMapping"));
    QCOMPARE(told[QLatin1String("mapping")].toString(), QStringLiteral("not measurable"));
    QVERIFY(told[QLatin1String("leftHeard")].isNull());
    QCOMPARE(told[QLatin1String("reason")].toString(), QStringLiteral("listener lost"));
}

void TestChannelReport::tellsWhyInTheLanguageOfTheRun()
{
    host::ChannelCheck deaf;
    deaf.source = QStringLiteral("Mic");
    deaf.reason = QStringLiteral("no microphone is named 'A' (there are: 'B')"); // any reason with arguments
    const auto inGerman = [](const QString &key) { return key + QStringLiteral(" Ger\u00E4t %1 <%2>"); };
    const QJsonObject report = parsed(checked(deaf), inGerman);
    const QJsonValue told = report.value(QLatin1String("channelMapping"));
    const QString key = QStringLiteral("REASON_NO_SUCH_MICROPHONE");
    const QString translated = key + QStringLiteral(" Ger\u00E4t A <B>");
    QCOMPARE(told[QLatin1String("reason")].toString(), deaf.reason);
    QCOMPARE(told[QLatin1String("reasonKey")].toString(), key);
    QCOMPARE(told[QLatin1String("reasonTranslated")].toString(), translated);
    const QString line = QStringLiteral("not measurable: %1 \u2013 %2 (%3)").arg(deaf.reason, translated, key);
    QVERIFY(QString::fromUtf8(host::textReport(report)).contains(line));
    QVERIFY(unescaped(host::htmlReport(report)).contains(line));
}

// Written by the same format's first programs.
void TestChannelReport::readsAReportWithoutTheTranslation()
{
    host::ChannelCheck lost;
    lost.reason = QStringLiteral("listener lost");
    QJsonObject report = parsed(checked(lost));
    QJsonObject told = report.value(QLatin1String("channelMapping")).toObject();
    told.remove(QStringLiteral("reasonKey"));
    told.remove(QStringLiteral("reasonTranslated"));
    report.insert(QStringLiteral("channelMapping"), told);
    QVERIFY(schemaErrors(report, publishedSchema()).isEmpty());
    QVERIFY(QString::fromUtf8(host::textReport(report)).contains(QStringLiteral("not measurable: listener lost\n")));
}

void TestChannelReport::keepsToTheSchema()
{
    for (const auto &check : {measured(QStringLiteral("X")), host::answeredCheck(host::HeardSide::both, host::HeardSide::both),
                              host::ChannelCheck()}) {
        const QStringList errors = schemaErrors(parsed(checked(check)), publishedSchema());
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join(u'\n')));
    }
    QJsonObject wrong = parsed(checked(measured(QStringLiteral("X"))));
    wrong.insert(QStringLiteral("channelMapping"), QJsonObject{{QStringLiteral("mapping"), QStringLiteral("fine")}});
    QVERIFY(!schemaErrors(wrong, publishedSchema()).isEmpty());
}

void TestChannelReport::saysSoInEveryFormat_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("words");
    QTest::newRow("measured") << "Monitor of X"
                              << "swapped, measured at 'Monitor of X'";
    QTest::newRow("a person's") << ""
                                << "swapped, as a person heard them";
}

void TestChannelReport::saysSoInEveryFormat()
{
    QFETCH(const QString, source);
    QFETCH(const QString, words);
    const QJsonObject report = parsed(checked(measured(source)));
    QVERIFY(QString::fromUtf8(host::textReport(report)).contains(words));
    QVERIFY(unescaped(host::htmlReport(report)).contains(words));
    QVERIFY(!QString::fromUtf8(host::textReport(parsed(fullRecord()))).contains(QStringLiteral("Channels before the run")));
}

void TestChannelReport::leavesTheVerdictAlone()
{
    const QJsonObject before = parsed(fullRecord());
    const QJsonObject after = parsed(checked(measured(QStringLiteral("X"))));
    for (const char *key : {"verdict", "moduleCode", "messages", "reason"})
        QCOMPARE(after.value(QLatin1String(key)), before.value(QLatin1String(key)));
}

void TestChannelReport::choosesTheLimit_data()
{
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("told");
    QTest::newRow("unknown") << false << "Monitor of X"
                             << "a silent or swapped channel can go unnoticed";
    QTest::newRow("monitor") << true << "Monitor of X"
                             << "were checked before the run, at the user's volume; the verdict";
    QTest::newRow("person") << true << ""
                            << "were checked before the run, at the user's volume; the verdict";
    QTest::newRow("microphone") << true << "Webcam"
                                << "which swap when it is turned round";
}

void TestChannelReport::choosesTheLimit()
{
    QFETCH(const bool, isKnown);
    QFETCH(const QString, source);
    QFETCH(const QString, told);
    host::ChannelCheck check = isKnown ? measured(source) : host::ChannelCheck();
    const QString limits = host::runLimits(checked(check)).join(u'\n');
    QVERIFY2(limits.contains(told), qPrintable(limits));
    QCOMPARE(limits.contains(QStringLiteral("can go unnoticed")), !isKnown);
}

QTEST_GUILESS_MAIN(TestChannelReport)
#include "tst_channel_report.moc"

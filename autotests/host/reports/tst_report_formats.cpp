// SPDX-License-Identifier: Apache-2.0
#include "host/reports/report_formats.h"

#include "autotests/host/reports/report_elements.h"
#include "autotests/host/reports/sample_record.h"
#include "host/reports/run_report.h"
#include "host/reports/text_report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QObject>
#include <QSet>
#include <QTest>

#include <algorithm>

using host::ReportFormat;

Q_DECLARE_METATYPE(host::ReportFormat)

namespace {

host::RunRecord hostileRecord()
{
    const QString hostile = QStringLiteral("</title></style><script>alert(1)</script>\"'&amp;\x01\x1b[31m") + QChar(0xD800);
    host::RunRecord record = fullRecord();
    record.device = {hostile, hostile, {{hostile, hostile}}};
    record.language = QStringLiteral("\"><script>");
    record.reason = record.listenedTo = record.testNameKey = hostile;
    record.messages = {{hostile, 2}};
    record.screenshots = record.restoredVolumes = {hostile};
    return record;
}

} // namespace

class TestReportFormats : public QObject {
    Q_OBJECT

private slots:
    void knowsFormatsBySuffix_data();
    void knowsFormatsBySuffix();
    void readsItsOwnReports();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
    void convertsWhateverIsMissing_data();
    void convertsWhateverIsMissing();
    void mapsCodesToJUnit_data();
    void mapsCodesToJUnit();
    void tellsJUnitWhen();
    void makesOneHtmlFileWithoutNetwork();
    void marksLanguages();
    void ordersHeadings();
    void namesEveryPlot();
    void drawsEveryPlot();
    void labelsTheBandsByTheirNominalCentres();
    void drawsNoPlotWithoutDigits();
    void headsEveryColumn();
    void letsNoTextBecomeMarkup_data();
    void letsNoTextBecomeMarkup();
    void boundsWhatItDraws();
    void writesText();
    void tellsOfTheRecordingInEachFormat();
    void tellsThatNoRecordingWasHeard_data();
    void tellsThatNoRecordingWasHeard();
    void alignsTheTable();
    void tellsWhyInEachFormat_data();
    void tellsWhyInEachFormat();
    void readsReportsOfTheFirstVersion();
};

void TestReportFormats::knowsFormatsBySuffix_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("format");
    const auto add = [](const char *file, std::optional<ReportFormat> format) {
        QTest::newRow(file) << QString::fromLatin1(file) << (format ? static_cast<int>(*format) : -1);
    };
    add("a.json", ReportFormat::json);
    add("a.b/c.XML", ReportFormat::junit);
    add("a.html", ReportFormat::html);
    add("a.htm", ReportFormat::html);
    add("a.txt", ReportFormat::text);
    add("json", std::nullopt);
    add("a.json.gz", std::nullopt);
    add("", std::nullopt);
}

void TestReportFormats::knowsFormatsBySuffix()
{
    QFETCH(const QString, file);
    const auto format = host::reportFormatOf(file);
    QTEST(format ? static_cast<int>(*format) : -1, "format");
}

void TestReportFormats::readsItsOwnReports()
{
    const auto read = host::readReport(host::runReport(fullRecord()));
    QVERIFY(std::holds_alternative<QJsonObject>(read));
    QCOMPARE(std::get<QJsonObject>(read).value(QLatin1String("language")).toString(), QStringLiteral("ja_JP"));
}

void TestReportFormats::refusesOtherFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("nothing") << QByteArray() << QStringLiteral("it is no JSON: illegal value at byte 0");
    QTest::newRow("a list") << QByteArray("[1]") << QStringLiteral("it is no report of a test");
    QTest::newRow("another document") << QByteArray(R"({"devices":[]})") << QStringLiteral("it is no report of a test");
    QTest::newRow("a newer one") << QByteArray(R"({"formatVersion":3})")
                                 << QStringLiteral("its format is newer than this program");
}

void TestReportFormats::refusesOtherFiles()
{
    QFETCH(const QByteArray, bytes);
    const auto read = host::readReport(bytes);
    QVERIFY(std::holds_alternative<host::ReportError>(read));
    QTEST(std::get<host::ReportError>(read).message, "message");
}

void TestReportFormats::convertsWhateverIsMissing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("everything") << QByteArray(R"({"formatVersion":2})");
    QTest::newRow("of a digit") << QByteArray(
        R"({"formatVersion":1,"digits":[{},7,{"measured":{"lowest":[],"highest":[1]}}]})");
    QTest::newRow("wrong types") << QByteArray(
        R"({"formatVersion":1,"digits":[{"measured":{"lowest":["a",null],"highest":[0,1],"bandLevelsDbfs":[{}],"lowestBandHz":-1}}],)"
        R"("messages":"x","verdict":[],"device":3,"startedUtc":"yesterday"})");
}

void TestReportFormats::convertsWhateverIsMissing()
{
    QFETCH(const QByteArray, bytes);
    const QJsonObject report = QJsonDocument::fromJson(bytes).object();
    QVERIFY(!report.isEmpty());
    QVERIFY(!elementsOf(host::convertReport(report, ReportFormat::html)).isEmpty());
    QVERIFY(!host::convertReport(report, ReportFormat::text).isEmpty());
    const QList<Element> suite = elementsOf(host::convertReport(report, ReportFormat::junit));
    QCOMPARE(named(suite, "error").size(), 1); // no verdict is no success
}

void TestReportFormats::mapsCodesToJUnit_data()
{
    QTest::addColumn<unsigned>("code");
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("counts");
    QTest::newRow("passed") << 0U << QString() << QStringLiteral("0 0 0");
    QTest::newRow("failed") << 1U << QStringLiteral("failure") << QStringLiteral("1 0 0");
    QTest::newRow("cannot be performed") << 3U << QStringLiteral("skipped") << QStringLiteral("0 0 1");
    QTest::newRow("not completed") << 4U << QStringLiteral("error") << QStringLiteral("0 1 0");
    QTest::newRow("invalid call") << 6U << QStringLiteral("error") << QStringLiteral("0 1 0");
}

void TestReportFormats::mapsCodesToJUnit()
{
    QFETCH(const unsigned, code);
    QFETCH(const QString, element);
    host::RunRecord record = fullRecord();
    record.code = record.moduleCode = code;
    if (code == 0)
        record.messages.clear();
    const QList<Element> elements = elementsOf(junit(record));
    const Element suite = named(elements, "testsuite").value(0);
    QTEST(QStringLiteral("%1 %2 %3").arg(suite.attribute("failures"), suite.attribute("errors"), suite.attribute("skipped")),
          "counts");
    QCOMPARE(suite.attribute("tests"), QStringLiteral("1"));
    for (const char *name : {"failure", "error", "skipped"})
        QCOMPARE(named(elements, name).size(), element == QLatin1String(name) ? 1 : 0);
    if (!element.isEmpty())
        QCOMPARE(named(elements, element.toLatin1().constData())[0].attribute("message"),
                 QStringLiteral("The user reported that no sound was heard. \u2013 \u300CUSER_DID_NOT_REPORT_SOUND\u300D "
                                "(USER_DID_NOT_REPORT_SOUND)%1")
                     .arg(code == 1 ? QStringLiteral(" [the operator program answered, no person]") : QString()));
}

void TestReportFormats::tellsJUnitWhen()
{
    const QList<Element> elements = elementsOf(junit(fullRecord()));
    const Element suite = named(elements, "testsuite").value(0);
    QCOMPARE(suite.attribute("timestamp"), QStringLiteral("2026-03-01T09:00:00"));
    QCOMPARE(suite.attribute("time"), QStringLiteral("9.500"));
    const Element testCase = named(elements, "testcase").value(0);
    QCOMPARE(testCase.attribute("classname"), QStringLiteral("module_audio.AUDIO_PLAYBACK_TEST"));
    QVERIFY(named(elements, "system-out").value(0).text.contains(QStringLiteral("0.99")));
}

void TestReportFormats::makesOneHtmlFileWithoutNetwork()
{
    const QByteArray page = html(fullRecord());
    QVERIFY(page.startsWith("<!DOCTYPE html><html lang=\"en\">"));
    const QList<Element> elements = elementsOf(page);
    QVERIFY(!elements.isEmpty());
    for (const char *name : {"script", "link", "img", "iframe", "object", "image", "use", "a"})
        QVERIFY2(named(elements, name).isEmpty(), name);
    for (const Element &element : elements) {
        for (const char *key : {"src", "href", "onload", "style"})
            QVERIFY2(element.attribute(key).isEmpty(), qPrintable(element.name));
    }
    const QString style = named(elements, "style").value(0).text;
    QVERIFY(style.contains(QStringLiteral("@media print")));
    QVERIFY(!style.contains(QStringLiteral("url(")) && !style.contains(QStringLiteral("@import")));
    QVERIFY(page.contains("No sound was kept."));
    host::RunRecord kept = fullRecord();
    kept.keptAudio = QStringLiteral("<heard>.wav");
    QVERIFY(html(kept).contains("All that was heard, voices too, was kept in &lt;heard&gt;.wav."));
    QVERIFY(!html(kept).contains("No sound was kept."));
    QCOMPARE(named(elements, "meta").value(0).attribute("charset"), QStringLiteral("utf-8"));
}

void TestReportFormats::marksLanguages()
{
    const QList<Element> elements = elementsOf(html(fullRecord()));
    const QStringList translated{QStringLiteral("\u300CAUDIO_PLAYBACK_TEST\u300D"),
                                 QStringLiteral("\u300CUSER_DID_NOT_REPORT_SOUND\u300D"),  // the reason
                                 QStringLiteral("\u300CUSER_DID_NOT_REPORT_SOUND\u300D")}; // the message
    QStringList marked;
    for (const Element &element : elements) {
        if (element.attribute("lang") == QLatin1String("ja-JP"))
            marked.append(element.text);
    }
    QCOMPARE(marked, translated);
}

void TestReportFormats::ordersHeadings()
{
    int last = 0;
    for (const Element &element : elementsOf(html(fullRecord()))) {
        if (element.name.size() != 2 || !element.name.startsWith(u'h') || !element.name.at(1).isDigit())
            continue;
        const int level = element.name.at(1).digitValue();
        QVERIFY2(level <= last + 1, qPrintable(element.text)); // no level is left out
        last = level;
    }
    QCOMPARE(named(elementsOf(html(fullRecord())), "h1").size(), 1);
}

void TestReportFormats::namesEveryPlot()
{
    const QList<Element> elements = elementsOf(html(fullRecord()));
    QSet<QString> ids;
    for (const Element &element : elements) {
        const QString id = element.attribute("id");
        QVERIFY2(id.isEmpty() || !ids.contains(id), qPrintable(id));
        ids.insert(id);
    }
    const QList<Element> plots = named(elements, "svg");
    for (const Element &plot : plots) {
        QCOMPARE(plot.attribute("role"), QStringLiteral("img"));
        for (const QString &id : plot.attribute("aria-labelledby").split(u' '))
            QVERIFY2(ids.contains(id), qPrintable(id));
    }
    const QString scores = named(elements, "desc").value(0).text;
    QCOMPARE(scores, QStringLiteral("In 0 to 1: 1.1: 0, 2.3: 0.9877."));
}

// Scores and levels of both, wave and spectrum of the one that was measured.
void TestReportFormats::drawsEveryPlot()
{
    const QList<Element> elements = elementsOf(html(fullRecord()));
    QCOMPARE(named(elements, "svg").size(), 4);
    QCOMPARE(named(elements, "figcaption").size(), 4);
    QList<Element> bars = named(elements, "rect");
    QCOMPARE(bars.size(), 2 + 2 + 3);
    QCOMPARE(bars[0].attribute("height"), QStringLiteral("0.0"));
    QCOMPARE(bars[1].attribute("height"), QStringLiteral("169.9")); // 0.9877 of 172
    const QString outline = named(elements, "polygon").value(0).attribute("points");
    QCOMPARE(outline.split(u' ').size(), 6);
    QVERIFY(outline.startsWith(QStringLiteral("56.0,79.6 "))); // 0.2 between -0.5 and 0.5
}

// Every second one, so that none runs into the next.
void TestReportFormats::labelsTheBandsByTheirNominalCentres()
{
    host::RunRecord record = fullRecord();
    record.digits = {heardDigit()};
    record.digits[0].measured->bandLevelsDbfs = QList<double>(24, -40.0);
    QStringList labels;
    for (const Element &text : named(elementsOf(html(record)), "text")) {
        if (text.attribute("text-anchor") == QLatin1String("middle"))
            labels.append(text.text);
    }
    QCOMPARE(labels.mid(2).join(u' '), QStringLiteral("100 160 250 400 630 1k 1.6k 2.5k 4k 6.3k 10k 16k"));
    record.digits[0].measured->bandLevelsDbfs.resize(12);
    QVERIFY(html(record).contains(">1.25k</text>"));
}

void TestReportFormats::drawsNoPlotWithoutDigits()
{
    QVERIFY(named(elementsOf(html(playbackRecord())), "svg").isEmpty());
    QVERIFY(html(playbackRecord()).contains("No digit was heard."));
}

void TestReportFormats::headsEveryColumn()
{
    for (const Element &heading : named(elementsOf(html(fullRecord())), "th"))
        QVERIFY(heading.attribute("scope") == QLatin1String("col") || heading.attribute("scope") == QLatin1String("row"));
    const QList<Element> elements = elementsOf(html(fullRecord()));
    QCOMPARE(named(elements, "caption").size(), named(elements, "table").size());
}

void TestReportFormats::letsNoTextBecomeMarkup_data()
{
    QTest::addColumn<ReportFormat>("format");
    QTest::newRow("html") << ReportFormat::html;
    QTest::newRow("junit") << ReportFormat::junit;
}

void TestReportFormats::letsNoTextBecomeMarkup()
{
    QFETCH(const ReportFormat, format);
    const QByteArray page = host::convertReport(reportOf(hostileRecord()), format);
    const QList<Element> elements = elementsOf(page);
    QVERIFY(!elements.isEmpty());
    QVERIFY(named(elements, "script").isEmpty());
    QVERIFY(!page.contains("<script"));
    QVERIFY(!page.contains('\x01') && !page.contains('\x1b'));
    const QByteArray text = host::convertReport(reportOf(hostileRecord()), ReportFormat::text);
    QVERIFY(!text.contains('\x1b'));
}

void TestReportFormats::boundsWhatItDraws()
{
    host::RunRecord record = fullRecord();
    record.digits[1].measured->lowest = QList<double>(100'000, -0.1);
    record.digits[1].measured->highest = QList<double>(100'000, 0.1);
    QVERIFY(html(record).size() < 200'000);
}

void TestReportFormats::writesText()
{
    const QString text = QString::fromUtf8(host::convertReport(reportOf(fullRecord()), ReportFormat::text));
    QVERIFY(text.startsWith(
        QStringLiteral("Audio Playback Test \u2013 \u300CAUDIO_PLAYBACK_TEST\u300D (AUDIO_PLAYBACK_TEST): failed\n")));
    QVERIFY(text.contains(QStringLiteral("\nerror: The user reported that no sound was heard. \u2013 "
                                         "\u300CUSER_DID_NOT_REPORT_SOUND\u300D (USER_DID_NOT_REPORT_SOUND)\n")));
    QVERIFY(text.contains(QStringLiteral("\nWhat this run cannot tell\n  - ")));
}

void TestReportFormats::tellsOfTheRecordingInEachFormat()
{
    const QString text = QString::fromUtf8(host::convertReport(reportOf(microphoneRecord()), ReportFormat::text));
    QVERIFY(text.contains(QStringLiteral("\nRecording\n  Recorded by         Mic <1>\n  Spoken through      Speakers\n")));
    QVERIFY(text.contains(QStringLiteral("\n  Latency (ms)        -12\n")));
    QVERIFY(text.contains(QStringLiteral("\n  Volumes             no answer in time\n")));
    const QList<Element> page = elementsOf(html(microphoneRecord()));
    const auto hasCell = [&page](const char *cell) {
        return std::any_of(page.begin(), page.end(), [cell](const Element &element) {
            return element.name == QLatin1String("td") && element.text == QLatin1String(cell);
        });
    };
    for (const char *cell : {"Mic <1>", "Speakers", "9876", "0.99", "-12", "-20.5", "-3.2", "yes", "no"})
        QVERIFY2(hasCell(cell), cell);
    QCOMPARE(named(page, "svg").size(), 1);
    QCOMPARE(named(page, "polygon").size(), 1);
    QVERIFY(!html(microphoneRecord()).contains("digit was heard"));
    QStringList properties;
    for (const Element &property : named(elementsOf(junit(microphoneRecord())), "property"))
        properties.append(property.attribute("name") + u'=' + property.attribute("value"));
    QVERIFY(properties.contains(QStringLiteral("Recorded by=Mic <1>")));
}

void TestReportFormats::tellsThatNoRecordingWasHeard_data()
{
    QTest::addColumn<bool>("isUnattended");
    QTest::addColumn<QByteArray>("sentence");
    QTest::newRow("unattended") << true << QByteArray("No recording was heard.");
    QTest::newRow("attended") << false << QByteArray("A person listened: nothing was measured.");
}

void TestReportFormats::tellsThatNoRecordingWasHeard()
{
    QFETCH(const bool, isUnattended);
    QFETCH(const QByteArray, sentence);
    host::RunRecord record = microphoneRecord();
    record.recording.reset();
    record.isUnattended = isUnattended;
    QVERIFY(html(record).contains(sentence));
    QVERIFY(!html(record).contains("digit was heard"));
    record.code = 4;
    QCOMPARE(html(record).contains("Nobody judged what was played."), !isUnattended);
    record.wasModuleCalled = false;
    QVERIFY(html(record).contains("The test was not run.") && !html(record).contains(sentence));
}

void TestReportFormats::alignsTheTable()
{
    const QStringList lines = host::digitTableText(reportOf(fullRecord())).split(u'\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[1].size(), lines[0].size());
    QCOMPARE(lines[2].size(), lines[0].size());
    QVERIFY(lines[3].isEmpty());
    QCOMPARE(lines[2].simplified(), QStringLiteral("2 3 4321 - 7 0 0.99 0.50 61 -21.0 -21.0 -60.6 -3.1 62.3 -4.0 yes"));
    QCOMPARE(lines[1].simplified(), QStringLiteral("1 1 - - - - 0.00 0.00 - -120.0 - - - - - no"));
    QCOMPARE(host::digitTableText(reportOf(playbackRecord())), QString());
}

void TestReportFormats::tellsWhyInEachFormat_data()
{
    QTest::addColumn<ReportFormat>("format");
    QTest::addColumn<bool>("isRefused");
    const std::pair<const char *, ReportFormat> formats[] = {{"json", ReportFormat::json},
                                                             {"junit", ReportFormat::junit},
                                                             {"html", ReportFormat::html},
                                                             {"text", ReportFormat::text}};
    for (const auto &[name, format] : formats) {
        QTest::addRow("%s, refused", name) << format << true;
        QTest::addRow("%s, interrupted", name) << format << false;
    }
}

// Refused or interrupted before anything was recorded: why, with which microphone, and nothing of a recording.
void TestReportFormats::tellsWhyInEachFormat()
{
    QFETCH(const ReportFormat, format);
    QFETCH(const bool, isRefused);
    host::RunRecord record = microphoneRecord();
    record.recording.reset();
    record.microphone = QStringLiteral("Desk Mic");
    record.progress.clear();
    record.code = isRefused ? 3 : 4;
    record.wasModuleCalled = !isRefused;
    record.wasStopped = !isRefused;
    record.reason = isRefused ? QStringLiteral("'S' is a virtual device: a verdict on it says nothing about this machine")
                              : QStringLiteral("the run was stopped");
    const QString key = isRefused ? QStringLiteral("REASON_VIRTUAL_DEVICE") : QStringLiteral("REASON_STOPPED");
    const QString text = QString::fromUtf8(host::convertReport(reportOf(record), format));
    for (const QString &part : {key, QStringLiteral("\u300C%1\u300D").arg(key), QStringLiteral("Desk Mic")})
        QVERIFY2(text.contains(part), qPrintable(text));
    QVERIFY(text.contains(isRefused ? QStringLiteral("is a virtual device") : QStringLiteral("the run was stopped")));
    QVERIFY(text.contains(QStringLiteral("this run says nothing about the device")));
    for (const char *claim : {"recorded were", "A person", "Only the first five", "\"percent\": 100"})
        QVERIFY2(!text.contains(QLatin1String(claim)), claim);
}

void TestReportFormats::readsReportsOfTheFirstVersion()
{
    const QByteArray old(R"({"formatVersion":1,"reason":"listener lost","restoredVolumes":["Dock"],"device":{"name":"D"},)"
                         R"("test":{"letter":"p","nameKey":"K"},"verdict":{"code":4,"name":"not completed"}})");
    const QString text =
        QString::fromUtf8(host::convertReport(std::get<QJsonObject>(host::readReport(old)), ReportFormat::text));
    QVERIFY2(text.contains(QStringLiteral("Reason              listener lost\n")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("Guardian put back   Dock\n")), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestReportFormats)
#include "tst_report_formats.moc"

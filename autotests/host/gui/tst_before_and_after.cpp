// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/gui/prompt_answerer.h"
#include "autotests/host/gui/shown_program.h"
#include "host/core/run_reason.h"
#include "host/gui/key_text.h"
#include "host/gui/level_words.h"
#include "host/gui/listening_tools.h"
#include "host/translations/translators.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QObject>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using host::Precheck;
using host::PrecheckFinding;

namespace {

constexpr int patienceMs = 10'000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QAction *actionOf(const host::MainWindow &window, const QKeySequence &keys)
{
    for (QAction *menu : window.menuBar()->actions()) {
        for (QAction *action : menu->menu()->actions()) {
            if (action->shortcut() == keys)
                return action;
        }
    }
    return nullptr;
}

const QKeySequence saveKeys(Qt::CTRL | Qt::Key_S);
const QKeySequence copyKeys(Qt::CTRL | Qt::SHIFT | Qt::Key_C);

} // namespace

// What the window does before a run that a person starts, and with the report after it.
class TestBeforeAndAfter : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(host::installTranslators(QStringLiteral("en_US"))); }
    void init() { before_ = QDir::currentPath(); }
    void cleanup() { QVERIFY(QDir::setCurrent(before_)); }
    void asksAboutTheChosenRun();
    void runsWithoutAWordWhenNothingWasFound();
    void showsWhatWasFound_data();
    void showsWhatWasFound();
    void refusesToBlameTheDevice_data();
    void refusesToBlameTheDevice();
    void warnsOfTheLoudnessBeforeAMicrophoneTest();
    void runsNothingWhenTheWarningIsDeclined();
    void warnsOfTheLoudnessBeforeARunAlone_data();
    void warnsOfTheLoudnessBeforeARunAlone();
    void runsNothingAloneWhenTheWarningIsDeclined_data();
    void runsNothingAloneWhenTheWarningIsDeclined();
    void namesTheWaveAfterTheTest();
    void blamesNoOtherDeviceWhenTheChosenOneGoes();
    void savesTheReportInEachFormat_data();
    void savesTheReportInEachFormat();
    void tellsWhyItCannotSave();
    void copiesTheReport();
    void offersNoReportBeforeARun();
    void showsTheWaveOfTheDigits();

private:
    // Starts the chosen run as a person does and presses a button of the dialog that comes up; its text is returned.
    QString runAndPress(ShownProgram &program, const char *button);

    QString before_;
};

QString TestBeforeAndAfter::runAndPress(ShownProgram &program, const char *button)
{
    QString text;
    QTimer watcher;
    connect(&watcher, &QTimer::timeout, &watcher, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog->objectName() != QLatin1String("host_precheck"))
            return;
        watcher.stop();
        text = dialog->findChild<QLabel *>(QStringLiteral("host_precheck_text"))->text();
        auto *chosen = dialog->findChild<QPushButton *>(QLatin1String(button));
        if (chosen->isVisible())
            chosen->click();
        else
            static_cast<QDialog *>(dialog)->reject();
    });
    watcher.start(20);
    program.find<QPushButton>("host_run")->click();
    [&] { QTRY_VERIFY_WITH_TIMEOUT(!text.isEmpty(), patienceMs); }();
    QCoreApplication::processEvents();
    return text;
}

void TestBeforeAndAfter::asksAboutTheChosenRun()
{
    ShownProgram program;
    QStringList asked;
    program.window.setPrecheck([&asked](const QString &letter, const QString &device) {
        asked.append(letter + u' ' + device);
        return QList<PrecheckFinding>();
    });
    program.window.choose(1, 1);
    const PromptAnswerer answerer("host_prompt_accept");
    program.find<QPushButton>("host_run")->click();
    QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), 1, patienceMs);
    QCOMPARE(asked, QStringList{QStringLiteral("m Headphones")});
}

void TestBeforeAndAfter::runsWithoutAWordWhenNothingWasFound()
{
    ShownProgram program;
    program.window.setPrecheck([](const QString &, const QString &) { return QList<PrecheckFinding>(); });
    program.window.choose(0, 0);
    program.find<QPushButton>("host_run")->click();
    QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), 1, patienceMs);
    QVERIFY(program.window.findChild<QWidget *>(QStringLiteral("host_precheck")) == nullptr);
}

void TestBeforeAndAfter::showsWhatWasFound_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("isRun");
    QTest::newRow("run nevertheless") << QByteArray("host_precheck_run") << true;
    QTest::newRow("close") << QByteArray("host_precheck_close") << false;
}

void TestBeforeAndAfter::showsWhatWasFound()
{
    QFETCH(const QByteArray, button);
    QFETCH(const bool, isRun);
    ShownProgram program;
    program.window.setPrecheck([](const QString &, const QString &device) {
        return QList<PrecheckFinding>{{Precheck::deviceMuted, device}, {Precheck::microphoneBlocked, {}}};
    });
    program.window.choose(0, 0);
    const QString text = runAndPress(program, button.constData());
    QVERIFY2(text.contains(host::precheckText({Precheck::deviceMuted, QStringLiteral("Speakers")})), qPrintable(text));
    QVERIFY2(text.contains(host::precheckText({Precheck::microphoneBlocked, {}})), qPrintable(text));
    QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), isRun ? 1 : 0, patienceMs);
    if (isRun)
        QCOMPARE(program.session.history().last().code, 0U);
    QVERIFY(program.find<QPlainTextEdit>("host_log")
                ->toPlainText()
                .contains(host::precheckText({Precheck::microphoneBlocked, {}})));
}

void TestBeforeAndAfter::refusesToBlameTheDevice_data()
{
    QTest::addColumn<int>("what");
    QTest::newRow("missing") << static_cast<int>(Precheck::clipsMissing);
    QTest::newRow("damaged") << static_cast<int>(Precheck::clipDamaged);
}

void TestBeforeAndAfter::refusesToBlameTheDevice()
{
    QFETCH(const int, what);
    const PrecheckFinding finding{static_cast<Precheck>(what), QStringLiteral("en_US")};
    ShownProgram program;
    bool isCalled = false;
    program.module.playback = [&isCalled](ostra::TestContext &) {
        isCalled = true;
        return ostra::result::passed;
    };
    program.window.setPrecheck([finding](const QString &, const QString &) { return QList<PrecheckFinding>{finding}; });
    program.window.choose(0, 0);
    runAndPress(program, "host_precheck_run"); // which is not there
    QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), 1, patienceMs);
    const host::RunRecord record = program.session.history().last();
    QVERIFY(!isCalled && !record.wasModuleCalled);
    QCOMPARE(record.code, 3U);
    QCOMPARE(record.reason, host::reasonWords(host::precheckKey(finding.what), {finding.subject}));
    QCOMPARE(program.find<QListWidget>("host_result_messages")->item(0)->text(), host::precheckText(finding));
}

// Once for each reading of the devices, as the playback test itself does.
void TestBeforeAndAfter::warnsOfTheLoudnessBeforeAMicrophoneTest()
{
    ShownProgram program;
    const PromptAnswerer answerer("host_prompt_accept");
    program.window.choose(1, 0);
    for (const qsizetype runs : {1, 2}) {
        program.find<QPushButton>("host_run")->click();
        QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), runs, patienceMs);
        QCOMPARE(answerer.texts().size(), 1);
    }
    QVERIFY(answerer.texts().first().contains(QStringLiteral("100%")));
    program.session.refresh();
    program.find<QPushButton>("host_run")->click();
    QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), 3, patienceMs);
    QCOMPARE(answerer.texts().size(), 2);
}

void TestBeforeAndAfter::runsNothingWhenTheWarningIsDeclined()
{
    ShownProgram program;
    const PromptAnswerer answerer("host_prompt_decline");
    program.window.choose(1, 0);
    program.find<QPushButton>("host_run")->click();
    QTRY_COMPARE_WITH_TIMEOUT(answerer.texts().size(), 1, patienceMs);
    QCoreApplication::processEvents();
    QVERIFY(program.session.history().isEmpty());
    QVERIFY(program.find<QPushButton>("host_run")->isEnabled());
}

void TestBeforeAndAfter::warnsOfTheLoudnessBeforeARunAlone_data()
{
    QTest::addColumn<int>("test");
    QTest::newRow("playback") << 0;
    QTest::newRow("microphone") << 1;
}

// Once for each reading of the devices, as before any other run. The run itself is refused here, where there are no clips.
void TestBeforeAndAfter::warnsOfTheLoudnessBeforeARunAlone()
{
    QFETCH(const int, test);
    ShownProgram program;
    const host::ListeningTools tools(program.window, program.session, program.language, program.folder.path(),
                                     QStringLiteral("Mic"));
    const PromptAnswerer answerer("host_prompt_accept");
    program.window.choose(test, 1);
    for (const qsizetype runs : {1, 2}) {
        program.find<QAction>("host_run_alone")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), runs, patienceMs);
        QCOMPARE(answerer.texts(), QStringList{host::hostText("UNATTENDED_INSTRUCTIONS")});
    }
    QVERIFY(answerer.texts().first().contains(QStringLiteral("100%")));
    QVERIFY(program.session.history().last().isUnattended);
    QCOMPARE(program.session.history().last().device.name, QStringLiteral("Headphones"));
    program.session.refresh();
    program.find<QAction>("host_run_alone")->trigger();
    QTRY_COMPARE_WITH_TIMEOUT(program.session.history().size(), 3, patienceMs);
    QCOMPARE(answerer.texts().size(), 2);
}

void TestBeforeAndAfter::runsNothingAloneWhenTheWarningIsDeclined_data() { warnsOfTheLoudnessBeforeARunAlone_data(); }

void TestBeforeAndAfter::runsNothingAloneWhenTheWarningIsDeclined()
{
    QFETCH(const int, test);
    ShownProgram program;
    const host::ListeningTools tools(program.window, program.session, program.language, program.folder.path(),
                                     QStringLiteral("Mic"));
    const PromptAnswerer answerer("host_prompt_decline");
    program.window.choose(test, 0);
    program.find<QAction>("host_run_alone")->trigger();
    QTRY_COMPARE_WITH_TIMEOUT(answerer.texts().size(), 1, patienceMs);
    QCoreApplication::processEvents();
    QVERIFY(program.session.history().isEmpty());
    QVERIFY(program.find<QAction>("host_run_alone")->isEnabled());
}

void TestBeforeAndAfter::namesTheWaveAfterTheTest()
{
    ShownProgram program;
    const QList<double> playback(20, 0.1);
    const auto *words = program.find<QLabel>("host_result_wave_text");
    host::RunRecord record;
    record.testLetter = QStringLiteral("p");
    record.digits = {host::HeardDigit()};
    record.digits[0].measured = host::DigitMeasurement();
    record.digits[0].measured->lowest = record.digits[0].measured->highest = playback;
    program.window.showWaveOf(record, playback);
    QVERIFY2(words->text().startsWith(QStringLiteral("The digits as they were heard: ")), qPrintable(words->text()));
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    QTRY_VERIFY_WITH_TIMEOUT(words->text().startsWith(QStringLiteral("Die Ziffern, ")), patienceMs);
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    record.digits.clear(); // not one was heard
    program.window.showWaveOf(record, playback);
    QVERIFY(!words->isVisible());
    record.testLetter = QStringLiteral("m");
    program.window.showWaveOf(record, playback);
    QVERIFY2(words->text().startsWith(QStringLiteral("Playback of the recording: ")), qPrintable(words->text()));
    record.wasModuleCalled = false;
    program.window.showWaveOf(record, playback);
    QVERIFY(!words->isVisible());
}

void TestBeforeAndAfter::blamesNoOtherDeviceWhenTheChosenOneGoes()
{
    ShownProgram program;
    program.window.setPrecheck([&program](const QString &, const QString &) {
        QTimer::singleShot(0, &program.session, [&program] { // while the findings are shown
            program.module.names = {"Headphones"};
            program.session.refresh();
        });
        return QList<PrecheckFinding>{{Precheck::clipsMissing, QStringLiteral("en_US")}};
    });
    program.window.choose(0, 0);
    runAndPress(program, "host_precheck_run");
    QCoreApplication::processEvents();
    QVERIFY(program.session.history().isEmpty());
}

void TestBeforeAndAfter::savesTheReportInEachFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("part");
    QTest::newRow("json") << QStringLiteral("r\u8033.json") << QByteArray("\"nameKey\": \"AUDIO_PLAYBACK_TEST\"");
    QTest::newRow("html") << QStringLiteral("r.html") << QByteArray("<!DOCTYPE html>");
    QTest::newRow("xml") << QStringLiteral("r.xml") << QByteArray("<testsuites>");
    QTest::newRow("txt") << QStringLiteral("r.txt") << QByteArray("(AUDIO_PLAYBACK_TEST): passed");
}

void TestBeforeAndAfter::savesTheReportInEachFormat()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, part);
    ShownProgram program;
    QVERIFY(program.session.run(0, 1, QStringLiteral("en_US")));
    const QString file = program.folder.filePath(name);
    QVERIFY(program.window.saveReport(file));
    QVERIFY2(contentOf(file).contains(part), contentOf(file).constData());
    QVERIFY(program.find<QPlainTextEdit>("host_log")->toPlainText().contains(QDir::toNativeSeparators(file)));
}

void TestBeforeAndAfter::tellsWhyItCannotSave()
{
    ShownProgram program;
    QVERIFY(!program.window.saveReport(program.folder.filePath(QStringLiteral("r.json")))); // nothing ran
    QVERIFY(program.session.run(0, 0, QStringLiteral("en_US")));
    QVERIFY(!program.window.saveReport(program.folder.filePath(QStringLiteral("r.pdf"))));
    QVERIFY(program.find<QPlainTextEdit>("host_log")->toPlainText().contains(QStringLiteral("r.pdf")));
    QVERIFY(!QFile::exists(program.folder.filePath(QStringLiteral("r.pdf"))));
}

void TestBeforeAndAfter::copiesTheReport()
{
    ShownProgram program;
    QVERIFY(program.session.run(0, 1, QStringLiteral("en_US")));
    QApplication::clipboard()->clear();
    actionOf(program.window, copyKeys)->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(QApplication::clipboard()->text().contains(QStringLiteral("Headphones")), patienceMs);
}

void TestBeforeAndAfter::offersNoReportBeforeARun()
{
    ShownProgram program;
    for (const QKeySequence &keys : {saveKeys, copyKeys}) {
        QAction *action = actionOf(program.window, keys);
        QVERIFY(action != nullptr);
        QVERIFY(!action->isEnabled());
        QVERIFY(!action->text().contains(u'_'));
    }
    QVERIFY(program.session.run(0, 1, QStringLiteral("en_US")));
    for (const QKeySequence &keys : {saveKeys, copyKeys})
        QVERIFY(actionOf(program.window, keys)->isEnabled());
}

void TestBeforeAndAfter::showsTheWaveOfTheDigits()
{
    host::HeardDigit digit;
    QCOMPARE(host::waveOf({digit}), QList<double>());
    digit.measured.emplace();
    digit.measured->lowest = {-0.1, -0.4, -0.2, -0.3, -0.05};
    digit.measured->highest = {0.1, 0.2, 0.5, 0.3, 0.6};
    QCOMPARE(host::waveOf({digit, digit}), (QList<double>{-0.4, 0.5, -0.05, 0.6, -0.4, 0.5, -0.05, 0.6}));
}

QTEST_MAIN(TestBeforeAndAfter)
#include "tst_before_and_after.moc"

// SPDX-License-Identifier: Apache-2.0
#include "host/gui/main_window.h"

#include "autotests/host/gui/prompt_answerer.h"
#include "autotests/host/gui/shown_program.h"
#include "host/gui/key_text.h"
#include "host/gui/result_panel.h"
#include "host/translations/translators.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

constexpr int patienceMilliseconds = 10'000;

/// With what its window tells.
struct Program : ShownProgram {
    using ShownProgram::ShownProgram;

    QAction *runAction()
    {
        const auto menus = window.menuBar()->actions();
        return menus[1]->menu()->actions().first();
    }
    QString log() { return find<QPlainTextEdit>("host_log")->toPlainText(); }
    QString verdict() { return find<QLabel>("host_result_verdict")->text(); }
    QStringList messages()
    {
        QStringList texts;
        const auto *list = find<QListWidget>("host_result_messages");
        for (int row = 0; row < list->count(); ++row)
            texts.append(list->item(row)->text());
        return texts;
    }
};

} // namespace

class TestMainWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(host::installTranslators(QStringLiteral("en_US"))); }
    void init() { before_ = QDir::currentPath(); }
    void cleanup() { QVERIFY(QDir::setCurrent(before_)); }
    void listsDevicesWithTheirProperties();
    void keepsTheChosenDeviceByName();
    void choosesNothingWhenTheChosenDeviceIsGone();
    void cannotRunWithoutADevice();
    void tellsASilentSoundServerFromAMissingDevice();
    void showsTheStateOfEachDevice();
    void runsTheChosenTest();
    void neverShowsAPassThatIsNone_data();
    void neverShowsAPassThatIsNone();
    void showsMessagesAsSentencesWithTheirLevel();
    void choosesTheDeviceAgainWhenItIsBack();
    void keepsWhatIsChosenAndPressedOverALateRefresh();
    void logsTheRun();
    void namesTheMicrophone();
    void writesTimesInTheLanguageInForce();
    void keepsTheHistoryNewestFirst();
    void showsProgress();
    void changesTheLanguageAndReadsTheDevicesAgain();
    void cannotChangeAForeignLanguage();
    void closesAfterTheRun();
    void namesEveryControl();
    void hasUniqueMnemonics();
    void warnsOfAMutedDevice();
    void tellsWhyNobodyCanRunAlone();

private:
    QString before_;
};

void TestMainWindow::listsDevicesWithTheirProperties()
{
    Program program;
    const auto *table = program.find<QTableWidget>("host_devices");
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->columnCount(), 6);
    QCOMPARE(table->item(1, 0)->text(), QStringLiteral("Headphones"));
    QCOMPARE(table->item(1, 1)->text(), QStringLiteral("2"));
    QCOMPARE(table->item(1, 2)->text(), QStringLiteral("48000"));
    QCOMPARE(table->item(1, 3)->text(), QStringLiteral("fake"));
    QCOMPARE(table->item(1, 4)->text(), host::hostText("VALUE_NOT_KNOWN"));
    QCOMPARE(table->horizontalHeaderItem(2)->text(), host::shownText(QStringLiteral("SAMPLE_RATE")));
    QVERIFY(!table->horizontalHeaderItem(2)->text().contains(u'_'));
}

void TestMainWindow::keepsTheChosenDeviceByName()
{
    Program program;
    program.window.choose(0, 1);
    program.module.names = {"USB", "Speakers", "Line", "Headphones"};
    program.session.refresh();
    const auto *table = program.find<QTableWidget>("host_devices");
    QCOMPARE(table->currentRow(), 3);
    QVERIFY(table->item(3, 0)->isSelected());
}

void TestMainWindow::choosesNothingWhenTheChosenDeviceIsGone()
{
    Program program;
    program.window.choose(0, 1);
    program.module.names = {"Speakers"};
    program.session.refresh();
    QVERIFY(program.find<QTableWidget>("host_devices")->selectedItems().isEmpty());
    QVERIFY(!program.find<QPushButton>("host_run")->isEnabled());
    QVERIFY(program.log().contains(host::hostText("LOG_DEVICE_GONE").arg(QStringLiteral("Headphones"))));
}

void TestMainWindow::cannotRunWithoutADevice()
{
    Program program;
    QVERIFY(program.find<QPushButton>("host_run")->isEnabled());
    program.module.names.clear();
    program.session.refresh();
    QVERIFY(!program.find<QPushButton>("host_run")->isEnabled());
    QVERIFY(!program.runAction()->isEnabled());
    program.module.names = {"Speakers"};
    program.session.refresh();
    QVERIFY(program.runAction()->isEnabled());
    program.module.names.clear();
    program.session.refresh();
    QCOMPARE(program.find<QLabel>("host_devices_text")->text(), host::hostText("NO_DEVICES"));
}

void TestMainWindow::tellsASilentSoundServerFromAMissingDevice()
{
    host::SoundState state;
    Program program;
    program.window.setSoundState([&state] { return state; });
    program.module.names.clear();
    program.session.refresh();
    const auto *text = program.find<QLabel>("host_devices_text");
    QCOMPARE(text->text(), host::hostText("SOUND_SERVER_SILENT"));
    QVERIFY(program.log().contains(host::hostText("SOUND_SERVER_SILENT")));
    state.isAnswering = true;
    program.session.refresh();
    QCOMPARE(text->text(), host::hostText("NO_DEVICES"));
}

void TestMainWindow::showsTheStateOfEachDevice()
{
    Program program;
    const auto *table = program.find<QTableWidget>("host_devices");
    const int column = table->columnCount() - 1;
    const auto shown = [&](int row) { return table->item(row, column)->text(); };
    QCOMPARE(table->horizontalHeaderItem(column)->text(), host::hostText("DEVICE_STATE"));
    QCOMPARE(shown(0), host::hostText("VALUE_NOT_KNOWN"));
    host::SoundState state{true, {{QStringLiteral("Headphones"), QStringLiteral("b"), 37, true, true}}, {}};
    state.virtualDevices.names = QStringList{QStringLiteral("Speakers")};
    program.window.setSoundState([&state] { return state; });
    program.session.refresh();
    const QString loudness = host::hostText("STATE_VOLUME").arg(37);
    QCOMPARE(shown(0), host::hostText("STATE_VIRTUAL"));
    QCOMPARE(
        shown(1),
        QStringList({loudness, host::hostText("STATE_MUTED"), host::hostText("STATE_DEFAULT")}).join(QStringLiteral(", ")));
    state.endpoints[0].isMuted = false; // a run changes what there is, and gives it back
    program.window.choose(0, 1);
    program.session.run(0, 1, QStringLiteral("en_US"));
    QCOMPARE(shown(1), QStringList({loudness, host::hostText("STATE_DEFAULT")}).join(QStringLiteral(", ")));
}

void TestMainWindow::runsTheChosenTest()
{
    Program program;
    bool wasRun = false;
    bool couldStop = false;
    bool couldRun = true;
    program.module.microphone = [&](ostra::TestContext &) {
        wasRun = true;
        couldStop = program.find<QPushButton>("host_stop")->isEnabled();
        couldRun = program.find<QPushButton>("host_run")->isEnabled();
        return ostra::result::passed;
    };
    program.find<QListWidget>("host_tests")->setCurrentRow(1);
    const PromptAnswerer answerer("host_prompt_accept");
    QTest::mouseClick(program.find<QPushButton>("host_run"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(wasRun, patienceMilliseconds);
    QVERIFY(couldStop && !couldRun);
    QVERIFY(!program.find<QPushButton>("host_stop")->isEnabled());
    QCOMPARE(program.verdict(), host::hostText("VERDICT_PASSED"));
}

void TestMainWindow::neverShowsAPassThatIsNone_data()
{
    QTest::addColumn<FakeModule::Body>("body");
    QTest::addColumn<bool>("isStopped");
    QTest::newRow("error message") << FakeModule::Body([](ostra::TestContext &context) {
        context.messages()->addMessage("KEY", 2, 0);
        return 0U;
    }) << false;
    QTest::newRow("stopped") << FakeModule::Body([](ostra::TestContext &) { return 0U; }) << true;
    for (const std::uint32_t code : {1U, 2U, 3U, 4U, 6U, 7U})
        QTest::addRow("code %u", code) << FakeModule::Body([code](ostra::TestContext &) { return code; }) << false;
}

void TestMainWindow::neverShowsAPassThatIsNone()
{
    QFETCH(const FakeModule::Body, body);
    QFETCH(const bool, isStopped);
    Program program;
    program.module.playback = [&](ostra::TestContext &context) {
        if (isStopped)
            program.session.stop();
        return body(context);
    };
    program.session.run(0, 0, program.language.code());
    QVERIFY(program.verdict() != host::hostText("VERDICT_PASSED"));
    QVERIFY(program.find<QTableWidget>("host_history")->item(0, 4)->text() != host::hostText("VERDICT_PASSED"));
    QVERIFY(program.verdict() != host::hostText("NO_RESULT_YET"));
}

void TestMainWindow::showsMessagesAsSentencesWithTheirLevel()
{
    Program program;
    program.module.playback = [](ostra::TestContext &context) {
        context.messages()->addMessage("FIRST_THING._|SECOND_THING.", 2, 0);
        context.messages()->addMessage("POSSIBLE_DEFECTS: LEFT_EAR, RIGHT_EAR", 0, 0);
        return ostra::result::failed;
    };
    program.session.run(0, 0, program.language.code());
    const QString error = host::hostText("LEVEL_ERROR") + QStringLiteral(": ");
    const QString note = host::hostText("LEVEL_NOTE") + QStringLiteral(": ");
    const QStringList expected{error + QStringLiteral("First thing."), error + QStringLiteral("Second thing."),
                               note + QStringLiteral("Possible defects: Left ear, Right ear")};
    QCOMPARE(program.messages(), expected);
    QVERIFY(!program.find<QListWidget>("host_result_messages")->item(0)->icon().isNull());
}

// Unplugged and back again, or a sound server that was started anew: never another device in its place.
void TestMainWindow::choosesTheDeviceAgainWhenItIsBack()
{
    Program program;
    program.window.choose(0, 1);
    const auto *table = program.find<QTableWidget>("host_devices");
    for (const std::vector<std::string> &gone : {std::vector<std::string>{"Speakers"}, {}, {"Speakers", "USB"}}) {
        program.module.names = gone;
        program.session.refresh();
        QVERIFY(table->selectedItems().isEmpty());
    }
    program.module.names = {"USB", "Headphones", "Speakers"};
    program.session.refresh();
    QCOMPARE(table->currentRow(), 1);
    QVERIFY(program.find<QPushButton>("host_run")->isEnabled());
}

// The list is read anew some seconds after the start where the sound server came up late.
void TestMainWindow::keepsWhatIsChosenAndPressedOverALateRefresh()
{
    Program program;
    bool wasRun = false;
    program.module.microphone = [&wasRun](ostra::TestContext &context) {
        wasRun = context.component()->name() == "Headphones";
        return ostra::result::passed;
    };
    program.window.choose(1, 1);
    QVERIFY(QTest::qWaitForWindowActive(&program.window));
    auto *run = program.find<QPushButton>("host_run");
    const PromptAnswerer answerer("host_prompt_accept");
    QTest::mousePress(run, Qt::LeftButton);
    program.session.refresh();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(run));
    QTest::mouseRelease(run, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(wasRun, patienceMilliseconds);
    QCOMPARE(program.find<QListWidget>("host_tests")->currentRow(), 1);
}

// As the real dialog: the choice, and then the page that records.
void TestMainWindow::namesTheMicrophone()
{
    Program program;
    program.module.microphone = [](ostra::TestContext &) {
        QWidget dialog;
        for (const char *name : {"Built-in", "Desk Mic"}) {
            auto *choice = new QRadioButton(QLatin1String(name), &dialog);
            choice->setObjectName(QStringLiteral("microphone_test_radio_button"));
            choice->setChecked(true);
        }
        auto *record = new QPushButton(&dialog);
        record->setObjectName(QStringLiteral("microphone_test_record_button"));
        record->hide();
        dialog.show();
        record->show();
        return ostra::result::passed;
    };
    QCOMPARE(program.session.run(1, 0, program.language.code())->microphone, QStringLiteral("Desk Mic"));
    QCOMPARE(program.find<QTableWidget>("host_history")->item(0, 3)->text(), QStringLiteral("Desk Mic"));
    QVERIFY(program.find<QLabel>("host_result_subject")->text().contains(QStringLiteral("Desk Mic")));
    QVERIFY(program.log().contains(QStringLiteral("Desk Mic")));
    QCOMPARE(program.session.run(0, 0, program.language.code())->microphone, QString());
}

void TestMainWindow::writesTimesInTheLanguageInForce()
{
    Program program;
    program.session.run(0, 0, QStringLiteral("en_US"));
    const auto *history = program.find<QTableWidget>("host_history");
    const QTime time = program.session.history().first().startedUtc.toLocalTime().time();
    program.window.changeLanguage(QStringLiteral("de_DE"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(history->item(0, 0)->text(), QLocale(QStringLiteral("de_DE")).toString(time, QLocale::LongFormat));
    program.window.changeLanguage(QStringLiteral("en_US"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(history->item(0, 0)->text(), QLocale(QStringLiteral("en_US")).toString(time, QLocale::LongFormat));
}

void TestMainWindow::logsTheRun()
{
    Program program;
    program.module.playback = [](ostra::TestContext &context) {
        context.reporter()->report(0, "");
        context.reporter()->report(100, "SOME_KEY");
        context.messages()->addMessage("OTHER_KEY", 0, 0);
        return ostra::result::notCompleted;
    };
    program.session.run(0, 0, program.language.code());
    const QString log = program.log();
    QVERIFY(log.contains(host::hostText("LOG_PROGRESS").arg(100) + QStringLiteral(" – Some key")));
    QVERIFY(log.contains(host::hostText("LEVEL_NOTE") + QStringLiteral(": Other key")));
    QVERIFY(log.contains(QStringLiteral("Speakers")));
    QVERIFY(log.indexOf(QStringLiteral("Some key")) < log.indexOf(QStringLiteral("Other key")));
}

void TestMainWindow::keepsTheHistoryNewestFirst()
{
    Program program;
    program.session.run(0, 0, QStringLiteral("en_US"));
    program.session.run(1, 1, QStringLiteral("de_DE"));
    const auto *history = program.find<QTableWidget>("host_history");
    QCOMPARE(history->rowCount(), 2);
    QCOMPARE(history->item(0, 2)->text(), QStringLiteral("Headphones"));
    QCOMPARE(history->item(1, 2)->text(), QStringLiteral("Speakers"));
    QCOMPARE(history->item(0, 5)->text(), QStringLiteral("Deutsch"));
}

void TestMainWindow::showsProgress()
{
    Program program;
    int shown = -1;
    bool isShown = false;
    program.module.playback = [&](ostra::TestContext &context) {
        context.reporter()->report(40, "");
        shown = program.find<QProgressBar>("host_progress")->value();
        isShown = program.find<QProgressBar>("host_progress")->isVisible();
        return ostra::result::passed;
    };
    QVERIFY(!program.find<QProgressBar>("host_progress")->isVisible());
    program.session.run(0, 0, program.language.code());
    QCOMPARE(shown, 40);
    QVERIFY(isShown);
    QVERIFY(!program.find<QProgressBar>("host_progress")->isVisible()); // where it would go on telling of 40 %
}

void TestMainWindow::changesTheLanguageAndReadsTheDevicesAgain()
{
    Program program;
    const int before = program.module.refreshCount;
    auto *entry = program.window.findChild<QAction *>(QStringLiteral("host_language_ja_JP"));
    entry->trigger();
    QCOMPARE(program.language.code(), QStringLiteral("ja_JP"));
    QCOMPARE(program.module.refreshCount, before + 1);
    QVERIFY(entry->isChecked());
    program.module.playback = [&](ostra::TestContext &) {
        return entry->isEnabled() ? ostra::result::failed : ostra::result::passed; // not while a test runs
    };
    QCOMPARE(program.session.run(0, 0, program.language.code())->code, 0U);
}

void TestMainWindow::cannotChangeAForeignLanguage()
{
    const QTemporaryDir folder;
    host::LanguageSetting language;
    QVERIFY(language.useForeignFolder(folder.path()));
    FakeModule module;
    host::DialogPrompter prompter;
    host::TestSession session(module.interface(), prompter, folder.path());
    const host::MainWindow window(session, language, {}, false);
    QVERIFY(!window.findChild<QAction *>(QStringLiteral("host_language_de_DE"))->isEnabled());
}

void TestMainWindow::closesAfterTheRun()
{
    Program program;
    bool stayedOpen = false;
    bool wasStopped = false;
    program.module.playback = [&](ostra::TestContext &context) {
        stayedOpen = !program.window.close();
        wasStopped = context.continueOnOutcome();
        return ostra::result::passed;
    };
    program.session.run(0, 0, program.language.code());
    QVERIFY(stayedOpen && wasStopped);
    QVERIFY(program.window.close());
}

void TestMainWindow::namesEveryControl()
{
    Program program(true);
    const auto widgets = program.window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isOwn = widget->objectName().startsWith(QStringLiteral("host_"));
        if (!isOwn || widget->focusPolicy() == Qt::NoFocus)
            continue;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(accessible != nullptr);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(!accessible->text(QAccessible::Name).contains(u'_'), qPrintable(widget->objectName()));
    }
}

void TestMainWindow::hasUniqueMnemonics()
{
    Program program(true);
    QStringList mnemonics;
    const auto menus = program.window.menuBar()->actions();
    for (const QAction *menu : menus)
        mnemonics.append(QKeySequence::mnemonic(menu->text()).toString());
    for (const char *button : {"host_refresh", "host_run", "host_stop"})
        mnemonics.append(QKeySequence::mnemonic(program.find<QPushButton>(button)->text()).toString());
    QCOMPARE(mnemonics.size(), 8);
    QVERIFY(!mnemonics.contains(QString()));
    QCOMPARE(mnemonics.removeDuplicates(), 0);
}

void TestMainWindow::warnsOfAMutedDevice()
{
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    host::RunRecord record;
    record.device.name = QStringLiteral("Speakers");
    record.code = record.moduleCode = 0;
    record.deviceVolume = {host::EndpointState{0, true}, host::EndpointState{80, false}};
    host::ResultPanel panel;
    panel.showRun(record);
    const auto *list = panel.findChild<QListWidget *>(QStringLiteral("host_result_messages"));
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->item(0)->text(), QStringLiteral("\u201CSpeakers\u201D was muted before the run."));
    QCOMPARE(list->item(1)->text(), QStringLiteral("The volume of \u201CSpeakers\u201D was 0 before the run."));
    Program program;
    emit program.session.runEnded(record);
    QVERIFY2(program.log().contains(list->item(0)->text()), qPrintable(program.log()));
    QCOMPARE(program.messages().size(), 2);
}

void TestMainWindow::tellsWhyNobodyCanRunAlone()
{
    Program program;
    QMenu *menu = program.window.menuBar()->actions()[1]->menu();
    const QAction *entry = menu->actions()[1];
    QVERIFY(!entry->isEnabled() && menu->toolTipsVisible());
    QCOMPARE(entry->toolTip(), host::hostText("RUN_UNATTENDED_NO_SOURCE"));
    QCOMPARE(entry->statusTip(), entry->toolTip());
    program.window.setListening(true);
    QVERIFY(entry->isEnabled());
    QVERIFY(entry->toolTip() != host::hostText("RUN_UNATTENDED_NO_SOURCE"));
}

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"

// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/gui/dialog_steps.h"
#include "autotests/host/gui/shown_program.h"
#include "autotests/host/operator/listener_script.h"
#include "host/gui/channel_dialog.h"
#include "host/gui/key_text.h"
#include "host/gui/listening_tools.h"
#include "host/gui/source_dialog.h"
#include "host/gui/source_setting.h"
#include "host/translations/translators.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLockFile>
#include <QObject>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <chrono>

using host::ChannelDialog;
using host::ChannelMapping;
using host::SourceDialog;
using host::SourceSetting;
using std::chrono::milliseconds;

namespace {

constexpr int limitMs = 30'000;

host::ChannelListening listening(const QString &device = QStringLiteral("Speakers"), const QString &source = {})
{
    return {device, source, QStringLiteral("/clips"), QStringLiteral("en_US")};
}

struct Channels : ChannelDialog {
    explicit Channels(const host::ChannelListening &what = listening()) : ChannelDialog(what) { show(); }

    template <typename Widget>
    Widget *find(const QString &name)
    {
        return findChild<Widget *>(QStringLiteral("host_channels_") + name);
    }
    QString result() { return find<QLabel>(QStringLiteral("result"))->text(); }
    void play(const QString &which)
    {
        auto *button = find<QPushButton>(which + QStringLiteral("_play"));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!button->isEnabled()); // one at a time
        QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled(), limitMs);
    }
    void answer(const QString &which, const QString &side) { find<QRadioButton>(which + u'_' + side)->click(); }
};

// A button can be pressed once it is enabled: the answers after the digit was played, and the next digit likewise.
DialogSteps<ChannelDialog>::Step pressing(const char *name)
{
    return [name](ChannelDialog &dialog) {
        auto *button = dialog.findChild<QAbstractButton *>(QStringLiteral("host_channels_") + QLatin1String(name));
        if (!button->isEnabled())
            return false;
        button->click();
        return true;
    };
}

QString beside(const char *name) { return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name); }

QString spoken()
{
    QFile file(beside("speaker_arguments"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void sayTwoSources()
{
    ListenerScript script(false);
    script.say(R"({"event":"source","name":"Mic"})");
    script.say("{\"event\":\"source\",\"name\":\"Kopfh\xC3\xB6rer <b>\"}");
    script.end(0);
}

} // namespace

// What the window asks a person around listening. The listener and the speaker are stand-ins beside this program.
class TestListeningDialogs : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(host::installTranslators(QStringLiteral("en_US"))); }
    void asksOnlyForWhatWasPlayed();
    void playsEachDigitOnItsSideAlone();
    void saysPlainlyWhatThePersonHeard_data();
    void saysPlainlyWhatThePersonHeard();
    void changesItsMindWithThePerson();
    void speaksASilentDigitOnceMore_data();
    void speaksASilentDigitOnceMore();
    void tellsWhyADigitCouldNotBePlayed();
    void freesItsButtonsWhenNothingAnswers_data();
    void freesItsButtonsWhenNothingAnswers();
    void forgetsTheSideThatCouldNotBePlayedAgain();
    void measuresOnlyWithASource();
    void saysWhyItCouldNotMeasure();
    void saysSoInTheLanguageInForce();
    void freesItsButtonsWhenTheSourceCannotBeListenedTo();
    void isWorkedByTheKeyboard();
    void keepsTheSource();
    void doesNotKeepASourceThatIsForOnce();
    void offersTheSources();
    void keepsASourceThatIsGone();
    void offersRunsAloneOnlyWithASource();
    void notesTheCheckForLaterRuns();
    void playsNothingDuringAnotherHostsRun();
};

void TestListeningDialogs::asksOnlyForWhatWasPlayed()
{
    Channels dialog;
    const QList<QRadioButton *> answers = dialog.findChildren<QRadioButton *>();
    QCOMPARE(answers.size(), 8);
    for (const QRadioButton *answer : answers)
        QVERIFY(!answer->isEnabled());
    dialog.play(QStringLiteral("first"));
    for (const QRadioButton *answer : answers)
        QCOMPARE(answer->isEnabled(), answer->objectName().contains(QStringLiteral("first")));
    QCOMPARE(dialog.result(), host::hostText("CHANNELS_OPEN"));
    QVERIFY(!dialog.check());
}

void TestListeningDialogs::playsEachDigitOnItsSideAlone()
{
    Channels dialog;
    dialog.play(QStringLiteral("first"));
    const QString first = spoken();
    QVERIFY2(first.startsWith(QStringLiteral("--device\nSpeakers\n--play\n/clips/en_US/")), qPrintable(first));
    QVERIFY(first.endsWith(QStringLiteral("_en_US.wav\n--channel\nleft")));
    dialog.play(QStringLiteral("second"));
    QVERIFY(spoken().endsWith(QStringLiteral("\n--channel\nright")));
    QVERIFY(spoken().section(u'\n', 3, 3) != first.section(u'\n', 3, 3));
    dialog.play(QStringLiteral("first")); // once more
    QCOMPARE(spoken(), first);
}

void TestListeningDialogs::saysPlainlyWhatThePersonHeard_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QByteArray>("key");
    const auto row = [](const char *first, const char *second, const char *key) {
        QTest::newRow(key) << QString::fromLatin1(first) << QString::fromLatin1(second) << QByteArray(key);
    };
    row("left", "right", "CHANNELS_STRAIGHT");
    row("right", "left", "CHANNELS_SWAPPED");
    row("both", "both", "CHANNELS_MIXED");
    row("nothing", "nothing", "CHANNELS_UNHEARD");
}

void TestListeningDialogs::saysPlainlyWhatThePersonHeard()
{
    QFETCH(const QString, first);
    QFETCH(const QString, second);
    QFETCH(const QByteArray, key);
    Channels dialog;
    dialog.play(QStringLiteral("first"));
    dialog.answer(QStringLiteral("first"), first);
    dialog.play(QStringLiteral("second"));
    dialog.answer(QStringLiteral("second"), second);
    QCOMPARE(dialog.result(), host::hostText(key.constData()));
    QVERIFY(dialog.check() && dialog.check()->source.isEmpty());
}

void TestListeningDialogs::changesItsMindWithThePerson()
{
    Channels dialog;
    for (const char *which : {"first", "second"}) {
        dialog.play(QLatin1String(which));
        dialog.answer(QLatin1String(which), QStringLiteral("left"));
    }
    QCOMPARE(dialog.check()->mapping, ChannelMapping::mixed);
    dialog.answer(QStringLiteral("second"), QStringLiteral("right"));
    QCOMPARE(dialog.check()->mapping, ChannelMapping::straight);
}

void TestListeningDialogs::speaksASilentDigitOnceMore_data()
{
    QTest::addColumn<QString>("silent");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("heardAtLast");
    QTest::addColumn<ChannelMapping>("mapping");
    const auto row = [](const char *silent, const char *other, const char *heardAtLast, ChannelMapping mapping) {
        QTest::addRow("%s, %s at last", silent, heardAtLast)
            << QString::fromLatin1(silent) << QString::fromLatin1(other) << QString::fromLatin1(heardAtLast) << mapping;
    };
    row("first", "right", "nothing", ChannelMapping::leftSilent);
    row("first", "right", "left", ChannelMapping::straight);
    row("first", "left", "right", ChannelMapping::swapped);
    row("first", "right", "both", ChannelMapping::mixed);
    row("second", "left", "nothing", ChannelMapping::rightSilent);
    row("second", "left", "right", ChannelMapping::straight);
}

void TestListeningDialogs::speaksASilentDigitOnceMore()
{
    QFETCH(const QString, silent);
    QFETCH(const QString, other);
    QFETCH(const QString, heardAtLast);
    QFETCH(const ChannelMapping, mapping);
    const bool isFirst = silent == QLatin1String("first");
    Channels dialog;
    dialog.play(QStringLiteral("first"));
    dialog.answer(QStringLiteral("first"), isFirst ? QStringLiteral("nothing") : other);
    dialog.play(QStringLiteral("second"));
    dialog.answer(QStringLiteral("second"), isFirst ? other : QStringLiteral("nothing"));
    QVERIFY(!dialog.check());
    QCOMPARE(dialog.result(), host::hostText("CHANNELS_ONCE_MORE"));
    auto *again = dialog.find<QRadioButton>(silent + QStringLiteral("_nothing"));
    QVERIFY(!again->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(again->isEnabled(), limitMs);
    QVERIFY(!again->isChecked());
    QVERIFY(spoken().endsWith(isFirst ? QStringLiteral("left") : QStringLiteral("right")));
    QVERIFY(!dialog.check());
    dialog.answer(silent, heardAtLast);
    QVERIFY(dialog.check());
    QCOMPARE(dialog.check()->mapping, mapping);
}

void TestListeningDialogs::freesItsButtonsWhenNothingAnswers_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<milliseconds>("opening");
    QTest::addColumn<milliseconds>("speech");
    QTest::newRow("never opens") << "Frozen" << milliseconds(2000) << host::ChannelLimits().speech;
    QTest::newRow("never plays") << "Slow" << host::ChannelLimits().opening << milliseconds(200);
}

void TestListeningDialogs::freesItsButtonsWhenNothingAnswers()
{
    QFETCH(const milliseconds, opening);
    QFETCH(const milliseconds, speech);
    QFETCH(const QString, device);
    host::ChannelListening what = listening(device);
    what.limits.opening = opening;
    what.limits.speech = speech;
    Channels dialog(what);
    dialog.play(QStringLiteral("first"));
    QCOMPARE(dialog.result(), host::hostText("CHANNELS_STALLED"));
    QVERIFY(dialog.find<QPushButton>(QStringLiteral("second_play"))->isEnabled());
    for (const QRadioButton *answer : dialog.findChildren<QRadioButton *>())
        QVERIFY(!answer->isEnabled());
    QVERIFY(!dialog.check());
    QVERIFY(QLockFile(beside("speaker_lock")).tryLock(limitMs)); // it is not there any more
}

void TestListeningDialogs::forgetsTheSideThatCouldNotBePlayedAgain()
{
    host::ChannelListening what = listening();
    what.limits.opening = milliseconds(5000);
    Channels dialog(what);
    dialog.play(QStringLiteral("first"));
    dialog.answer(QStringLiteral("first"), QStringLiteral("left"));
    dialog.play(QStringLiteral("second"));
    dialog.answer(QStringLiteral("second"), QStringLiteral("right"));
    QCOMPARE(dialog.check()->mapping, ChannelMapping::straight);
    QFile frozen(beside("speaker_frozen"));
    QVERIFY(frozen.open(QIODevice::WriteOnly));
    frozen.close();
    dialog.play(QStringLiteral("first"));
    QVERIFY(frozen.remove());
    QVERIFY(!dialog.check());
    QCOMPARE(dialog.result(), host::hostText("CHANNELS_STALLED"));
    QVERIFY(!dialog.find<QRadioButton>(QStringLiteral("first_left"))->isChecked());
    QVERIFY(dialog.find<QRadioButton>(QStringLiteral("second_right"))->isChecked()); // of which nothing new is known
    dialog.play(QStringLiteral("first"));
    dialog.answer(QStringLiteral("first"), QStringLiteral("right"));
    QCOMPARE(dialog.check()->mapping, ChannelMapping::mixed);
}

void TestListeningDialogs::tellsWhyADigitCouldNotBePlayed()
{
    Channels dialog(listening(QStringLiteral("Broken")));
    dialog.play(QStringLiteral("first"));
    QVERIFY2(dialog.result().contains(QStringLiteral("'Broken' cannot be opened")), qPrintable(dialog.result()));
    for (const QRadioButton *answer : dialog.findChildren<QRadioButton *>())
        QVERIFY(!answer->isEnabled());
}

void TestListeningDialogs::measuresOnlyWithASource()
{
    Channels without;
    QVERIFY(!without.find<QPushButton>(QStringLiteral("measure"))->isVisible());
    Channels with(listening(QStringLiteral("Speakers"), QStringLiteral("Mic & co")));
    QVERIFY(with.find<QPushButton>(QStringLiteral("measure"))->isVisible());
    QVERIFY(with.find<QPushButton>(QStringLiteral("measure"))->text().contains(QStringLiteral("&& ")));
}

void TestListeningDialogs::saysWhyItCouldNotMeasure()
{
    ListenerScript script(false);
    script.end(3);
    Channels dialog(listening(QStringLiteral("Speakers"), QStringLiteral("Mic")));
    QTest::mouseClick(dialog.find<QPushButton>(QStringLiteral("measure")), Qt::LeftButton);
    QCOMPARE(dialog.result(), host::hostText("CHANNELS_MEASURING").arg(QStringLiteral("Mic")));
    QTRY_VERIFY_WITH_TIMEOUT(dialog.check().has_value(), limitMs);
    QCOMPARE(dialog.check()->mapping, ChannelMapping::notMeasurable);
    QCOMPARE(dialog.result(), host::hostText("CHANNELS_NOT_KNOWN").arg(host::shownReason(dialog.check()->reason)));
    QVERIFY(dialog.find<QPushButton>(QStringLiteral("measure"))->isEnabled());
}

void TestListeningDialogs::saysSoInTheLanguageInForce()
{
    host::ChannelCheck check;
    check.source = QStringLiteral("Mic");
    check.reason = QStringLiteral("the source has one channel only");
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    const QString words = host::channelWords(check);
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    QCOMPARE(words, QStringLiteral("Links und rechts konnten nicht gemessen werden: Die Aufnahmequelle hat nur einen Kanal."));
}

void TestListeningDialogs::freesItsButtonsWhenTheSourceCannotBeListenedTo()
{
    const ListenerScript script(false); // which never says that it is ready
    host::ChannelListening what = listening(QStringLiteral("Speakers"), QStringLiteral("Mic"));
    what.limits.opening = milliseconds(200);
    Channels dialog(what);
    auto *measure = dialog.find<QPushButton>(QStringLiteral("measure"));
    QTest::mouseClick(measure, Qt::LeftButton);
    QVERIFY(!measure->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(measure->isEnabled(), limitMs);
    QVERIFY(dialog.find<QPushButton>(QStringLiteral("first_play"))->isEnabled());
    QCOMPARE(dialog.check()->mapping, ChannelMapping::notMeasurable);
    QCOMPARE(
        dialog.result(),
        host::hostText("CHANNELS_NOT_KNOWN").arg(host::shownReason(QStringLiteral("the source could not be listened to"))));
}

void TestListeningDialogs::isWorkedByTheKeyboard()
{
    Channels dialog;
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const char *which : {"first", "second"}) {
        auto *play = dialog.find<QPushButton>(QLatin1String(which) + QStringLiteral("_play"));
        for (int press = 0; press < 8 && dialog.focusWidget() != play; ++press)
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), play);
        QTest::keyClick(play, Qt::Key_Space);
        QTRY_VERIFY_WITH_TIMEOUT(play->isEnabled(), limitMs);
        QCOMPARE(dialog.focusWidget(), dialog.find<QRadioButton>(QLatin1String(which) + QStringLiteral("_left")));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    }
    QCOMPARE(dialog.check()->mapping, ChannelMapping::mixed); // both on the left
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Right);
    QCOMPARE(dialog.check()->mapping, ChannelMapping::straight);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void TestListeningDialogs::keepsTheSource()
{
    const QTemporaryDir folder;
    const QString inside = folder.filePath(QStringLiteral("new/state"));
    const QString name = QStringLiteral("Monitor of Kopfh\u00F6rer, \u8033 = \"1\"; #[x]");
    SourceSetting setting(inside);
    QVERIFY(setting.source().isEmpty());
    QVERIFY(setting.change(name));
    QCOMPARE(SourceSetting(inside).source(), name);
    QVERIFY(setting.change({}));
    QVERIFY(SourceSetting(inside).source().isEmpty());
    QVERIFY(!QFile::exists(inside + QStringLiteral("/config.ini"))); // the module's
    QFile obstacle(folder.filePath(QStringLiteral("file")));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    SourceSetting lost(obstacle.fileName() + QStringLiteral("/state"));
    QVERIFY(!lost.change(name));
    QCOMPARE(lost.source(), name); // in force all the same
}

void TestListeningDialogs::doesNotKeepASourceThatIsForOnce()
{
    const QTemporaryDir folder;
    SourceSetting setting(folder.path());
    QVERIFY(setting.change(QStringLiteral("Mic")));
    setting.useOnce(QStringLiteral("Other"));
    QCOMPARE(setting.source(), QStringLiteral("Other"));
    QCOMPARE(SourceSetting(folder.path()).source(), QStringLiteral("Mic"));
}

void TestListeningDialogs::offersTheSources()
{
    sayTwoSources();
    SourceDialog dialog({});
    dialog.show();
    auto *choice = dialog.findChild<QComboBox *>(QStringLiteral("host_source_choice"));
    QCOMPARE(dialog.chosen(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(choice->count(), 3, limitMs);
    QCOMPARE(choice->itemText(0), host::hostText("SOURCE_NONE"));
    choice->setCurrentIndex(2);
    QCOMPARE(dialog.chosen(), QStringLiteral("Kopfh\u00F6rer <b>"));
    QVERIFY(dialog.findChild<QLabel *>(QStringLiteral("host_source_state"))->text().isEmpty());
}

void TestListeningDialogs::keepsASourceThatIsGone()
{
    sayTwoSources();
    SourceDialog dialog(QStringLiteral("USB"));
    auto *choice = dialog.findChild<QComboBox *>(QStringLiteral("host_source_choice"));
    QCOMPARE(dialog.chosen(), QStringLiteral("USB"));
    QTRY_COMPARE_WITH_TIMEOUT(choice->count(), 4, limitMs);
    QCOMPARE(choice->currentText(), host::hostText("SOURCE_ABSENT").arg(QStringLiteral("USB")));
    QCOMPARE(dialog.chosen(), QStringLiteral("USB"));
}

void TestListeningDialogs::offersRunsAloneOnlyWithASource()
{
    sayTwoSources();
    ShownProgram program;
    host::ListeningTools tools(program.window, program.session, program.language, program.folder.path(), {});
    auto *alone = program.find<QAction>("host_run_alone");
    QVERIFY(!alone->isEnabled());
    const QSignalSpy changed(&tools, &host::ListeningTools::sourceChanged);
    const DialogSteps<SourceDialog> hand({[](SourceDialog &dialog) {
        auto *choice = dialog.findChild<QComboBox *>(QStringLiteral("host_source_choice"));
        if (choice->count() < 3)
            return false;
        choice->setCurrentIndex(1);
        dialog.findChild<QPushButton *>(QStringLiteral("host_source_use"))->click();
        return true;
    }});
    program.find<QAction>("host_choose_source")->trigger();
    QVERIFY(hand.areTaken());
    QCOMPARE(tools.source(), QStringLiteral("Mic"));
    QVERIFY(alone->isEnabled());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(SourceSetting(program.folder.path()).source(), QStringLiteral("Mic"));
    program.module.names.clear();
    program.session.refresh();
    QVERIFY(!alone->isEnabled() && !program.find<QAction>("host_check_channels")->isEnabled());
}

void TestListeningDialogs::notesTheCheckForLaterRuns()
{
    ShownProgram program;
    const host::ListeningTools tools(program.window, program.session, program.language, program.folder.path(),
                                     QStringLiteral("Mic"));
    program.window.choose(0, 1);
    const DialogSteps<ChannelDialog> hand(
        {pressing("first_play"), pressing("first_both"), pressing("second_play"), pressing("second_both"), pressing("close")});
    program.find<QAction>("host_check_channels")->trigger();
    QVERIFY(hand.areTaken());
    const auto checked = program.session.run(0, 1, QStringLiteral("en_US"));
    QVERIFY(checked->channels);
    QCOMPARE(checked->channels->mapping, ChannelMapping::mixed);
    QCOMPARE(checked->code, 0U);                                            // no verdict counts it
    QVERIFY(!program.session.run(0, 0, QStringLiteral("en_US"))->channels); // another device
    QVERIFY(program.find<QPlainTextEdit>("host_log")
                ->toPlainText()
                .contains(host::hostText("LOG_CHANNELS").arg(QStringLiteral("Headphones"), host::hostText("CHANNELS_MIXED"))));
}

// Its digits would get into that run's ear.
void TestListeningDialogs::playsNothingDuringAnotherHostsRun()
{
    ShownProgram program;
    const host::ListeningTools tools(program.window, program.session, program.language, program.folder.path(), {});
    host::VolumeLock other(program.folder.path());
    QVERIFY(other.take());
    program.window.choose(0, 1);
    bool hasAsked = false;
    QTimer::singleShot(0, &program.window, [&hasAsked] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            hasAsked = true;
            dialog->reject();
        }
    });
    program.find<QAction>("host_check_channels")->trigger();
    QCoreApplication::processEvents();
    QVERIFY(!hasAsked);
    QVERIFY(program.find<QPlainTextEdit>("host_log")->toPlainText().contains(host::hostText("REASON_VOLUMES_HELD")));
}

QTEST_MAIN(TestListeningDialogs)
#include "tst_listening_dialogs.moc"

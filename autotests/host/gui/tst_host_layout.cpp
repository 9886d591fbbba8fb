// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/gui/fake_module.h"
#include "autotests/host/gui/pseudo_translator.h"
#include "host/core/language_setting.h"
#include "host/gui/channel_dialog.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/host_prompts.h"
#include "host/gui/key_text.h"
#include "host/gui/main_window.h"
#include "host/gui/source_dialog.h"
#include "host/translations/translators.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QObject>
#include <QScreen>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace {

// Texts that are wrapped need the height for the width that they got.
QSize roomNeeded(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label != nullptr && label->wordWrap())
        return {0, label->heightForWidth(label->width())};
    return widget.sizeHint();
}

void verifyFits(const QWidget &window)
{
    const QRect room = window.screen()->availableGeometry();
    QVERIFY2(room.contains(window.frameGeometry()), qPrintable(window.objectName()));
    QList<const QWidget *> widgets;
    for (const QLabel *label : window.findChildren<QLabel *>())
        widgets.append(label);
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        widgets.append(button);
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->objectName().startsWith(QStringLiteral("qt_")) ||
            !widget->objectName().startsWith(QStringLiteral("host_")))
            continue;
        const QSize needed = roomNeeded(*widget);
        const bool isRoomy = widget->width() >= needed.width() && widget->height() >= needed.height();
        QVERIFY2(isRoomy, qPrintable(QStringLiteral("%1: %2x%3 of %4x%5")
                                         .arg(widget->objectName())
                                         .arg(widget->width())
                                         .arg(widget->height())
                                         .arg(needed.width())
                                         .arg(needed.height())));
        QVERIFY(widget->window()->rect().contains(QRect(widget->mapTo(widget->window(), QPoint()), widget->size())));
    }
}

void expose(QWidget &window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
}

// A run whose digits were measured, as a listener would.
void addDigits(host::RunRecord &record)
{
    record.isUnattended = true;
    for (int position = 1; position <= 3; ++position) {
        host::HeardDigit digit;
        digit.position = position;
        digit.heard = digit.typed = position + 3;
        digit.score = 0.98;
        digit.latencyMs = 21;
        digit.levelDbfs = -21.4;
        digit.measured.emplace();
        digit.measured->snrDb = 61.2;
        for (int step = 0; step < 190; ++step) {
            const double height = 0.3 * std::sin(step * 0.1 * position) * std::sin(step / 60.5);
            digit.measured->lowest.append(-std::abs(height));
            digit.measured->highest.append(std::abs(height) * 0.9);
        }
        for (int band = 0; band < 24; ++band)
            digit.measured->bandLevelsDbfs.append(-30.0 - 2.5 * std::abs(band - 6.0 * position));
        record.digits.append(digit);
    }
}

// For a look at it: the folder that this variable names gets the pictures.
void photograph(QWidget &window, const QString &code)
{
    const QString folder = qEnvironmentVariable("HOST_LAYOUT_PICTURES");
    if (!folder.isEmpty())
        window.grab().save(QStringLiteral("%1/%2_%3_%4.png").arg(folder, window.objectName(), code).arg(window.logicalDpiX()));
}

} // namespace

/// One screen and resolution a run, set from outside.
class TestHostLayout : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void fits_data();
    void fits();

private:
    QString before_ = QDir::currentPath();
};

void TestHostLayout::initTestCase()
{
    if (qEnvironmentVariableIsSet("QT_FONT_DPI"))
        QCOMPARE(QApplication::primaryScreen()->logicalDotsPerInch(), qEnvironmentVariable("QT_FONT_DPI").toDouble());
}

void TestHostLayout::cleanup() { QVERIFY(QDir::setCurrent(before_)); }

void TestHostLayout::fits_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("isLonger");
    const QStringList codes = host::LanguageSetting::codes();
    for (const QString &code : codes)
        QTest::addRow("%s", qPrintable(code)) << code << false;
    QTest::newRow("two fifths longer") << QStringLiteral("en_US") << true;
}

void TestHostLayout::fits()
{
    QFETCH(const QString, code);
    QFETCH(const bool, isLonger);
    const QTemporaryDir folder;
    host::installTranslators(code);
    PseudoTranslator pseudo;
    QVERIFY(!isLonger || (pseudo.load() && QCoreApplication::installTranslator(&pseudo)));
    host::LanguageSetting language;
    QVERIFY(language.useOwnFolder(folder.path()) && language.change(code));
    FakeModule module;
    module.names = {"Speakers", "A device with quite a long name, such as the second monitor's headphone socket", "HDMI"};
    module.playback = [](ostra::TestContext &context) {
        context.reporter()->report(100, "AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE");
        context.messages()->addMessage("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE", 2, 0);
        context.messages()->addMessage("POSSIBLE_DEFECTIVE_COMPONENTS: MICROPHONE, CAMERA_MICROPHONE_MODULE, SPEAKERS", 0, 0);
        return ostra::result::failed;
    };
    host::DialogPrompter prompter;
    host::TestSession session(module.interface(), prompter, folder.path());
    host::MainWindow window(session, language, QStringLiteral("4.42.0.92"), true);
    window.setSoundState([] {
        return host::SoundState{true, {{QStringLiteral("Speakers"), QStringLiteral("s"), 137, true, true}}, {{}, true}};
    });
    session.refresh();
    expose(window);
    verifyFits(window);
    const auto *devices = window.findChild<QTableWidget *>(QStringLiteral("host_devices"));
    QVERIFY(devices->columnWidth(0) >= devices->fontMetrics().horizontalAdvance(QStringLiteral("Speakers")));
    session.run(0, 1, code, addDigits);
    QCoreApplication::processEvents();
    verifyFits(window);
    photograph(window, code);
    auto *tabs = window.findChild<QTabWidget *>(QStringLiteral("host_tabs"));
    tabs->setCurrentIndex(2);
    QCoreApplication::processEvents();
    verifyFits(window);
    photograph(window, code + QStringLiteral("_measurements"));
    host::ChannelDialog channels({QStringLiteral("Speakers"), QStringLiteral("Monitor of Speakers"), {}, code}, &window);
    expose(channels);
    verifyFits(channels);
    photograph(channels, code);
    channels.hide();
    host::SourceDialog source(QStringLiteral("Monitor of Speakers"), &window);
    expose(source);
    verifyFits(source);
    photograph(source, code);
    source.hide();
    host::InstructionsPrompt instructions(
        QStringLiteral("AUDIO_PLAYBACK_TEST"), QStringLiteral("AUDIO_PLAYBACK_TEST_INSTRUCTIONS"),
        {QStringLiteral("Speakers"), QStringLiteral("Headphones"), QStringLiteral("Microphone")}, &window);
    expose(instructions);
    verifyFits(instructions);
    photograph(instructions, code);
    instructions.hide();
    host::QuestionPrompt question(QStringLiteral("MICROPHONE_INTERACTIVE_TEST"),
                                  QStringLiteral("DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED"), &window);
    expose(question);
    verifyFits(question);
    photograph(question, code);
    question.hide();
    host::PrecheckPrompt precheck({host::hostText("PRECHECK_DEVICE_MUTED").arg(QStringLiteral("Speakers")),
                                   host::hostText("PRECHECK_MICROPHONE_BLOCKED")},
                                  false, &window);
    expose(precheck);
    verifyFits(precheck);
    photograph(precheck, code);
}

int main(int argc, char *argv[])
{
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // as the program does
    QApplication application(argc, argv);
    TestHostLayout test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_host_layout.moc"

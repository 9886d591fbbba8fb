// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_sdl.h"
#include "autotests/support/scripted_context.h"
#include "autotests/support/theme_message.h"
#include "autotests/support/wave_files.h"
#include "contract/exports.h"
#include "utils/dpi.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMetaType>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <string>
#include <vector>

using namespace ostra;

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
}

namespace {

using Calls = std::vector<std::string>;

// Called again and again until a dialog's window is there.
void closeTheDialogWhenItIsThere(QTimer &timer, QPointer<QWidget> &dialog, bool &isFiltered)
{
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        dialog = QApplication::activeModalWidget();
        if (dialog.isNull())
            return;
        timer.stop();
        isFiltered = theme_message::isTakenBySomeFilter();
        dialog->findChild<QPushButton *>(QStringLiteral("audio_playback_test_header_close"))->click();
    });
    timer.start(10);
}

} // namespace

/// The whole module within a host that has windows: what a dialog needs of it, and what is left when it is released.
class TestModuleDialogs : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { ReleaseModuleInterfaceInstance(); }
    void cleanupTestCase();
    void theFirstInstanceRegistersIconsAndTypes();
    void theReleaseTakesTheDpiWidgetFromTheHostsWindow();
    void aReleaseWithoutAWindowIsHarmless();
    void aRunShowsTheRealDialogAndTheReleaseLeavesNothing();

private:
    QTemporaryDir folder_;
};

void TestModuleDialogs::initTestCase()
{
    QVERIFY(QDir::setCurrent(folder_.path()));
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
}

void TestModuleDialogs::cleanupTestCase()
{
    QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively();
}

void TestModuleDialogs::theFirstInstanceRegistersIconsAndTypes()
{
    const FakeSdl fake;
    QVERIFY(!QMetaType::fromName("IconPushButton*").isValid());
    QVERIFY(GetModuleInterfaceInstance() != nullptr);
    QVERIFY(QFile::exists(QStringLiteral(":/audio/resources/icons/idle.png")));
    QVERIFY(QFile::exists(QStringLiteral(":/audio/resources/icons/playing_sound_gif.gif")));
    QVERIFY(QMetaType::fromName("IconPushButton*").isValid());
}

void TestModuleDialogs::theReleaseTakesTheDpiWidgetFromTheHostsWindow()
{
    const FakeSdl fake;
    QWidget host;
    QVERIFY(GetModuleInterfaceInstance() != nullptr);
    const QPointer<utils::Dpi> dpi = utils::Dpi::instance();
    QVERIFY(!dpi.isNull());
    QCOMPARE(dpi->parentWidget(), &host);
    ReleaseModuleInterfaceInstance();
    QVERIFY(dpi.isNull());
    QVERIFY(host.children().isEmpty());
}

void TestModuleDialogs::aReleaseWithoutAWindowIsHarmless()
{
    const FakeSdl fake;
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(GetModuleInterfaceInstance() != nullptr);
    ReleaseModuleInterfaceInstance();
    QVERIFY(QApplication::allWidgets().isEmpty());
}

void TestModuleDialogs::aRunShowsTheRealDialogAndTheReleaseLeavesNothing()
{
    FakeSdl fake;
    fake.deviceNames = {"Speakers"};
    QWidget host;
    host.show();
    ModuleInterface *module = GetModuleInterfaceInstance();
    module->componentManager()->refresh();
    ScriptedContext context(module->componentManager()->componentAt(0));
    context.answer = 1;
    context.onWidget = [&host](InputRequest &request) { request.widget->exec(&host, nullptr); };
    QTimer timer;
    QPointer<QWidget> dialog;
    bool isFiltered = false;
    closeTheDialogWhenItIsThere(timer, dialog, isFiltered);
    QCOMPARE(module->diagnosticAt(0)->testAt(0)->run(&context), 4U);
    QVERIFY(!timer.isActive()); // it was there
    QVERIFY(isFiltered);
    QCOMPARE(context.calls.back(), std::string("input kTkAdvancedTestInputTitle||1 3 0|widget|0 0 0")); // no message

    ReleaseModuleInterfaceInstance();
    QVERIFY(dialog.isNull());
    QCOMPARE(QApplication::allWidgets(), QWidgetList{&host});
    QVERIFY(host.findChildren<QObject *>().isEmpty());
    QVERIFY(qApp->findChildren<QTimer *>().isEmpty());
    QVERIFY(!theme_message::isTakenBySomeFilter());
}

QTEST_MAIN(TestModuleDialogs)
#include "tst_module_dialogs.moc"

// SPDX-License-Identifier: Apache-2.0
// What the built module leaves in its host's process when both of its dialogs were closed in the middle of their jobs: nothing.
#include "autotests/support/polling_host.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/theme_message.h"
#include "autotests/support/wave_files.h"
#include "contract/exports.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLibrary>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <chrono>

using namespace ostra;

namespace {

constexpr int threadEndLimit = 10000;             // ms
constexpr std::chrono::milliseconds midJob{1300}; // a digit sounds, or the recorder has looked at its flag twice
constexpr int closeLimit = 2600 + 1000;           // ms: looking at the flag, closing, and the digit that sounds
constexpr int roundCount = 2;

// Found by name, as a host could: the test knows nothing of the module's classes.
QWidget *openDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("ostra::InputDialog") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QPushButton *button(const QWidget *parent, const char *name) { return parent->findChild<QPushButton *>(QLatin1String(name)); }

void startRecording(QWidget &dialog)
{
    auto *pages = dialog.findChild<QStackedWidget *>(QStringLiteral("microphone_test_popups_space"));
    button(pages->currentWidget(), "microphone_test_next_button")->click();
    button(pages->currentWidget(), "microphone_test_record_button")->click();
}

struct Leftovers {
    std::size_t threads = process_facts::now().threads;
    int windows = process_facts::nativeWindowCount();
    qsizetype qtWindows = QGuiApplication::allWindows().size();
    qsizetype widgets = QApplication::allWidgets().size();
    qsizetype timers = qApp->findChildren<QTimer *>().size();
    bool hasApartment = process_facts::isInApartment();
    bool hasFilter = theme_message::isTakenBySomeFilter();
};

} // namespace

class TestDialogLeftovers : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void dialogsClosedInMidJobLeaveNothing();
    void theCodeStaysAndNothingMoreRuns();

private:
    void runBoth();
    std::uint32_t closeInMidJob(Test &test, SystemComponent &device);

    QTemporaryDir folder_;
    QLibrary library_;
    GetModuleInterfaceInstanceFunction *get_ = nullptr;
    ReleaseModuleInterfaceInstanceFunction *release_ = nullptr;
};

void TestDialogLeftovers::initTestCase()
{
    QVERIFY(QDir::setCurrent(folder_.path()));
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"),
                             wave_files::wave(48000, 2, 24000));
    library_.setFileName(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/" MODULE_NAME)));
    QVERIFY2(library_.load(), qPrintable(library_.errorString()));
    get_ = reinterpret_cast<GetModuleInterfaceInstanceFunction *>(library_.resolve(exports::getModuleInterfaceInstance));
    release_ =
        reinterpret_cast<ReleaseModuleInterfaceInstanceFunction *>(library_.resolve(exports::releaseModuleInterfaceInstance));
    QVERIFY(get_ != nullptr && release_ != nullptr);
}

void TestDialogLeftovers::cleanupTestCase()
{
    QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively();
}

std::uint32_t TestDialogLeftovers::closeInMidJob(Test &test, SystemComponent &device)
{
    PollingHost host(&device);
    bool isMicrophone = false;
    QElapsedTimer sinceClose;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget *dialog = openDialog();
        if (dialog == nullptr)
            return;
        watch.stop();
        isMicrophone = dialog->inherits("ostra::InteractionDialog");
        if (isMicrophone)
            startRecording(*dialog);
        QTimer::singleShot(midJob, dialog, [&, dialog] {
            sinceClose.start();
            button(dialog, isMicrophone ? "microphone_test_header_close" : "audio_playback_test_header_close")->click();
        });
    });
    watch.start(std::chrono::milliseconds(10));
    const std::uint32_t code = test.run(&host);
    if (!sinceClose.isValid() || sinceClose.elapsed() > closeLimit)
        return 99;
    return code;
}

void TestDialogLeftovers::runBoth()
{
    ModuleInterface *module = get_();
    module->componentManager()->refresh();
    QVERIFY(module->componentManager()->componentCount() >= 1);
    for (const std::uint32_t index : {0U, 1U})
        QCOMPARE(closeInMidJob(*module->diagnosticAt(0)->testAt(index), *module->componentManager()->componentAt(0)), 4U);
    release_();
}

void TestDialogLeftovers::dialogsClosedInMidJobLeaveNothing()
{
    runBoth(); // starts what the system and its sound drivers keep for the process
    const Leftovers before;
    for (int round = 0; round < roundCount; ++round)
        runBoth();
    QTRY_VERIFY_WITH_TIMEOUT(process_facts::now().threads <= before.threads, threadEndLimit);
    const Leftovers after;
    qInfo("%zu threads and %d native windows before, %zu and %d after", before.threads, before.windows, after.threads,
          after.windows);
    QVERIFY(after.windows <= before.windows);
    QCOMPARE(after.qtWindows, 0);
    QCOMPARE(after.widgets, 0);
    QCOMPARE(after.timers, 0);
    QCOMPARE(after.hasApartment, before.hasApartment);
    QVERIFY(!after.hasFilter);
}

void TestDialogLeftovers::theCodeStaysAndNothingMoreRuns()
{
    const Leftovers before;
    library_.unload();
    QTest::qWait(200); // whatever would still be called has its chance to crash
    const Leftovers after;
    QVERIFY(after.threads <= before.threads);
    QVERIFY(after.windows <= before.windows);
    runBoth(); // pinned: its code is still there
    QTRY_VERIFY_WITH_TIMEOUT(process_facts::now().threads <= before.threads, threadEndLimit);
}

QTEST_MAIN(TestDialogLeftovers)
#include "tst_dialog_leftovers.moc"

// SPDX-License-Identifier: Apache-2.0
// A host of the smallest kind, which loads the module as every host does. Prints what it was asked to measure.
#include "autotests/support/live_memory.h"
#include "autotests/support/scripted_context.h"
#include "benchmarks/bare_listing.h"
#include "benchmarks/loaded_library.h"
#include "benchmarks/pairs.h"
#include "benchmarks/resident_memory.h"
#include "contract/abstract_widget_wrapper.h"
#include "contract/exports.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPixmapCache>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <string>

namespace {

using std::chrono::milliseconds;

ostra::ModuleInterface *loadModule(const char *path)
{
    const bench::LoadedLibrary library(path);
    const auto getInstance = library.function<GetModuleInterfaceInstanceFunction *>(ostra::exports::getModuleInterfaceInstance);
    return getInstance();
}

/// refresh MODULE: seconds until the devices are listed, and their number.
int refresh(const char *modulePath)
{
    ostra::SystemComponentManager *manager = nullptr;
    const double seconds = bench::secondsOf([&] {
        manager = loadModule(modulePath)->componentManager();
        manager->refresh();
    });
    std::printf("%.6f %d\n", seconds, static_cast<int>(manager->componentCount()));
    return 0;
}

/// memory-bare SDL_LIBRARY DRIVER: kilobytes of a host with Qt and the sound library, without the module.
int memoryBare(const char *libraryPath, const char *driver)
{
    const bench::BareListing listing(libraryPath, driver);
    listing.openAll({});
    QApplication::processEvents();
    std::printf("%.0f\n", bench::residentKilobytes());
    return 0;
}

/// memory-module MODULE: the same with the module loaded and its devices listed.
int memoryModule(const char *modulePath)
{
    loadModule(modulePath)->componentManager()->refresh();
    QApplication::processEvents();
    std::printf("%.0f\n", bench::residentKilobytes());
    return 0;
}

void closeDialogWhenShown()
{
    auto *timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *close = window->findChild<QAbstractButton *>(QStringLiteral("audio_playback_test_header_close"));
            if (close == nullptr || !close->isVisible())
                continue;
            timer->deleteLater();
            close->click();
            return;
        }
    });
    timer->start(milliseconds(10));
}

void runOnce(ostra::ModuleInterface &module)
{
    ScriptedContext context(module.componentManager()->componentAt(0));
    context.answer = 1;
    context.onWidget = [](ostra::InputRequest &request) {
        closeDialogWhenShown();
        request.widget->exec(nullptr, nullptr);
    };
    module.diagnosticAt(0)->testAt(0)->run(&context);
    QApplication::processEvents();
}

// Without the pictures that Qt keeps for later: it keeps those of every dialog anew, up to a limit of its own of 10 MB.
double kilobytesAfterHundredRuns(ostra::ModuleInterface &module)
{
    for (int run = 0; run < 100; ++run)
        runOnce(module);
    QPixmapCache::clear();
    return static_cast<double>(liveByteCount()) / 1024;
}

/// memory-module-runs MODULE: kilobytes of the host with the module behind 100 runs.
int memoryModuleAfterRuns(const char *modulePath)
{
    ostra::ModuleInterface *module = loadModule(modulePath);
    module->componentManager()->refresh();
    kilobytesAfterHundredRuns(*module);
    std::printf("%.0f\n", bench::residentKilobytes());
    return 0;
}

/// memory-runs MODULE: kilobytes held after 100 and after 200 runs of the playback test, each closed as soon as it is shown.
int memoryRuns(const char *modulePath)
{
    ostra::ModuleInterface *module = loadModule(modulePath);
    module->componentManager()->refresh();
    const double after100 = kilobytesAfterHundredRuns(*module);
    const double after200 = kilobytesAfterHundredRuns(*module);
    std::printf("%.0f %.0f\n", after100, after200);
    return 0;
}

int measure(const std::string &what, const char *argument)
{
    if (what == "refresh")
        return refresh(argument);
    if (what == "memory-module")
        return memoryModule(argument);
    if (what == "memory-module-runs")
        return memoryModuleAfterRuns(argument);
    return what == "memory-runs" ? memoryRuns(argument) : 2;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount < 3)
        return 2;
    const QApplication application(argumentCount, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // a host shows no debug texts
    const std::string what = arguments[1];
    if (argumentCount == 4)
        return what == "memory-bare" ? memoryBare(arguments[2], arguments[3]) : 2;
    return measure(what, arguments[2]);
}

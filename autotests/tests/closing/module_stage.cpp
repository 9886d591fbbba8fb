// SPDX-License-Identifier: Apache-2.0
#include "autotests/tests/closing/module_stage.h"

#include "audio/abandoned_workers.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/theme_message.h"
#include "autotests/support/wave_files.h"
#include "contract/exports.h"
#include "utils/pace.h"
#include "views/digit_sequence.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QThread>
#include <QTimer>

extern "C" {
GetModuleInterfaceInstanceFunction GetModuleInterfaceInstance;
ReleaseModuleInterfaceInstanceFunction ReleaseModuleInterfaceInstance;
}

namespace {

constexpr int threadEndLimit = 5000; // ms

// 0 1 2, over and over: that is every sequence.
int nextDigit()
{
    static int digit = 0;
    return digit++ % static_cast<int>(ostra::sequenceLength);
}

ostra::audio::VolumeGuard noGuard(std::int32_t) { return {}; }

} // namespace

ModuleStage::ModuleStage(int divisor)
{
    QDir::setCurrent(folder_.path());
    wave_files::write(QStringLiteral("config.ini"), "[LANGUAGE]\nDEFAULT_LANGUAGE=english\n");
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
    ostra::utils::pace().divisor = divisor;
    ostra::playbackSources().digit = &nextDigit;
    ostra::playbackSources().volumeGuard = &noGuard;
}

ModuleStage::~ModuleStage()
{
    ostra::playbackSources() = {};
    ostra::utils::pace() = {};
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/audio_files")).removeRecursively();
}

std::uint32_t ModuleStage::run(Kind kind, const std::function<std::uint32_t(ostra::Test &, ostra::SystemComponent &)> &action)
{
    std::uint32_t code = 99;
    // Within a loop of the application, as hosts are: it can be ended.
    QTimer::singleShot(0, qApp, [&] {
        ostra::ModuleInterface *module = GetModuleInterfaceInstance();
        module->componentManager()->refresh();
        code = action(*module->diagnosticAt(0)->testAt(static_cast<std::uint32_t>(kind)),
                      *module->componentManager()->componentAt(0));
        ReleaseModuleInterfaceInstance();
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    return code;
}

void ModuleStage::begin() { threadCount_ = process_facts::now().threads; }

QString ModuleStage::leftovers() const
{
    QStringList left;
    if (devices.sound.openedCount != devices.sound.closedCount || LiveDevices::openCount() != 0)
        left << QStringLiteral("an open device");
    if (ostra::audio::abandonedWorkerCount() != 0)
        left << QStringLiteral("an abandoned worker");
    if (!QTest::qWaitFor([this] { return process_facts::now().threads <= threadCount_; }, threadEndLimit))
        left << QStringLiteral("%1 threads, not %2").arg(process_facts::now().threads).arg(threadCount_);
    for (const QWidget *widget : QApplication::allWidgets())
        left << QLatin1String(widget->metaObject()->className());
    for (const QObject *object : qApp->findChildren<QTimer *>())
        left << QLatin1String(object->metaObject()->className());
    if (theme_message::isTakenBySomeFilter())
        left << QStringLiteral("a native event filter");
    return left.join(QStringLiteral(", "));
}

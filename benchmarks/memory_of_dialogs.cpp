// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/sound_figures.h"

#include "benchmarks/playback_widgets.h"
#include "benchmarks/resident_memory.h"
#include "benchmarks/workloads.h"

#include <QApplication>
#include <QPixmapCache>

#include <cstdio>

namespace bench {

void memoryOfDialogs(const QStringList & /*arguments*/)
{
    constexpr int dialogCount = 100;
    const double before = residentKilobytes();
    for (int shown = 0; shown < dialogCount; ++shown) {
        PlaybackWidgets widgets;
        widgets.dialog.setStyleSheet(productSheet());
        widgets.dialog.show();
        QApplication::processEvents();
    }
    QPixmapCache::clear();
    std::printf("%.0f\n", residentKilobytes() - before);
}

} // namespace bench

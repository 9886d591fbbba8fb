// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_event_filter.h"
#include "utils/theme_notices.h"

#include <QCoreApplication>
#include <QEvent>

#include <memory>

namespace ostra::utils::event_filters {

namespace {

class PaletteWatcher final : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Every window is told as well; the application's own event is the one notice of the change.
        if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance())
            HighContrastEventFilter::announceToInstalled();
        return false;
    }
};

std::unique_ptr<PaletteWatcher> &watcher()
{
    static std::unique_ptr<PaletteWatcher> current;
    return current;
}

} // namespace

void startThemeNotices()
{
    if (watcher() != nullptr)
        return;
    watcher() = std::make_unique<PaletteWatcher>();
    QCoreApplication::instance()->installEventFilter(watcher().get());
}

// The last filter may go while the watcher announces to it: the watcher then touches nothing of its own any more.
void stopThemeNotices() { watcher().reset(); }

} // namespace ostra::utils::event_filters

// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_event_filter.h"

#include "utils/screen_sources.h"
#include "utils/system_colors.h"
#include "utils/theme_notices.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPointer>

#include <cstdint>
#include <cstring>

namespace ostra::utils::event_filters {

namespace {

constexpr std::uint32_t themeChangedMessage = 794; // WM_THEMECHANGED

QList<HighContrastEventFilter *> &installedFilters()
{
    static QList<HighContrastEventFilter *> filters;
    return filters;
}

// A Windows MSG begins with the window handle; the message number follows.
std::uint32_t messageNumber(const void *message)
{
    std::uint32_t number = 0;
    std::memcpy(&number, static_cast<const char *>(message) + sizeof(void *), sizeof number);
    return number;
}

} // namespace

HighContrastEventFilter::HighContrastEventFilter(QObject *parent) : QObject(parent) {}

HighContrastEventFilter::~HighContrastEventFilter()
{
    if (installedFilters().removeAll(this) > 0 && installedFilters().isEmpty())
        stopThemeNotices();
}

void HighContrastEventFilter::install()
{
    if (installedFilters().contains(this))
        return;
    QCoreApplication::instance()->installNativeEventFilter(this);
    installedFilters().append(this);
    startThemeNotices();
}

bool HighContrastEventFilter::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    if (eventType != "windows_generic_MSG" || messageNumber(message) != themeChangedMessage)
        return false;
    if (installedFilters().contains(this))
        announceToInstalled();
    else
        emit ThemeChanged();
    return true;
}

bool HighContrastEventFilter::isHighContrast() const { return screenSources().highContrastOn(); }

QList<QColor> HighContrastEventFilter::systemColors() const { return systemColorList(); }

void HighContrastEventFilter::announceToInstalled()
{
    // A receiver may destroy any filter, the announcing one included.
    QList<QPointer<HighContrastEventFilter>> receivers;
    for (HighContrastEventFilter *filter : installedFilters())
        receivers.append(filter);
    for (const QPointer<HighContrastEventFilter> &filter : receivers) {
        if (!filter.isNull())
            emit filter->ThemeChanged();
    }
}

} // namespace ostra::utils::event_filters

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QList>
#include <QObject>

namespace ostra::utils::event_filters {

/// Announces changes of the desktop's visual theme and tells its contrast and colours.
///
/// On Windows the notice is WM_THEMECHANGED, whichever window of the application gets it. On Linux it is Qt's change of the
/// application's palette. Either way every installed filter emits `ThemeChanged` once per notice: Qt itself would stop at
/// the first filter that handles the message, so that one emits for all.
///
/// Threading: GUI thread only. The owner deletes it, or its parent does; destroying it, also while another filter's
/// `ThemeChanged` is being delivered, takes it off the application's list. Its answers come from `utils/screen_sources.h`.
class HighContrastEventFilter : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// A filter that hears nothing yet.
    explicit HighContrastEventFilter(QObject *parent);
    ~HighContrastEventFilter() override;

    /// Starts listening: QCoreApplication::installNativeEventFilter, and a place among those that emit for each other.
    /// Further calls change nothing. Needs the application object.
    void install();

    /// Handles WM_THEMECHANGED of the event type "windows_generic_MSG": emits and returns true, which keeps Qt from
    /// restyling on its own. Everything else passes untouched with false; the message of another event type is not read.
    /// A filter that is not installed emits its own signal only. `message` points at a Windows MSG, of which the number
    /// behind the window handle is read (on any platform).
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    /// Whether high contrast is on now.
    bool isHighContrast() const;

    /// The 30 system colours of now, in the order of `systemColorIndices`.
    QList<QColor> systemColors() const;

    /// Makes every installed filter emit. For the platform's notice; a filter made meanwhile does not emit.
    static void announceToInstalled();

signals:
    void ThemeChanged();
};

} // namespace ostra::utils::event_filters

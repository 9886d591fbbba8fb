// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QDialog>
#include <QList>
#include <QString>

#include <memory>

class QAccessibleInterface;

namespace ostra::utils::event_filters {
class HighContrastEventFilter;
}

namespace ostra::utils::accessibility {

/// Base of the module's dialogs: the product's stylesheet, the system's colours while high contrast is on, and one interface
/// for screen readers.
///
/// The style changes in the constructor and 100 ms after each theme message, never otherwise. In high contrast the product's
/// stylesheet is shown in the system colours of the time of construction; afterwards exactly the stylesheet comes back that
/// the constructor applied. What a derived dialog sets itself is lost with the next theme message.
///
/// Threading: GUI thread only.
class AccessibleDialogBase : public QDialog {
    Q_OBJECT

public:
    /// With `flags` from the start: changed later they cost the whole dialog its style once more.
    explicit AccessibleDialogBase(QWidget *parent, Qt::WindowFlags flags = {});
    ~AccessibleDialogBase() override;

    /// The one accessible interface of the process (role Client, no name), made for the dialog that first asks and answered
    /// to every dialog from then on. Never null; owned by nobody, it lives until the process ends and is not registered with
    /// QAccessible, which would delete it with that dialog.
    ///
    /// It knows its dialog through a guarded pointer: once that dialog is gone, isValid() is false and object() null. Ask
    /// isValid() before anything else; the other calls need the dialog.
    virtual QAccessibleInterface *accessibleInterface();

public slots:
    /// Restyles in 100 ms, when the desktop has finished switching. Each call restyles once.
    void OnThemeChanged();

private:
    void applyStyleOfTheme();
    void applyHighContrastStyle();
    bool isHighContrast() const;

    std::unique_ptr<event_filters::HighContrastEventFilter> highContrastFilter_;
    QList<QColor> systemColors_;
    QString baseStyleSheet_;
};

} // namespace ostra::utils::accessibility

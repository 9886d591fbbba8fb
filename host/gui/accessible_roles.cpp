// SPDX-License-Identifier: Apache-2.0
#include "host/gui/accessible_roles.h"

#include "host/gui/level_bar.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

namespace host {

namespace {

/// Tells of no change by itself: ten a second would drown what else there is to hear.
class AccessibleLevelBar : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleLevelBar(LevelBar *bar) : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    QVariant currentValue() const override
    {
        const auto *bar = qobject_cast<const LevelBar *>(object());
        return bar == nullptr ? LevelBar::lowestShownDbfs : std::clamp(bar->rmsDbfs(), LevelBar::lowestShownDbfs, 0.0);
    }
    void setCurrentValue(const QVariant & /*value*/) override {}
    QVariant maximumValue() const override { return 0.0; }
    QVariant minimumValue() const override { return LevelBar::lowestShownDbfs; }
    QVariant minimumStepSize() const override { return 0.0; }
};

QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (widget == nullptr)
        return nullptr;
    if (className == QLatin1String("host::LevelBar"))
        return new AccessibleLevelBar(qobject_cast<LevelBar *>(widget));
    if (className == QLatin1String("host::PlotView"))
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    if (className == QLatin1String("host::RunBar") || className == QLatin1String("host::LevelWindow"))
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

void installAccessibleRoles() { QAccessible::installFactory(interfaceOf); }

} // namespace host

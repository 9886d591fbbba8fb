// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "autotests/support/style_cascade.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QWidget>

/// Where a dialog can show text: a widget or one of its parts, in one combination of states.
struct Place {
    const QWidget *widget;
    QString subControl;
    QSet<QString> states;

    bool isDisabled() const { return states.contains(QStringLiteral("disabled")); }
    QString description() const
    {
        return QStringLiteral("%1#%2::%3:%4")
            .arg(QLatin1StringView(widget->metaObject()->className()), widget->objectName(), subControl,
                 QStringList(states.values()).join(u':'));
    }
};

/// Colours by name, as a stylesheet gives them; null where it gives none.
struct TextAndFill {
    QString text;
    QString fill;
};

/// Every place of the widgets below `dialog`.
QList<Place> placesOf(const QWidget &dialog);

/// What a place shows under a stylesheet: the colour of its text and the first opaque fill behind it.
TextAndFill resolve(const StyleCascade &cascade, const Place &place);

// SPDX-License-Identifier: Apache-2.0
#include "autotests/utils/text_places.h"

#include "utils/style_colors.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

using ostra::utils::hasColor;

namespace {

bool isOpaque(const QString &value) { return !value.isNull() && hasColor(value); }

// What stands behind a place: its own fill, else that of what it lies on. The dialog is translucent: its rule paints nothing.
QString fillBehind(const StyleCascade &cascade, const Place &place)
{
    QString fill = cascade.value(*place.widget, place.subControl, place.states, QStringLiteral("background-color"));
    const QWidget *widget = place.subControl.isEmpty() ? place.widget->parentWidget() : place.widget;
    for (; !isOpaque(fill) && widget != nullptr && !widget->isWindow(); widget = widget->parentWidget())
        fill = cascade.value(*widget, QString(), {}, QStringLiteral("background-color"));
    return fill;
}

QList<QSet<QString>> statesToTry(bool isItem)
{
    const QList<QByteArray> combinations = isItem ? QList<QByteArray>{"",
                                                                      "hover",
                                                                      "selected",
                                                                      "selected active",
                                                                      "selected hover",
                                                                      "selected focus",
                                                                      "first",
                                                                      "disabled",
                                                                      "disabled selected",
                                                                      "focus"}
                                                  : QList<QByteArray>{"",
                                                                      "hover",
                                                                      "focus",
                                                                      "focus hover",
                                                                      "pressed",
                                                                      "pressed hover focus",
                                                                      "active pressed",
                                                                      "active hover",
                                                                      "checked",
                                                                      "checked hover",
                                                                      "checked focus",
                                                                      "checked pressed",
                                                                      "default",
                                                                      "default hover",
                                                                      "default focus pressed",
                                                                      "flat",
                                                                      "flat hover",
                                                                      "flat pressed",
                                                                      "flat focus",
                                                                      "read-only",
                                                                      "on",
                                                                      "disabled",
                                                                      "disabled checked",
                                                                      "disabled default",
                                                                      "disabled flat",
                                                                      "disabled read-only"};
    QList<QSet<QString>> sets;
    for (const QByteArray &combination : combinations) {
        const QStringList states = QString::fromLatin1(combination).split(u' ', Qt::SkipEmptyParts);
        sets.append(QSet<QString>(states.begin(), states.end()));
    }
    return sets;
}

QStringList textPartsOf(const QWidget &widget)
{
    if (qobject_cast<const QHeaderView *>(&widget) != nullptr)
        return {QStringLiteral("section")};
    if (qobject_cast<const QAbstractItemView *>(&widget) != nullptr || qobject_cast<const QMenu *>(&widget) != nullptr ||
        qobject_cast<const QMenuBar *>(&widget) != nullptr)
        return {QStringLiteral("item")};
    if (qobject_cast<const QTabBar *>(&widget) != nullptr)
        return {QStringLiteral("tab")};
    return qobject_cast<const QGroupBox *>(&widget) != nullptr ? QStringList{QStringLiteral("title")} : QStringList{};
}

bool showsText(const QWidget &widget)
{
    static const QStringList without{QStringLiteral("QScrollBar"), QStringLiteral("QSplitterHandle"),
                                     QStringLiteral("QSizeGrip"), QStringLiteral("QComboBoxPrivateScroller")};
    const QString name = QLatin1StringView(widget.metaObject()->className());
    return !widget.isWindow() && !without.contains(name) && !widget.objectName().startsWith(u"qt_");
}

} // namespace

TextAndFill resolve(const StyleCascade &cascade, const Place &place)
{
    QString text = cascade.value(*place.widget, place.subControl, place.states, QStringLiteral("color"));
    if (text.isNull())
        text = cascade.value(*place.widget, QString(), {}, QStringLiteral("color"));
    return {text, fillBehind(cascade, place)};
}

QList<Place> placesOf(const QWidget &dialog)
{
    QList<Place> places;
    const QList<QWidget *> widgets = dialog.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!showsText(*widget))
            continue;
        for (const QSet<QString> &states : statesToTry(false))
            places.append({widget, QString(), states});
        for (const QString &part : textPartsOf(*widget)) {
            for (const QSet<QString> &states : statesToTry(true))
                places.append({widget, part, states});
        }
    }
    return places;
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/style_rules.h"
#include "utils/style_subject.h"

#include <QMetaObject>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QWidget>

#include <algorithm>

/// Which declaration of a stylesheet wins for a widget in a state: a second opinion beside Qt's own, which cannot be asked for
/// states that the mouse makes.
class StyleCascade {
public:
    explicit StyleCascade(const QString &sheet)
    {
        const ostra::utils::StyleRules table = ostra::utils::StyleRules::parse(sheet);
        for (const ostra::utils::StyleRule &rule : table.rules()) {
            const QList<QStringView> selectors = ostra::utils::splitOutsideOpaque(rule.selector(), u',');
            for (const QStringView selector : selectors)
                entries_.append({partsOf(selector.trimmed().toString()), rule});
        }
    }

    /// Null text when no rule speaks. `subControl` is empty for the widget itself.
    QString value(const QWidget &widget, const QString &subControl, const QSet<QString> &states, const QString &property) const
    {
        QString winner;
        int best = -1;
        for (const Entry &entry : entries_) {
            const QString value = entry.rule.value(property);
            if (value.isNull() || entry.specificity() < best || !matches(entry, widget, subControl, states))
                continue;
            best = entry.specificity();
            winner = value;
        }
        return winner;
    }

private:
    struct Part {
        ostra::utils::StyleSubject subject;
        QStringList absentStates;
    };
    struct Entry {
        QList<Part> parts;
        ostra::utils::StyleRule rule;

        int specificity() const
        {
            int sum = 0;
            for (const Part &part : parts) {
                sum += part.subject.name.isEmpty() ? 0 : 0x100;
                sum += static_cast<int>(0x10 * (part.subject.states.size() + part.absentStates.size()));
                sum += part.subject.subControl.isEmpty() ? 0 : 0x10;
                sum += part.subject.type.isEmpty() ? 0 : 1;
            }
            return sum;
        }
    };

    static QList<Part> partsOf(const QString &selector)
    {
        static const QRegularExpression absent(QStringLiteral(":!([a-z-]+)"));
        QList<Part> parts;
        const QStringList texts = selector.split(u' ', Qt::SkipEmptyParts);
        for (const QString &text : texts) {
            Part part{ostra::utils::StyleSubject::of(text), {}};
            for (auto match = absent.globalMatch(text); match.hasNext();)
                part.absentStates.append(match.next().captured(1));
            parts.append(part);
        }
        return parts;
    }

    static bool isOf(const Part &part, const QWidget &widget)
    {
        if (!part.subject.name.isEmpty() && part.subject.name != widget.objectName())
            return false;
        if (part.subject.type.isEmpty())
            return true;
        for (const QMetaObject *meta = widget.metaObject(); meta != nullptr; meta = meta->superClass()) {
            if (part.subject.type == QLatin1StringView(meta->className()))
                return true;
        }
        return false;
    }

    static bool matches(const Entry &entry, const QWidget &widget, const QString &subControl, const QSet<QString> &states)
    {
        const Part &last = entry.parts.last();
        const auto isSet = [&states](const QString &state) { return states.contains(state); };
        if (last.subject.subControl != subControl || !isOf(last, widget) ||
            !std::all_of(last.subject.states.begin(), last.subject.states.end(), isSet) ||
            std::any_of(last.absentStates.begin(), last.absentStates.end(), isSet))
            return false;
        const QWidget *ancestor = widget.parentWidget();
        for (qsizetype part = entry.parts.size() - 2; part >= 0; --part) {
            while (ancestor != nullptr && !isOf(entry.parts[part], *ancestor))
                ancestor = ancestor->parentWidget();
            if (ancestor == nullptr)
                return false;
            ancestor = ancestor->parentWidget();
        }
        return true;
    }

    QList<Entry> entries_;
};

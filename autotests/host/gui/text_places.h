// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QList>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRect>
#include <QString>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QStyleOptionProgressBar>
#include <QTabBar>
#include <QWidget>

/// Where a window shows texts that can be used now, without the frames and icons beside them.
namespace shown_texts {

struct Place {
    QString text;
    QRect rect; ///< in the window
};

class Places {
public:
    explicit Places(const QWidget &window) : window_(window)
    {
        for (QWidget *widget : window.findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->window() == &window && widget->isEnabled())
                take(*widget);
        }
    }

    const QList<Place> &places() const { return places_; }

private:
    void add(const QWidget &widget, const QString &text, const QRect &rect)
    {
        const QRect seen = rect.intersected(widget.visibleRegion().boundingRect());
        if (!text.isEmpty() && seen.width() > 1 && seen.height() > 1)
            places_.append({QStringLiteral("%1 \"%2\"").arg(widget.objectName(), text.left(40)),
                            seen.translated(widget.mapTo(&window_, QPoint()))});
    }

    void take(const QWidget &widget)
    {
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            add(widget, label->text(), label->contentsRect());
        else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            takeButton(*button);
        else if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
            takeTabs(*tabs);
        else if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
            takeBox(*box);
        else if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
            takeHeader(*header);
        else if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
            takeItems(*view);
        else
            takeOthers(widget);
    }

    void takeOthers(const QWidget &widget)
    {
        if (const auto *bar = qobject_cast<const QMenuBar *>(&widget)) {
            for (QAction *action : bar->actions())
                if (action->isEnabled())
                    add(widget, action->text(), bar->actionGeometry(action).adjusted(3, 3, -3, -3));
        } else if (const auto *log = qobject_cast<const QPlainTextEdit *>(&widget)) {
            add(*log->viewport(), log->toPlainText(), log->viewport()->rect());
        } else if (const auto *progress = qobject_cast<const QProgressBar *>(&widget)) {
            QStyleOptionProgressBar option;
            option.initFrom(progress);
            option.text = progress->text();
            option.textVisible = true;
            option.textAlignment = progress->alignment();
            option.state |= QStyle::State_Horizontal;
            option.maximum = progress->maximum();
            option.progress = progress->value();
            add(widget, progress->text(),
                textIn(widget, progress->text(),
                       progress->style()->subElementRect(QStyle::SE_ProgressBarLabel, &option, progress)));
        } else if (const auto *choice = qobject_cast<const QComboBox *>(&widget)) {
            QStyleOptionComboBox option;
            option.initFrom(choice);
            add(widget, choice->currentText(),
                choice->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, choice));
        }
    }

    static QRect textIn(const QWidget &widget, const QString &text, const QRect &whole)
    {
        QRect rect(QPoint(), widget.fontMetrics().size(Qt::TextShowMnemonic, text));
        rect.moveCenter(whole.center());
        return rect;
    }

    void takeButton(const QAbstractButton &button)
    {
        QStyleOptionButton option;
        option.initFrom(&button);
        if (qobject_cast<const QRadioButton *>(&button) != nullptr)
            return add(button, button.text(), button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button));
        add(button, button.text(), textIn(button, button.text(), button.rect()));
    }

    void takeTabs(const QTabBar &bar)
    {
        for (int index = 0; index < bar.count(); ++index)
            add(bar, bar.tabText(index), textIn(bar, bar.tabText(index), bar.tabRect(index)));
    }

    void takeBox(const QGroupBox &box)
    {
        QStyleOptionGroupBox option;
        option.initFrom(&box);
        option.text = box.title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        add(box, box.title(), box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box));
    }

    void takeHeader(const QHeaderView &header)
    {
        for (int section = 0; section < header.count(); ++section) {
            const QRect whole(header.sectionViewportPosition(section), 0, header.sectionSize(section), header.height());
            add(*header.viewport(), header.model()->headerData(section, Qt::Horizontal).toString(),
                whole.adjusted(3, 3, -3, -3));
        }
    }

    void takeItems(const QAbstractItemView &view)
    {
        constexpr int frame = 3;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            for (int column = 0; column < view.model()->columnCount(); ++column) {
                const QModelIndex index = view.model()->index(row, column);
                QRect rect = view.visualRect(index).adjusted(frame, frame, -frame, -frame);
                if (!index.data(Qt::DecorationRole).isNull())
                    rect.setLeft(rect.left() + rect.height() + frame); // as wide as high, or less
                add(*view.viewport(), index.data().toString(), rect);
            }
        }
    }

    const QWidget &window_;
    QList<Place> places_;
};

inline QList<Place> textsOf(const QWidget &window) { return Places(window).places(); }

} // namespace shown_texts

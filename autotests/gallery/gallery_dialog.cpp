// SPDX-License-Identifier: Apache-2.0
#include "autotests/gallery/gallery_dialog.h"

#include "resources/icons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

template <typename Widget>
Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QLatin1StringView(name));
    return widget;
}

template <typename Widget>
Widget *disabled(Widget *widget)
{
    widget->setEnabled(false);
    return widget;
}

QLabel *label(const QString &text, const char *name = "") { return named(new QLabel(text), name); }

QLabel *icon(const char *name)
{
    QLabel *icon = label({}, name);
    icon->setFixedSize(20, 20); // the sheet leaves that to the dialogs
    return icon;
}

QTableWidget *table()
{
    auto *table = new QTableWidget(3, 2);
    table->setHorizontalHeaderLabels({QStringLiteral("Device"), QStringLiteral("Result")});
    table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("Speaker")));
    table->setItem(0, 1, new QTableWidgetItem(QStringLiteral("passed")));
    table->setItem(1, 0, new QTableWidgetItem(QStringLiteral("Headset")));
    auto *grey = new QTableWidgetItem(QStringLiteral("none"));
    grey->setFlags(Qt::NoItemFlags);
    table->setItem(1, 1, grey);
    table->setAlternatingRowColors(true);
    table->setCurrentCell(0, 0);
    return table;
}

QTreeWidget *tree()
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabel(QStringLiteral("Tree"));
    auto *parent = new QTreeWidgetItem(tree, {QStringLiteral("Sounds")});
    new QTreeWidgetItem(parent, {QStringLiteral("One")});
    tree->expandAll();
    return tree;
}

QTabWidget *tabs()
{
    auto *tabs = new QTabWidget;
    auto *bar = new QProgressBar;
    bar->setValue(60);
    auto *page = new QWidget;
    auto *rows = new QVBoxLayout(page);
    rows->addWidget(bar);
    rows->addWidget(label(QStringLiteral("Page of a tab")));
    tabs->addTab(page, QStringLiteral("Current"));
    tabs->addTab(new QWidget, QStringLiteral("Other"));
    return tabs;
}

QWidget *card(const char *name, const QString &text)
{
    auto *card = named(new QWidget, name);
    auto *row = new QHBoxLayout(card);
    row->addWidget(label(text));
    return card;
}

} // namespace

GalleryDialog::GalleryDialog(QWidget *parent) : AccessibleDialogBase(parent)
{
    ostra::initIcons();
    setWindowTitle(QStringLiteral("Gallery"));
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    auto *container = named(new QWidget, "AudioPlaybackTestWidget"); // the dialog itself is translucent
    whole->addWidget(container);
    auto *rows = new QVBoxLayout(container);
    rows->setContentsMargins(6, 6, 6, 6);
    rows->addWidget(header());
    auto *menu = new QMenuBar;
    menu->addMenu(QStringLiteral("File"));
    menu->addMenu(QStringLiteral("Help"));
    rows->addWidget(menu);
    rows->addWidget(sequenceRow());
    auto *columns = new QHBoxLayout;
    for (QWidget *column : {buttons(), numpad(), choicesAndFields(), views()})
        columns->addWidget(column);
    rows->addLayout(columns);
    rows->addWidget(cards());
    auto *status = new QStatusBar;
    status->showMessage(QStringLiteral("Status"));
    rows->addWidget(status);
    findChild<QPushButton *>(QStringLiteral("focused"))->setFocus();
    resize(1020, 720);
}

QPushButton *GalleryDialog::addButton(QLayout &layout, const QString &text, const char *name)
{
    auto *button = named(new QPushButton(text), name);
    button->setAutoDefault(false);
    layout.addWidget(button);
    return button;
}

QWidget *GalleryDialog::header()
{
    auto *header = named(new QWidget, "audio_playback_test_header");
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(icon("audio_playback_test_header_icon"));
    row->addWidget(label(QStringLiteral("Header of a test"), "audio_playback_test_header_label"));
    row->addStretch();
    addButton(*row, {}, "header_close");
    return header;
}

QWidget *GalleryDialog::sequenceRow()
{
    auto *widget = named(new QWidget, "audio_playback_test_sequence_icons_widget");
    auto *row = new QHBoxLayout(widget);
    row->addWidget(icon("audio_playback_test_general_instruction_icon"));
    row->addWidget(label(QStringLiteral("Instruction"), "audio_playback_test_general_instruction_message"));
    row->addWidget(icon("audio_playback_test_current_audio_sequence_icon"));
    row->addWidget(icon("audio_playback_test_failed_audio_sequence_icon"));
    row->addWidget(icon("audio_playback_test_non_executed_audio_sequence_icon"));
    row->addWidget(label(QStringLiteral("First sequence"), "audio_playback_test_first_audio_sequence_message"));
    auto *frame = named(new QFrame, "audio_playback_test_second_audio_sequence_message_background");
    auto *inner = new QHBoxLayout(frame);
    inner->addWidget(label(QStringLiteral("Second sequence"), "audio_playback_test_second_audio_sequence_message"));
    row->addWidget(frame);
    return widget;
}

QWidget *GalleryDialog::buttons()
{
    auto *box = new QGroupBox(QStringLiteral("Buttons"));
    auto *rows = new QVBoxLayout(box);
    addButton(*rows, QStringLiteral("Usual"));
    addButton(*rows, QStringLiteral("Focused"), "focused");
    addButton(*rows, QStringLiteral("Default"))->setDefault(true);
    addButton(*rows, QStringLiteral("Pressed"))->setDown(true);
    QPushButton *checked = addButton(*rows, QStringLiteral("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    disabled(addButton(*rows, QStringLiteral("Disabled")));
    addButton(*rows, QStringLiteral("Flat"))->setFlat(true);
    addButton(*rows, QStringLiteral("NEXT"), "microphone_test_next_button");
    disabled(addButton(*rows, QStringLiteral("NEXT"), "microphone_test_next_button"));
    addButton(*rows, QStringLiteral("CANCEL"), "microphone_test_cancel_button");
    return box;
}

QWidget *GalleryDialog::numpad()
{
    auto *space = named(new QWidget, "audio_playback_test_numpad_space");
    auto *grid = new QGridLayout(space);
    grid->addWidget(label(QStringLiteral("Type what you hear"), "audio_playback_test_numpad_instructions_message"), 0, 0, 1, 3);
    const auto add = [this, grid](const QString &text, const char *name, int row, int column) {
        QPushButton *button = addButton(*grid, text, name);
        button->setFixedSize(40, 40);
        grid->addWidget(button, row, column);
        return button;
    };
    add(QStringLiteral("1"), "audio_playback_test_numpad_button_unpressed_1", 1, 0);
    add(QStringLiteral("2"), "audio_playback_test_numpad_button_pressed_2", 1, 1);
    disabled(add(QStringLiteral("3"), "audio_playback_test_numpad_button_unpressed_3", 1, 2));
    add({}, "audio_playback_test_numpad_backspace_button", 2, 0);
    add({}, "audio_playback_test_numpad_repeat_button", 2, 1);
    disabled(add({}, "audio_playback_test_numpad_repeat_button", 2, 2));
    add(QStringLiteral("7"), "audio_playback_test_first_input_set", 3, 0);
    add({}, "audio_playback_test_second_input_current", 3, 1);
    add({}, "audio_playback_test_third_input_unset", 3, 2);
    disabled(add(QStringLiteral("8"), "audio_playback_test_first_input_set", 4, 0));
    auto *fail = addButton(*grid, QStringLiteral("I HEAR NOTHING"), "audio_playback_test_fail_button");
    grid->addWidget(fail, 5, 0, 1, 3);
    grid->addWidget(microphonePage(), 6, 0, 1, 3);
    return space;
}

QWidget *GalleryDialog::microphonePage()
{
    auto *pages = named(new QStackedWidget, "microphone_test_popups_space");
    auto *page = named(new QWidget, "RecordAudio");
    auto *rows = new QVBoxLayout(page);
    rows->addWidget(label(QStringLiteral("Speak now"), "microphone_test_record_message"));
    auto *lcd = named(new QLCDNumber, "microphone_test_lcd_numbers");
    lcd->display(QStringLiteral("00:03"));
    rows->addWidget(lcd);
    addButton(*rows, QStringLiteral("RECORD"), "microphone_test_record_button");
    disabled(addButton(*rows, QStringLiteral("PLAY"), "microphone_test_play_button"));
    pages->addWidget(page);
    return pages;
}

QWidget *GalleryDialog::choicesAndFields()
{
    auto *box = new QGroupBox(QStringLiteral("Choices and fields"));
    auto *rows = new QVBoxLayout(box);
    auto *chosen = named(new QRadioButton(QStringLiteral("Built-in microphone")), "microphone_test_radio_button");
    chosen->setChecked(true);
    auto *checked = new QCheckBox(QStringLiteral("Checked"));
    checked->setChecked(true);
    auto *combo = new QComboBox;
    combo->addItem(QStringLiteral("Combo box"));
    auto *text = new QPlainTextEdit(QStringLiteral("Plain text"));
    auto *rich = new QTextEdit(QStringLiteral("Text"));
    text->setMaximumHeight(40);
    rich->setMaximumHeight(40);
    auto *readOnly = new QLineEdit(QStringLiteral("Read only"));
    readOnly->setReadOnly(true);
    auto *selected = new QLineEdit(QStringLiteral("Selected text"));
    selected->setSelection(0, 8);
    const std::initializer_list<QWidget *> widgets = {chosen,
                                                      new QRadioButton(QStringLiteral("Other")),
                                                      disabled(new QRadioButton(QStringLiteral("Disabled"))),
                                                      checked,
                                                      new QCheckBox(QStringLiteral("Unchecked")),
                                                      disabled(new QCheckBox(QStringLiteral("Disabled"))),
                                                      selected,
                                                      readOnly,
                                                      disabled(new QLineEdit(QStringLiteral("Disabled"))),
                                                      new QSpinBox,
                                                      disabled(new QSpinBox),
                                                      new QDoubleSpinBox,
                                                      combo,
                                                      text,
                                                      rich,
                                                      disabled(label(QStringLiteral("Disabled label")))};
    for (QWidget *widget : widgets)
        rows->addWidget(widget);
    return box;
}

QWidget *GalleryDialog::views()
{
    auto *splitter = new QSplitter(Qt::Vertical);
    auto *list = new QListWidget;
    for (int row = 1; row <= 9; ++row)
        list->addItem(QStringLiteral("Row %1").arg(row));
    list->setCurrentRow(1);
    for (QWidget *view : std::initializer_list<QWidget *>{list, table(), tree(), tabs()})
        splitter->addWidget(view);
    return splitter;
}

QWidget *GalleryDialog::cards()
{
    auto *widget = named(new QWidget, "microphone_test_footer");
    auto *row = new QHBoxLayout(widget);
    row->addWidget(card("camera_barcode_test_information_message_container", QStringLiteral("Information")));
    row->addWidget(card("camera_barcode_test_warning_container", QStringLiteral("Warning")));
    row->addWidget(card("border_widget", QStringLiteral("Border")));
    row->addWidget(card("display_interactive_widget_card", QStringLiteral("Card")));
    return widget;
}

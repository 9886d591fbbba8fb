// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_dialog_rules.h"

#include <QStringList>

#include <array>

namespace ostra::utils {

namespace {

constexpr std::array containers = {
    "AudioPlaybackTestWidget",
    "audio_playback_test_header",
    "audio_playback_test_general_instruction_widget",
    "audio_playback_test_sequence_icons_widget",
    "audio_playback_test_audio_sequence_text_widget",
    "audio_playback_test_io_space",
    "audio_playback_test_input_and_gif_space",
    "audio_playback_test_input_sequence",
    "audio_playback_test_numpad_space",
    "SelectDevice",
    "RecordAudio",
    "PlayAudio",
    "microphone_test_header",
    "microphone_test_footer",
    "microphone_test_selection_text_space",
    "microphone_test_selection_radio_buttons_space",
    "microphone_test_selection_buttons_space",
};

constexpr std::array labels = {
    "audio_playback_test_header_label",
    "audio_playback_test_general_instruction_message",
    "audio_playback_test_first_audio_sequence_message",
    "audio_playback_test_second_audio_sequence_message",
    "audio_playback_test_numpad_instructions_message",
    "microphone_test_header_label",
    "microphone_test_select_mic_device_label",
    "microphone_test_record_message",
    "microphone_test_play_message",
};

class DialogRules {
public:
    DialogRules(StyleRules &rules, const ContrastColors &colors) : rules_(rules), colors_(colors) {}

    void addClasses();
    void addButtonStates();
    void addNamed();
    void addCards();

private:
    void set(const QString &selector, const char *property, const QString &value)
    {
        rules_.rule(selector).set(QLatin1StringView(property), value);
    }

    void setPair(const QString &selector, const QString &text, const QString &fill)
    {
        set(selector, "color", text);
        set(selector, "background-color", fill);
    }

    void setFrame(const QString &selector, const char *line, const QString &color, const char *radius)
    {
        set(selector, "border", QLatin1StringView(line) + u' ' + color);
        set(selector, "border-radius", QLatin1StringView(radius));
    }

    void setWindow(const QString &selector) { setPair(selector, colors_.windowText, colors_.window); }

    StyleRules &rules_;
    const ContrastColors &colors_;
};

void DialogRules::addClasses()
{
    set(QStringLiteral("QWidget"), "color", colors_.windowText);
    set(QStringLiteral("QWidget"), "selection-color", colors_.highlightText);
    set(QStringLiteral("QWidget"), "selection-background-color", colors_.highlight);
    for (const char *type : {"QDialog", "QStackedWidget", "QSpinBox", "QLCDNumber", "QHeaderView"})
        setWindow(QLatin1StringView(type));
    set(QStringLiteral("QLabel"), "color", colors_.windowText);
    set(QStringLiteral("QLabel:disabled"), "color", colors_.grayText);
    set(QStringLiteral("QRadioButton"), "color", colors_.windowText);
    set(QStringLiteral("QRadioButton:disabled"), "color", colors_.grayText);
    setPair(QStringLiteral("QComboBox"), colors_.buttonText, colors_.buttonFace);
    setPair(QStringLiteral("QSpinBox:disabled"), colors_.grayText, colors_.window);
    setPair(QStringLiteral("QComboBox:disabled"), colors_.grayText, colors_.window);
    setWindow(QStringLiteral("QComboBox QAbstractItemView"));
    for (const char *view : {"QTableView", "QTreeView", "QListView"})
        setPair(QLatin1StringView(view) + QStringLiteral("::item:disabled"), colors_.grayText, colors_.window);
    setWindow(QStringLiteral("QToolTip"));
    set(QStringLiteral("QToolTip"), "border", QStringLiteral("1px solid ") + colors_.infoText);
    // The native marks of a tree are drawn for a light background: a full square can be opened, a frame closed.
    const QString branch = QStringLiteral("QTreeView::branch:has-children");
    set(branch + QStringLiteral(":closed"), "background-color", colors_.windowText);
    set(branch + QStringLiteral(":open"), "border", QStringLiteral("2px solid ") + colors_.windowText);
    for (const char *state : {":closed", ":open"})
        set(branch + QLatin1StringView(state), "margin", QStringLiteral("6px"));
    // The percentage runs over both halves of a bar: the done half is told by a line below the text.
    const QString chunk = QStringLiteral("QProgressBar::chunk");
    set(chunk, "background-color", colors_.window);
    set(chunk, "border-bottom", QStringLiteral("4px solid ") + colors_.highlight);
    set(chunk, "border-right", QStringLiteral("2px solid ") + colors_.highlight);
}

void DialogRules::addButtonStates()
{
    const QString button = QStringLiteral("QPushButton");
    setPair(button, colors_.buttonText, colors_.buttonFace);
    setFrame(button, "2px solid", colors_.buttonText, "4px");
    set(button, "outline-style", QStringLiteral("none"));
    set(QStringLiteral("QPushButton:active"), "outline-style", QStringLiteral("none"));
    for (const char *state : {"hover", "pressed", "selected", "flat:hover", "flat:pressed"})
        setPair(button + u':' + QLatin1StringView(state), colors_.highlightText, colors_.highlight);
    set(QStringLiteral("QPushButton:focus"), "border", QStringLiteral("2px solid ") + colors_.highlight);
    set(QStringLiteral("QPushButton:focus"), "outline-style", QStringLiteral("none"));
    set(QStringLiteral("QPushButton:focus"), "text-decoration", QStringLiteral("underline")); // not by colour alone
    for (const char *state : {"disabled", "flat:disabled"})
        setPair(button + u':' + QLatin1StringView(state), colors_.grayText, colors_.window);
    set(QStringLiteral("QPushButton:disabled"), "border", QStringLiteral("2px dotted ") + colors_.grayText);
}

void DialogRules::addNamed()
{
    for (const char *name : containers)
        setWindow(QStringLiteral("QWidget#") + QLatin1StringView(name));
    for (const char *name : labels)
        set(QStringLiteral("QLabel#") + QLatin1StringView(name), "color", colors_.windowText);
    for (const char *position : {"first", "second", "third"}) // a thin dashed line is too faint
        set(QStringLiteral("QPushButton#audio_playback_test_%1_input_unset").arg(QLatin1StringView(position)), "border",
            QStringLiteral("2px dashed ") + colors_.buttonText);
    setWindow(QStringLiteral("QStackedWidget#microphone_test_popups_space"));
    set(QStringLiteral("QRadioButton#microphone_test_radio_button"), "color", colors_.windowText);
    set(QStringLiteral("QRadioButton#microphone_test_radio_button:disabled"), "color", colors_.grayText);
    set(QStringLiteral("QRadioButton#microphone_test_radio_button:focus"), "border",
        QStringLiteral("2px solid ") + colors_.highlight);
    setWindow(QStringLiteral("QLCDNumber#microphone_test_lcd_numbers"));
    setFrame(QStringLiteral("QLCDNumber#microphone_test_lcd_numbers"), "1px solid", colors_.windowFrame, "8px");
}

// What is told by a tint in the product's style is told by the kind of frame here.
void DialogRules::addCards()
{
    const QString information = QStringLiteral("QWidget#camera_barcode_test_information_message_container");
    const QString warning = QStringLiteral("QWidget#camera_barcode_test_warning_container");
    const QString border = QStringLiteral("QWidget#border_widget");
    const QString card = QStringLiteral("QWidget#display_interactive_widget_card");
    for (const QString &container : {information, warning, border, card})
        setWindow(container);
    setFrame(information, "2px solid", colors_.infoText, "8px");
    setFrame(warning, "2px dashed", colors_.windowText, "8px");
    setFrame(border, "2px solid", colors_.windowFrame, "8px");
    setFrame(card, "2px solid", colors_.windowFrame, "14px");

    const QString close = QStringLiteral("QPushButton#header_close");
    setPair(close, colors_.buttonText, colors_.buttonFace);
    setFrame(close, "2px solid", colors_.buttonText, "4px");
    setPair(close + QStringLiteral(":hover"), colors_.highlightText, colors_.highlight);
    setPair(close + QStringLiteral(":pressed"), colors_.highlightText, colors_.highlight);
    set(close + QStringLiteral(":focus"), "border", QStringLiteral("2px solid ") + colors_.highlight);
    set(close + QStringLiteral(":focus"), "outline-style", QStringLiteral("none"));
}

} // namespace

void addDialogRules(StyleRules &rules, const ContrastColors &colors)
{
    DialogRules dialogRules(rules, colors);
    dialogRules.addClasses();
    dialogRules.addButtonStates();
    dialogRules.addNamed();
    dialogRules.addCards();
}

} // namespace ostra::utils

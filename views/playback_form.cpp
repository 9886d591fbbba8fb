// SPDX-License-Identifier: Apache-2.0
#include "views/playback_form.h"

#include "ui_audio_playback_test_view.h"
#include "views/playback_keypad.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QFont>
#include <QLayout>
#include <QList>

#include <array>
#include <initializer_list>

namespace ostra::playback_form {

namespace {

// Pixels at 96 DPI. Text is measured in pixels of the form, not in points: the form grows with the monitor's DPI whether or
// not Qt scales points on its own, and the text has to grow with it.
constexpr int dialogWidth = 466;
constexpr int dialogHeight = 424;
constexpr int keySide = 34;
constexpr int inputSide = 30;
constexpr int iconSide = 20;
constexpr int closeSide = 22;
constexpr int indicatorWidth = 67;
constexpr int indicatorHeight = 28;
constexpr double textHeight = 8.0 * 96.0 / 72.0; // eight points
constexpr double titleHeight = 9.0 * 96.0 / 72.0;
constexpr double digitHeight = 12.0 * 96.0 / 72.0;

QString text(const char *key) { return QCoreApplication::translate("AUDIO", key); }

QSize scaled(int width, int height, double factor)
{
    return {static_cast<int>(width * factor), static_cast<int>(height * factor)};
}

QFont scaledFont(double height, double factor)
{
    QFont font = QApplication::font();
    font.setPixelSize(qRound(height * factor));
    return font;
}

std::array<QPushButton *, 9> inputs(const Ui::AudioPlaybackTestWidget &form)
{
    return {form.audio_playback_test_first_input_set,      form.audio_playback_test_first_input_current,
            form.audio_playback_test_first_input_unset,    form.audio_playback_test_second_input_set,
            form.audio_playback_test_second_input_current, form.audio_playback_test_second_input_unset,
            form.audio_playback_test_third_input_set,      form.audio_playback_test_third_input_current,
            form.audio_playback_test_third_input_unset};
}

void scaleButtons(const Ui::AudioPlaybackTestWidget &form, double factor)
{
    const QSize key = scaled(keySide, keySide, factor);
    const QFont font = scaledFont(digitHeight, factor);
    const PlaybackKeypad keypad(form);
    for (int digit = 0; digit < PlaybackKeypad::digitCount; ++digit) {
        for (QPushButton *button : {&keypad.unpressed(digit), &keypad.pressed(digit)}) {
            button->setFixedSize(key);
            button->setFont(font);
        }
    }
    form.audio_playback_test_numpad_backspace_button->setFixedSize(key);
    form.audio_playback_test_numpad_repeat_button->setFixedSize(key);
    form.audio_playback_test_header_close->setFixedSize(scaled(closeSide, closeSide, factor));
    for (QPushButton *input : inputs(form)) {
        input->setFixedSize(scaled(inputSide, inputSide, factor));
        input->setFont(font);
        input->setAttribute(Qt::WA_TransparentForMouseEvents); // they look like buttons and only tell
    }
}

void scaleIcons(const Ui::AudioPlaybackTestWidget &form, double factor)
{
    for (QLabel *icon :
         {form.audio_playback_test_header_icon, form.audio_playback_test_general_instruction_icon,
          form.audio_playback_test_current_audio_sequence_icon, form.audio_playback_test_failed_audio_sequence_icon,
          form.audio_playback_test_non_executed_audio_sequence_icon, form.audio_playback_test_current_audio_sequence_icon_2})
        icon->setFixedSize(scaled(iconSide, iconSide, factor));
    form.audio_playback_test_sound_indicator_gif->setFixedSize(scaled(indicatorWidth, indicatorHeight, factor));
}

void scaleTexts(const Ui::AudioPlaybackTestWidget &form, double factor)
{
    const QFont font = scaledFont(textHeight, factor);
    for (QWidget *widget : std::initializer_list<QWidget *>{
             form.audio_playback_test_general_instruction_message, form.audio_playback_test_first_audio_sequence_message,
             form.audio_playback_test_second_audio_sequence_message, form.audio_playback_test_numpad_instructions_message,
             form.audio_playback_test_fail_button})
        widget->setFont(font);
    form.audio_playback_test_header_label->setFont(scaledFont(titleHeight, factor));
}

void scaleSpacing(const QDialog &dialog, double factor)
{
    const QList<QLayout *> layouts = dialog.findChildren<QLayout *>();
    for (QLayout *layout : layouts)
        layout->setSpacing(static_cast<int>(layout->spacing() * factor));
}

void setToolTip(QPushButton &button, const char *key)
{
    button.setToolTip(text(key));
    button.setAccessibleName(text(key)); // its face is a picture
}

void nameIcons(const Ui::AudioPlaybackTestWidget &form)
{
    form.audio_playback_test_current_audio_sequence_icon->setAccessibleName(text("FIRST_SEQUENCE"));
    form.audio_playback_test_failed_audio_sequence_icon->setAccessibleName(text("FIRST_SEQUENCE"));
    form.audio_playback_test_failed_audio_sequence_icon->setAccessibleDescription(text("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE"));
    form.audio_playback_test_non_executed_audio_sequence_icon->setAccessibleName(text("SECOND_SEQUENCE"));
    form.audio_playback_test_current_audio_sequence_icon_2->setAccessibleName(text("SECOND_SEQUENCE"));
    form.audio_playback_test_sound_indicator_gif->setAccessibleName(text("AUDIO_PLAYBACK_TEST"));
    for (QPushButton *input : inputs(form)) // a digit that is set is its own name
        input->setAccessibleName(input->objectName().endsWith(QStringLiteral("_set")) ? QString()
                                                                                      : text("SELECT_OR_TYPE_NUMBER"));
}

} // namespace

void scale(const Ui::AudioPlaybackTestWidget &form, QDialog &dialog, double scaleFactor)
{
    dialog.setFixedSize(scaled(dialogWidth, dialogHeight, scaleFactor));
    scaleButtons(form, scaleFactor);
    scaleIcons(form, scaleFactor);
    scaleTexts(form, scaleFactor);
    scaleSpacing(dialog, scaleFactor);
    form.audio_playback_test_header_close->setCursor(Qt::PointingHandCursor);
    form.audio_playback_test_fail_button->setCursor(Qt::PointingHandCursor);
}

void setTexts(const Ui::AudioPlaybackTestWidget &form, QDialog &dialog)
{
    dialog.setWindowTitle(text("APPLICATION_NAME"));
    form.audio_playback_test_header_label->setText(text("AUDIO_PLAYBACK_TEST"));
    form.audio_playback_test_first_audio_sequence_message->setText(text("FIRST_SEQUENCE"));
    form.audio_playback_test_second_audio_sequence_message->setText(text("SECOND_SEQUENCE"));
    form.audio_playback_test_general_instruction_message->setText(text("AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS"));
    form.audio_playback_test_numpad_instructions_message->setText(text("SELECT_OR_TYPE_NUMBER") + u'\n' +
                                                                  text("CLICK_FAIL_IF_NO_SOUND_WAS_HEARD"));
    form.audio_playback_test_fail_button->setText(text("FAIL_BUTTON_TEXT"));
    form.audio_playback_test_fail_button->setToolTip(text("FAIL_BUTTON_TOOLTP"));
    setToolTip(*form.audio_playback_test_numpad_backspace_button, "BACKSPACE_BUTTON_TOOLTP");
    setToolTip(*form.audio_playback_test_numpad_repeat_button, "PLAY_THE_SEQUENCE_AGAIN");
    form.audio_playback_test_header_close->setAccessibleName(text("CANCEL"));
    nameIcons(form);
}

void showFirstSequence(const Ui::AudioPlaybackTestWidget &form)
{
    form.audio_playback_test_failed_audio_sequence_icon->hide();
    form.audio_playback_test_current_audio_sequence_icon_2->hide();
    form.audio_playback_test_second_audio_sequence_message_background->hide();
}

void showSecondSequence(const Ui::AudioPlaybackTestWidget &form, bool wrapsWords)
{
    form.audio_playback_test_current_audio_sequence_icon->hide();
    form.audio_playback_test_failed_audio_sequence_icon->show();
    form.audio_playback_test_current_audio_sequence_icon_2->show();
    form.audio_playback_test_non_executed_audio_sequence_icon->hide();
    form.audio_playback_test_second_audio_sequence_message->setWordWrap(wrapsWords);
    form.audio_playback_test_first_audio_sequence_message->hide();
    form.audio_playback_test_second_audio_sequence_message_background->show();
}

} // namespace ostra::playback_form

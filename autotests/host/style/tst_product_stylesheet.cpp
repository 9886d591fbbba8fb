// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/style/sheet_rules.h"

#include "contract/style_manager.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLCDNumber>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStringList>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <string>

using ostra::utils::style_manager::StyleManager;

namespace {

constexpr double bodyText = 7.0;
constexpr double anyText = 4.5;
constexpr double meaningfulGraphic = 3.0;

QString productSheet() { return QString::fromStdString(StyleManager::instance()->Stylesheet()); }

// Everything that Qt says while it lives.
class MessageCollector {
public:
    MessageCollector()
    {
        messages().clear();
        before_ =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { messages().append(text); });
    }
    ~MessageCollector() { qInstallMessageHandler(before_); }
    MessageCollector(const MessageCollector &) = delete;
    MessageCollector &operator=(const MessageCollector &) = delete;

    static QStringList complaints()
    {
        static const QRegularExpression complaint(QStringLiteral("parse|unknown property|style ?sheet"),
                                                  QRegularExpression::CaseInsensitiveOption);
        return messages().filter(complaint);
    }

private:
    static QStringList &messages()
    {
        static QStringList list;
        return list;
    }
    QtMessageHandler before_;
};

template <typename Widget>
Widget *addNamed(QDialog &dialog, const QString &name)
{
    auto *widget = new Widget(&dialog);
    widget->setObjectName(name);
    dialog.layout()->addWidget(widget);
    return widget;
}

std::unique_ptr<QDialog> dressedDialog(const QString &sheet)
{
    auto dialog = std::make_unique<QDialog>();
    new QVBoxLayout(dialog.get());
    addNamed<QWidget>(*dialog, QStringLiteral("audio_playback_test_header"))->setFixedSize(80, 20);
    addNamed<QLabel>(*dialog, QStringLiteral("audio_playback_test_header_label"))->setText(QStringLiteral("Title"));
    addNamed<QPushButton>(*dialog, QStringLiteral("audio_playback_test_header_close"));
    addNamed<QPushButton>(*dialog, QStringLiteral("audio_playback_test_numpad_button_unpressed_1"))->setFixedSize(34, 34);
    addNamed<QPushButton>(*dialog, QStringLiteral("microphone_test_next_button"))->setFixedSize(80, 30);
    addNamed<QRadioButton>(*dialog, QStringLiteral("microphone_test_radio_button"))->setChecked(true);
    addNamed<QLCDNumber>(*dialog, QStringLiteral("microphone_test_lcd_numbers"));
    addNamed<QStackedWidget>(*dialog, QStringLiteral("microphone_test_popups_space"))->setFixedSize(80, 20);
    addNamed<QSpinBox>(*dialog, QStringLiteral("count"));
    addNamed<QComboBox>(*dialog, QStringLiteral("choice"));
    dialog->setStyleSheet(sheet);
    dialog->show();
    QApplication::processEvents();
    return dialog;
}

QColor centre(const QDialog &dialog, const QString &name)
{
    QWidget *widget = dialog.findChild<QWidget *>(name);
    const QImage image = widget->grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 4);
}

void addDigits(QStringList &names, const QString &prefix)
{
    for (int digit = 0; digit < 10; ++digit)
        names.append(prefix + QString::number(digit));
}

QStringList sizedByTheDialog()
{
    QStringList names{QStringLiteral("numpad_backspace_button"), QStringLiteral("numpad_repeat_button"),
                      QStringLiteral("numpad_instructions_message"), QStringLiteral("fail_button")};
    addDigits(names, QStringLiteral("numpad_button_unpressed_"));
    addDigits(names, QStringLiteral("numpad_button_pressed_"));
    for (const char *position : {"first", "second", "third"}) {
        for (const char *state : {"set", "current", "unset"})
            names.append(QStringLiteral("%1_input_%2").arg(QLatin1String(position), QLatin1String(state)));
    }
    names.replaceInStrings(QRegularExpression(QStringLiteral("^")), QStringLiteral("audio_playback_test_"));
    return names;
}

} // namespace

class TestProductStylesheet : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void managerIsOneObject();
    void qtReadsTheSheetWithoutComplaint();
    void aBrokenSheetWouldBeNoticed();
    void everyRuleReadsAsOne();
    void noSelectorHasTwoRulesForOneProperty();
    void widgetsOfTheDialogsHaveRules_data();
    void widgetsOfTheDialogsHaveRules();
    void textIsReadable_data();
    void textIsReadable();
    void everyRuleWithBothColoursIsReadable();
    void focusShowsAsABorder_data();
    void focusShowsAsABorder();
    void disabledIsNotToldByColourAlone();
    void sizesAndFontsOfTheDialogsAreLeftAlone();
    void containersAreOpaque_data();
    void containersAreOpaque();
    void iconsAreResourcesThatTheTargetCanDraw();
    void declaredColoursReachTheScreen();

private:
    QString value(const QString &selector, const QString &property) const { return sheetValue(rules_, selector, property); }
    QColor color(const QString &selector, const QString &property) const { return sheetColor(value(selector, property)); }

    QList<SheetRule> rules_;
    bool isWellFormed_ = false;
};

void TestProductStylesheet::initTestCase() { rules_ = parseSheet(productSheet(), isWellFormed_); }

void TestProductStylesheet::managerIsOneObject()
{
    QVERIFY(StyleManager::instance() != nullptr);
    QCOMPARE(StyleManager::instance(), StyleManager::instance());
    QVERIFY(StyleManager::instance()->Stylesheet() == StyleManager::instance()->Stylesheet());
}

void TestProductStylesheet::qtReadsTheSheetWithoutComplaint()
{
    const MessageCollector collector;
    const auto dialog = dressedDialog(productSheet());
    const QWidget *button = dialog->findChild<QWidget *>(QStringLiteral("microphone_test_next_button"));
    QVERIFY(button->isVisible());
    QCOMPARE(MessageCollector::complaints(), QStringList());
}

void TestProductStylesheet::aBrokenSheetWouldBeNoticed()
{
    const MessageCollector collector;
    const auto dialog = dressedDialog(productSheet() + QStringLiteral("\nQLabel { color: "));
    QVERIFY(!MessageCollector::complaints().isEmpty());
}

void TestProductStylesheet::everyRuleReadsAsOne()
{
    QVERIFY(isWellFormed_);
    QVERIFY2(rules_.size() > 100, qPrintable(QString::number(rules_.size())));
    QVERIFY(!productSheet().contains(QStringLiteral("/*")));
}

void TestProductStylesheet::noSelectorHasTwoRulesForOneProperty()
{
    // Readers that merge the rules of a selector would lose the order between them.
    QStringList seen;
    for (const SheetRule &rule : rules_) {
        for (const QString &selector : rule.selectors) {
            for (auto it = rule.declarations.cbegin(); it != rule.declarations.cend(); ++it) {
                const QString key = selector + QStringLiteral(" / ") + it.key();
                QVERIFY2(!seen.contains(key), qPrintable(key));
                seen.append(key);
            }
        }
    }
}

void TestProductStylesheet::widgetsOfTheDialogsHaveRules_data()
{
    QTest::addColumn<QString>("selector");
    const QStringList selectors =
        QStringLiteral(
            "QDialog|QMainWindow|QLabel|QPushButton|QPushButton:focus|QPushButton:disabled|QPushButton:hover|QPushButton:"
            "pressed|"
            "QSpinBox|QComboBox|QRadioButton|QLCDNumber|QStackedWidget|QTableView|QTreeView|QHeaderView::section|QMenu|"
            "QToolTip|"
            "QProgressBar|QScrollBar:vertical|QWidget#audio_playback_test_header|QLabel#audio_playback_test_header_icon|"
            "QLabel#audio_playback_test_header_label|QPushButton#audio_playback_test_header_close|"
            "QWidget#audio_playback_test_general_instruction_widget|QLabel#audio_playback_test_general_instruction_icon|"
            "QLabel#audio_playback_test_general_instruction_message|QWidget#audio_playback_test_sequence_icons_widget|"
            "QLabel#audio_playback_test_current_audio_sequence_icon|QLabel#audio_playback_test_failed_audio_sequence_icon|"
            "QLabel#audio_playback_test_non_executed_audio_sequence_icon|QLabel#audio_playback_test_current_audio_sequence_"
            "icon_2|"
            "QWidget#audio_playback_test_audio_sequence_text_widget|QLabel#audio_playback_test_first_audio_sequence_message|"
            "QFrame#audio_playback_test_second_audio_sequence_message_background|"
            "QLabel#audio_playback_test_second_audio_sequence_message|QWidget#audio_playback_test_io_space|"
            "QWidget#audio_playback_test_input_and_gif_space|QLabel#audio_playback_test_sound_indicator_gif|"
            "QWidget#audio_playback_test_input_sequence|QWidget#audio_playback_test_numpad_space|"
            "QWidget#microphone_test_header|QLabel#microphone_test_header_icon|QLabel#microphone_test_header_label|"
            "QPushButton#microphone_test_header_close|QStackedWidget#microphone_test_popups_space|QWidget#microphone_test_"
            "footer|"
            "QWidget#microphone_test_selection_text_space|QLabel#microphone_test_select_mic_device_label|"
            "QWidget#microphone_test_selection_radio_buttons_space|QWidget#microphone_test_selection_buttons_space|"
            "QRadioButton#microphone_test_radio_button|QPushButton#microphone_test_cancel_button|"
            "QPushButton#microphone_test_next_button|QPushButton#microphone_test_record_button|"
            "QPushButton#microphone_test_play_button|QLabel#microphone_test_record_message|QLabel#microphone_test_play_message|"
            "QLCDNumber#microphone_test_lcd_numbers|QWidget#camera_barcode_test_information_message_container|"
            "QWidget#camera_barcode_test_warning_container|QWidget#border_widget|QWidget#display_interactive_widget_card|"
            "QPushButton#header_close")
            .split(QLatin1Char('|'));
    for (const QString &selector : selectors)
        QTest::newRow(qPrintable(selector)) << selector;
    const QStringList names = sizedByTheDialog();
    for (const QString &name : names) {
        const QLatin1String kind(name.endsWith(QStringLiteral("message")) ? "QLabel#" : "QPushButton#");
        QTest::newRow(qPrintable(name)) << kind + name;
    }
}

void TestProductStylesheet::widgetsOfTheDialogsHaveRules()
{
    QFETCH(QString, selector);
    const bool isNamed =
        std::any_of(rules_.cbegin(), rules_.cend(), [&](const SheetRule &rule) { return rule.selectors.contains(selector); });
    QVERIFY(isNamed);
}

void TestProductStylesheet::textIsReadable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("background");
    QTest::addColumn<double>("least");
    const auto row = [](const char *text, const char *background, double least) {
        QTest::addRow("%s on %s", text, background) << QString::fromLatin1(text) << QString::fromLatin1(background) << least;
    };
    row("QWidget", "QDialog", bodyText);
    row("QLabel", "QStackedWidget", bodyText);
    row("QLabel", "QWidget#audio_playback_test_io_space", bodyText);
    row("QLabel", "QWidget#camera_barcode_test_information_message_container", bodyText);
    row("QLabel", "QWidget#display_interactive_widget_card", bodyText);
    row("QLabel:disabled", "QWidget#display_interactive_widget_card", anyText);
    row("QLabel#audio_playback_test_header_label", "QWidget#audio_playback_test_header", bodyText);
    row("QLabel#microphone_test_header_label", "QWidget#microphone_test_header", bodyText);
    row("QLabel#audio_playback_test_general_instruction_message", "QWidget#audio_playback_test_general_instruction_widget",
        bodyText);
    row("QLabel#audio_playback_test_first_audio_sequence_message", "QWidget#audio_playback_test_audio_sequence_text_widget",
        bodyText);
    row("QLabel#audio_playback_test_second_audio_sequence_message",
        "QFrame#audio_playback_test_second_audio_sequence_message_background", bodyText);
    row("QWidget#camera_barcode_test_warning_container QLabel", "QWidget#camera_barcode_test_warning_container", bodyText);
    row("QRadioButton", "QRadioButton:hover", bodyText);
    row("QRadioButton#microphone_test_radio_button", "QWidget#microphone_test_selection_radio_buttons_space", bodyText);
    row("QRadioButton:disabled", "QWidget#microphone_test_selection_radio_buttons_space", anyText);
    row("QPushButton", "QPushButton:hover", bodyText);
    row("QPushButton", "QPushButton:pressed", bodyText);
    row("QPushButton", "QPushButton:focus", bodyText);
    row("QPushButton:disabled", "QPushButton:disabled", anyText);
    row("QPushButton#audio_playback_test_fail_button", "QPushButton#audio_playback_test_fail_button:hover", anyText);
    row("QPushButton#microphone_test_record_button", "QPushButton:hover", anyText);
    row("QPushButton#microphone_test_record_button", "QPushButton:pressed", anyText);
    row("QPushButton#microphone_test_record_button:disabled", "QPushButton:disabled", anyText);
    row("QPushButton#microphone_test_next_button", "QPushButton#microphone_test_next_button:hover", bodyText);
    row("QPushButton#microphone_test_next_button", "QPushButton#microphone_test_next_button:pressed", bodyText);
    row("QPushButton#microphone_test_next_button:disabled", "QPushButton#microphone_test_next_button:disabled", anyText);
    row("QProgressBar", "QProgressBar::chunk", bodyText);
    row("QMenu::item:disabled", "QMenu", anyText);
    row("QTabBar::tab", "QTabBar::tab:selected", bodyText);
}

void TestProductStylesheet::textIsReadable()
{
    QFETCH(QString, text);
    QFETCH(QString, background);
    QFETCH(double, least);
    const QColor ink = color(text, QStringLiteral("color"));
    const QColor paper = color(background, QStringLiteral("background-color"));
    QVERIFY(ink.isValid());
    QVERIFY(paper.isValid());
    const double ratio = contrastRatio(ink, paper);
    QVERIFY2(ratio >= least, qPrintable(QString::number(ratio)));
}

void TestProductStylesheet::everyRuleWithBothColoursIsReadable()
{
    int pairCount = 0;
    for (const SheetRule &rule : rules_) {
        const QColor ink = sheetColor(rule.declarations.value(QStringLiteral("color")));
        const QColor paper = sheetColor(rule.declarations.value(QStringLiteral("background-color")));
        if (!ink.isValid() || !paper.isValid())
            continue;
        ++pairCount;
        const double ratio = contrastRatio(ink, paper);
        QVERIFY2(ratio >= anyText, qPrintable(rule.selectors.first() + QStringLiteral(": ") + QString::number(ratio)));
    }
    QVERIFY(pairCount >= 25);
}

void TestProductStylesheet::focusShowsAsABorder_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("paperSelector");
    const auto row = [](const char *selector, const char *paper) {
        QTest::newRow(selector) << QString::fromLatin1(selector) << QString::fromLatin1(paper);
    };
    row("QPushButton", "QPushButton:focus");
    row("QSpinBox", "QSpinBox");
    row("QComboBox", "QComboBox");
    row("QLineEdit", "QLineEdit");
    row("QRadioButton", "QDialog");
    row("QRadioButton#microphone_test_radio_button", "QWidget#microphone_test_selection_radio_buttons_space");
    row("QPushButton#audio_playback_test_header_close", "QPushButton#audio_playback_test_header_close");
    row("QPushButton#microphone_test_header_close", "QPushButton#microphone_test_header_close");
    row("QPushButton#audio_playback_test_numpad_button_unpressed_5",
        "QPushButton#audio_playback_test_numpad_button_unpressed_5:focus");
    row("QPushButton#audio_playback_test_numpad_button_pressed_5", "QPushButton#audio_playback_test_numpad_button_pressed_5");
    row("QPushButton#audio_playback_test_numpad_backspace_button",
        "QPushButton#audio_playback_test_numpad_backspace_button:focus");
    row("QPushButton#audio_playback_test_fail_button", "QPushButton#audio_playback_test_fail_button:focus");
    row("QPushButton#audio_playback_test_first_input_set", "QPushButton#audio_playback_test_first_input_set");
    row("QPushButton#microphone_test_record_button", "QPushButton#microphone_test_record_button:focus");
    row("QPushButton#microphone_test_play_button", "QPushButton#microphone_test_play_button:focus");
    row("QPushButton#microphone_test_next_button", "QPushButton#microphone_test_next_button");
    row("QPushButton#microphone_test_cancel_button", "QPushButton#microphone_test_cancel_button:focus");
    row("QTableView", "QTableView");
    row("QTreeView", "QTreeView");
}

void TestProductStylesheet::focusShowsAsABorder()
{
    QFETCH(QString, selector);
    QFETCH(QString, paperSelector);
    const QString ring = value(selector + QStringLiteral(":focus"), QStringLiteral("border"));
    QVERIFY2(ring.contains(QStringLiteral("px solid")), qPrintable(ring));
    QVERIFY(ring != value(selector, QStringLiteral("border")));
    const QColor paper = color(paperSelector, QStringLiteral("background-color"));
    QVERIFY(paper.isValid());
    const double ratio = contrastRatio(sheetColor(ring), paper);
    QVERIFY2(ratio >= meaningfulGraphic, qPrintable(QString::number(ratio)));
}

void TestProductStylesheet::disabledIsNotToldByColourAlone()
{
    for (const SheetRule &rule : rules_) {
        for (const QString &selector : rule.selectors) {
            if (!selector.endsWith(QStringLiteral(":disabled")) || !selector.startsWith(QStringLiteral("QPushButton")) ||
                selector.contains(QStringLiteral("input_set")))
                continue;
            const QString border = rule.declarations.value(QStringLiteral("border"));
            QVERIFY2(border.contains(QStringLiteral("dotted")), qPrintable(selector));
        }
    }
}

void TestProductStylesheet::sizesAndFontsOfTheDialogsAreLeftAlone()
{
    static const QRegularExpression forbidden(
        QStringLiteral("^(font|font-size|font-family|(min|max)-(width|height)|width|height)$"));
    const QStringList names = sizedByTheDialog();
    for (const SheetRule &rule : rules_) {
        const bool isConcerned = std::any_of(rule.selectors.cbegin(), rule.selectors.cend(), [&](const QString &selector) {
            const QString name = selector.section(QLatin1Char('#'), 1).section(QLatin1Char(':'), 0, 0);
            return names.contains(name) || selector == QStringLiteral("QPushButton") || selector == QStringLiteral("QLabel") ||
                   selector == QStringLiteral("QWidget") || selector == QStringLiteral("QDialog");
        });
        if (isConcerned)
            QVERIFY2(rule.declarations.keys().filter(forbidden).isEmpty(), qPrintable(rule.selectors.first()));
    }
}

void TestProductStylesheet::containersAreOpaque_data()
{
    QTest::addColumn<QString>("selector");
    const QStringList selectors =
        QStringLiteral(
            "QDialog|QMainWindow|QStackedWidget|QWidget#AudioPlaybackTestWidget|QWidget#audio_playback_test_header|"
            "QWidget#audio_playback_test_general_instruction_widget|QWidget#audio_playback_test_sequence_icons_widget|"
            "QWidget#audio_playback_test_audio_sequence_text_widget|QWidget#audio_playback_test_io_space|"
            "QWidget#audio_playback_test_input_and_gif_space|QWidget#audio_playback_test_input_sequence|"
            "QWidget#audio_playback_test_numpad_space|"
            "QDialog#InteractionDialog|QWidget#microphone_test_header|QStackedWidget#microphone_test_popups_space|"
            "QWidget#microphone_test_footer|QWidget#SelectDevice|QWidget#RecordAudio|QWidget#PlayAudio")
            .split(QLatin1Char('|'));
    for (const QString &selector : selectors)
        QTest::newRow(qPrintable(selector)) << selector;
}

void TestProductStylesheet::containersAreOpaque()
{
    QFETCH(QString, selector);
    QVERIFY(color(selector, QStringLiteral("background-color")).isValid()); // six digits: no alpha
}

void TestProductStylesheet::iconsAreResourcesThatTheTargetCanDraw()
{
    const QRegularExpression icon(
        QStringLiteral("^url\\(\":/audio/resources/icons/[a-z_]+\\.%1\"\\)$").arg(QLatin1String(ICON_SUFFIX)));
    int iconCount = 0;
    for (const SheetRule &rule : rules_) {
        for (const char *property : {"image", "icon"}) {
            const QString url = rule.declarations.value(QLatin1String(property));
            if (url.isEmpty())
                continue;
            ++iconCount;
            QVERIFY2(icon.match(url).hasMatch(), qPrintable(url));
        }
    }
    QVERIFY(iconCount >= 12);
}

void TestProductStylesheet::declaredColoursReachTheScreen()
{
    const auto dialog = dressedDialog(productSheet());
    const auto declared = [&](const char *selector) {
        return color(QLatin1String(selector), QStringLiteral("background-color"));
    };
    QCOMPARE(centre(*dialog, QStringLiteral("audio_playback_test_header")), declared("QWidget#audio_playback_test_header"));
    QCOMPARE(centre(*dialog, QStringLiteral("microphone_test_next_button")),
             declared("QPushButton#microphone_test_next_button"));
    QCOMPARE(centre(*dialog, QStringLiteral("microphone_test_popups_space")),
             declared("QStackedWidget#microphone_test_popups_space"));
}

QTEST_MAIN(TestProductStylesheet)
#include "tst_product_stylesheet.moc"

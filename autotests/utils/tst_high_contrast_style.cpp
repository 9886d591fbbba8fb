// SPDX-License-Identifier: Apache-2.0
#include "autotests/gallery/gallery_dialog.h"
#include "autotests/host/style/sheet_rules.h"
#include "autotests/support/contrast_palettes.h"
#include "autotests/utils/text_places.h"
#include "contract/style_manager.h"
#include "utils/high_contrast_style.h"
#include "utils/screen_sources.h"
#include "utils/style_colors.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QObject>
#include <QTest>

#include <algorithm>
#include <limits>
#include <memory>

using namespace ostra::utils;
using style_manager::StyleManager;

namespace {

QString productSheet() { return QString::fromStdString(StyleManager::instance()->Stylesheet()); }

// Every system colour one of its own: tells which stands where.
QColor distinctColor(int index) { return index == system_color::highlightText ? QColor(Qt::white) : QColor(index + 1, 10, 20); }

QString distinct(int index) { return distinctColor(index).name(); }

QList<QColor> distinctColors()
{
    QList<QColor> colors;
    for (const int index : systemColorIndices)
        colors.append(distinctColor(index));
    return colors;
}

QByteArray &complaints()
{
    static QByteArray text;
    return text;
}

} // namespace

class TestHighContrastStyle : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void textIsReadable_data();
    void textIsReadable();
    void textAndFillAreOnePairWhateverThePalette();
    void weakHighlightedTextGivesWay_data();
    void weakHighlightedTextGivesWay();
    void selectionsAreOnePair();
    void captionColourStandsBehindNoText();
    void everyListedColourIsUsed();
    void position26IsTheGradientOfTheCaption();
    void onlySystemColoursRemain();
    void namedContainersHaveRules_data();
    void namedContainersHaveRules();
    void anEmptySheetStillGetsTheDialogsRules();
    void iconsTakeTheColourOfTheirText();
    void statesOfNamedButtonsAreFilledIn();
    void importanceDoesNotBreakAPair();
    void importanceDoesNotHideTheFocus();
    void sizesStayAsTheyWere();
    void qtReadsTheResult_data();
    void qtReadsTheResult();
    void aMegabyteTakesLinearTime();
    void whatIsResolvedReachesTheScreen();

private:
    std::unique_ptr<GalleryDialog> dialog_;
    QList<Place> places_;
};

void TestHighContrastStyle::initTestCase()
{
    screenSources().highContrastOn = [] { return false; };
    dialog_ = std::make_unique<GalleryDialog>();
    dialog_->ensurePolished();
    places_ = placesOf(*dialog_);
    QVERIFY2(places_.size() > 2000, qPrintable(QString::number(places_.size())));
}

void TestHighContrastStyle::textIsReadable_data()
{
    QTest::addColumn<QList<QColor>>("colors");
    for (const contrast_palettes::Palette &theme : contrast_palettes::themes)
        QTest::newRow(theme.name) << contrast_palettes::systemColors(theme);
}

void TestHighContrastStyle::textIsReadable()
{
    QFETCH(QList<QColor>, colors);
    const StyleCascade cascade(highContrastStyleSheet(productSheet(), colors, {}));
    const QString grey = colors.at(systemColorPosition(system_color::grayText)).name();
    double least = 21;
    double leastDisabled = 21;
    for (const Place &place : places_) {
        const auto [text, fill] = resolve(cascade, place);
        QVERIFY2(QColor::isValidColor(text) && QColor::isValidColor(fill), qPrintable(place.description()));
        const double ratio = contrastRatio(QColor(text), QColor(fill));
        double &lowest = text == grey ? leastDisabled : least;
        lowest = std::min(lowest, ratio);
        QVERIFY2(ratio >= (place.isDisabled() ? 4.5 : 7.0),
                 qPrintable(QStringLiteral("%1: %2 on %3, %4").arg(place.description(), text, fill).arg(ratio)));
    }
    qInfo("%lld places, least contrast %.2f, disabled %.2f", static_cast<long long>(places_.size()), least, leastDisabled);
}

void TestHighContrastStyle::textAndFillAreOnePairWhateverThePalette()
{
    using namespace system_color;
    const QStringList pairs{distinct(windowText) + distinct(window), distinct(buttonText) + distinct(buttonFace),
                            distinct(highlightText) + distinct(highlight), distinct(grayText) + distinct(window)};
    const StyleCascade cascade(highContrastStyleSheet(productSheet(), distinctColors(), {}));
    for (const Place &place : places_) {
        const auto [text, fill] = resolve(cascade, place);
        QVERIFY2(pairs.contains(text + fill), qPrintable(place.description() + u' ' + text + u' ' + fill));
        QVERIFY2(place.isDisabled() || text != distinct(grayText), qPrintable(place.description()));
    }
}

void TestHighContrastStyle::weakHighlightedTextGivesWay_data()
{
    QTest::addColumn<QColor>("highlightText");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("readable") << QColor(0x595959) << QColor(0x595959); // 7.0 on white
    QTest::newRow("just below") << QColor(0x5A5A5A) << QColor(Qt::black);
    QTest::newRow("none") << QColor(Qt::white) << QColor(Qt::black);
}

void TestHighContrastStyle::weakHighlightedTextGivesWay()
{
    QFETCH(QColor, highlightText);
    QFETCH(QColor, expected);
    QList<QColor> colors(30, Qt::white);
    colors[system_color::windowText] = Qt::black;
    colors[system_color::highlightText] = highlightText;
    StyleRules rules = StyleRules::parse(highContrastStyleSheet(QString(), colors, {}));
    QCOMPARE(rules.rule(QStringLiteral("QPushButton:hover")).value(QStringLiteral("color")), expected.name());
}

void TestHighContrastStyle::selectionsAreOnePair()
{
    const StyleRules rules = StyleRules::parse(highContrastStyleSheet(productSheet(), distinctColors(), {}));
    int count = 0;
    for (const StyleRule &rule : rules.rules()) {
        const QString fill = rule.value(QStringLiteral("selection-background-color"));
        QCOMPARE(fill.isNull(), rule.value(QStringLiteral("selection-color")).isNull());
        if (fill.isNull())
            continue;
        ++count;
        QCOMPARE(fill, distinct(system_color::highlight));
        QCOMPARE(rule.value(QStringLiteral("selection-color")), distinct(system_color::highlightText));
    }
    QVERIFY(count >= 3);
}

void TestHighContrastStyle::captionColourStandsBehindNoText()
{
    const QString caption = distinct(system_color::gradientActiveCaption);
    const StyleRules rules = StyleRules::parse(highContrastStyleSheet(productSheet(), distinctColors(), {}));
    for (const StyleRule &rule : rules.rules()) {
        const QList<StyleDeclaration> declarations = rule.declarations();
        for (const StyleDeclaration &declaration : declarations)
            QVERIFY2(!declaration.value.contains(caption) || rule.selector() == u"QSplitter::handle",
                     qPrintable(rule.selector()));
    }
}

void TestHighContrastStyle::everyListedColourIsUsed()
{
    using namespace system_color;
    const QString sheet = highContrastStyleSheet(productSheet(), distinctColors(), {});
    for (const int index : {background, buttonFace, buttonText, grayText, infoText, highlight, highlightText, windowText,
                            window, windowFrame, gradientActiveCaption})
        QVERIFY2(sheet.contains(distinct(index)), qPrintable(QString::number(index)));
}

void TestHighContrastStyle::position26IsTheGradientOfTheCaption()
{
    QList<QColor> colors(30, Qt::white);
    colors[26] = QColor(1, 2, 3);
    QVERIFY(highContrastStyleSheet(productSheet(), colors, {}).contains(QStringLiteral("  background-color: #010203;\n")));
}

void TestHighContrastStyle::onlySystemColoursRemain()
{
    QStringList known{QStringLiteral("transparent")};
    for (const QColor &color : distinctColors())
        known.append(color.name());
    const StyleRules rules = StyleRules::parse(highContrastStyleSheet(productSheet(), distinctColors(), {}));
    const QRegularExpression hexadecimal(QStringLiteral("#[0-9A-Fa-f]{6}\\b"));
    for (const StyleRule &rule : rules.rules()) {
        const QList<StyleDeclaration> declarations = rule.declarations();
        for (const auto &[property, value] : declarations) {
            for (auto match = hexadecimal.globalMatch(value); match.hasNext();)
                QVERIFY2(known.contains(match.next().captured()), qPrintable(rule.selector() + property + value));
        }
    }
}

void TestHighContrastStyle::namedContainersHaveRules_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("radius");
    const auto row = [](const char *selector, const char *line, int color, const char *radius) {
        QTest::newRow(selector) << QString::fromLatin1(selector) << QLatin1StringView(line) + u' ' + distinct(color)
                                << QString::fromLatin1(radius);
    };
    row("QWidget#camera_barcode_test_information_message_container", "2px solid", system_color::infoText, "8px");
    row("QWidget#camera_barcode_test_warning_container", "2px dashed", system_color::windowText, "8px");
    row("QWidget#border_widget", "2px solid", system_color::windowFrame, "8px");
    row("QWidget#display_interactive_widget_card", "2px solid", system_color::windowFrame, "14px");
    row("QPushButton#header_close", "2px solid", system_color::buttonText, "4px");
}

void TestHighContrastStyle::namedContainersHaveRules()
{
    QFETCH(QString, selector);
    QFETCH(QString, border);
    QFETCH(QString, radius);
    for (const QString &sheet : {QString(), productSheet()}) {
        StyleRules rules = StyleRules::parse(highContrastStyleSheet(sheet, distinctColors(), {}));
        QVERIFY(rules.contains(selector));
        QCOMPARE(rules.rule(selector).value(QStringLiteral("border")), border);
        QCOMPARE(rules.rule(selector).value(QStringLiteral("border-radius")), radius);
        QVERIFY(hasColor(rules.rule(selector).value(QStringLiteral("background-color"))));
    }
}

void TestHighContrastStyle::anEmptySheetStillGetsTheDialogsRules()
{
    StyleRules rules = StyleRules::parse(highContrastStyleSheet(QString(), distinctColors(), {}));
    for (const char *selector :
         {"QDialog", "QLabel", "QSpinBox", "QComboBox", "QRadioButton", "QLCDNumber", "QStackedWidget", "QPushButton:focus",
          "QPushButton:disabled", "QPushButton:selected", "QPushButton:active", "QWidget#microphone_test_header",
          "QLabel#microphone_test_record_message", "QRadioButton#microphone_test_radio_button",
          "QLCDNumber#microphone_test_lcd_numbers", "QStackedWidget#microphone_test_popups_space"})
        QVERIFY2(rules.contains(QLatin1StringView(selector)), selector);
    const StyleRule &focus = rules.rule(QStringLiteral("QPushButton:focus"));
    QCOMPARE(focus.value(QStringLiteral("border")), QStringLiteral("2px solid ") + distinct(system_color::highlight));
    QCOMPARE(focus.value(QStringLiteral("outline-style")), QStringLiteral("none"));
}

void TestHighContrastStyle::iconsTakeTheColourOfTheirText()
{
    const QString sheet = QStringLiteral("QPushButton#a { icon: url(\":/a.svg\"); color: red }"
                                         "QLabel#b { image: url(\":/b.svg\") } QLabel#c { border-image: url(\":/c.svg\") }");
    const auto recolour = [](const QString &value, const QString &color) {
        return QString(value).insert(value.size() - 2, color.mid(1));
    };
    StyleRules rules = StyleRules::parse(highContrastStyleSheet(sheet, distinctColors(), recolour));
    const auto icon = [&rules](const char *selector, const char *property) {
        return rules.rule(QLatin1StringView(selector)).value(QLatin1StringView(property));
    };
    const auto file = [](const char *path, int index) {
        return QStringLiteral("url(\":/%1.svg%2\")").arg(QLatin1StringView(path), distinct(index).mid(1));
    };
    QCOMPARE(icon("QPushButton#a", "icon"), file("a", system_color::buttonText));
    QCOMPARE(icon("QPushButton#a:hover", "icon"), file("a", system_color::highlightText));
    QCOMPARE(icon("QPushButton#a:pressed", "icon"), file("a", system_color::highlightText));
    QCOMPARE(icon("QPushButton#a:disabled", "icon"), file("a", system_color::grayText));
    QCOMPARE(icon("QLabel#b", "image"), file("b", system_color::windowText));
    QCOMPARE(icon("QLabel#c", "border-image"), QStringLiteral("url(\":/c.svg\")"));
}

void TestHighContrastStyle::statesOfNamedButtonsAreFilledIn()
{
    const QString sheet = QStringLiteral("QPushButton:hover { background: red } QPushButton#a { color: red }"
                                         "QPushButton#a:hover { background: blue; margin: 1px }");
    StyleRules rules = StyleRules::parse(highContrastStyleSheet(sheet, distinctColors(), {}));
    QCOMPARE(rules.rule(QStringLiteral("QPushButton#a:pressed")).value(QStringLiteral("color")),
             distinct(system_color::highlightText));
    QCOMPARE(rules.rule(QStringLiteral("QPushButton#a:disabled")).value(QStringLiteral("color")),
             distinct(system_color::grayText));
    QCOMPARE(rules.rule(QStringLiteral("QPushButton#a:hover")).value(QStringLiteral("margin")), QStringLiteral("1px"));
}

void TestHighContrastStyle::importanceDoesNotBreakAPair()
{
    const QString sheet =
        QStringLiteral("QPushButton { color: red !important; background-color: white; margin: 1px !important }");
    StyleRules rules = StyleRules::parse(highContrastStyleSheet(sheet, distinctColors(), {}));
    const StyleRule &rule = rules.rule(QStringLiteral("QPushButton"));
    QCOMPARE(rule.value(QStringLiteral("color")), distinct(system_color::buttonText));
    QCOMPARE(rule.value(QStringLiteral("margin")), QStringLiteral("1px !important"));
}

void TestHighContrastStyle::importanceDoesNotHideTheFocus()
{
    const QString sheet =
        QStringLiteral("QPushButton#a { color: red; border: none !IMPORTANT; border-radius: 3px !important }");
    const StyleRules rules = StyleRules::parse(highContrastStyleSheet(sheet, distinctColors(), {}));
    StyleRules read = rules;
    QCOMPARE(read.rule(QStringLiteral("QPushButton#a")).value(QStringLiteral("border")), QStringLiteral("none"));
    QCOMPARE(read.rule(QStringLiteral("QPushButton#a")).value(QStringLiteral("border-radius")), QStringLiteral("3px"));
    QVERIFY(read.rule(QStringLiteral("QPushButton#a:focus"))
                .value(QStringLiteral("border"))
                .startsWith(QStringLiteral("2px solid")));
}

void TestHighContrastStyle::sizesStayAsTheyWere()
{
    const StyleRules before = StyleRules::parse(productSheet());
    const StyleCascade after(highContrastStyleSheet(productSheet(), distinctColors(), {}));
    const StyleCascade origin(productSheet());
    for (const Place &place : places_) {
        for (const char *property : {"min-width", "max-height", "padding", "width", "spacing", "font-weight", "margin-top"})
            QCOMPARE(after.value(*place.widget, place.subControl, place.states, QLatin1StringView(property)),
                     origin.value(*place.widget, place.subControl, place.states, QLatin1StringView(property)));
    }
    QVERIFY(before.rules().size() > 100);
}

void TestHighContrastStyle::qtReadsTheResult_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("product") << productSheet();
    QTest::newRow("empty") << QString();
    QTest::newRow("cut off") << productSheet().left(productSheet().size() / 2);
    QTest::newRow("without opening braces") << productSheet().remove(u'{');
    QTest::newRow("without closing braces") << productSheet().remove(u'}');
    QTest::newRow("within comments") << QStringLiteral("/* } */ QLabel /* { */ { color: /* ; */ red }");
    QTest::newRow("important") << productSheet().replace(u';', QStringLiteral(" !important;"));
    QTest::newRow("noise") << QStringLiteral("}{;:\"'(/*url(#@!,>~+*.\\\n");
}

void TestHighContrastStyle::qtReadsTheResult()
{
    QFETCH(QString, sheet);
    complaints().clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { complaints().append(text.toUtf8()); });
    QDialog dialog;
    dialog.setStyleSheet(highContrastStyleSheet(sheet, distinctColors(), {}));
    new QLabel(QStringLiteral("text"), &dialog);
    dialog.ensurePolished();
    dialog.grab();
    qInstallMessageHandler(before);
    QVERIFY2(!complaints().contains("parse") && !complaints().contains("nknown property"), complaints().constData());
}

void TestHighContrastStyle::aMegabyteTakesLinearTime()
{
    const auto measure = [](int copies) {
        const QString sheet = productSheet().repeated(copies).replace(QStringLiteral("QLabel"), QStringLiteral("QLabel#x"));
        QString different;
        for (int rule = 0; different.size() < sheet.size(); ++rule)
            different += QStringLiteral("QPushButton#n%1 { color: red; icon: url(\":/a.svg\") }\n").arg(rule);
        qint64 least = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 2; ++run) {
            QElapsedTimer timer;
            timer.start();
            highContrastStyleSheet(sheet, distinctColors(), {});
            highContrastStyleSheet(different, distinctColors(), {});
            least = std::min(least, timer.nsecsElapsed());
        }
        return least;
    };
    const int copies = static_cast<int>((1 << 20) / productSheet().size() + 1);
    qint64 quarter = 0;
    qint64 whole = 0;
    // Four times the text: 4 when linear, 16 when quadratic, whenever one looks; other work beside it comes and goes.
    for (int look = 0; look < 4 && whole >= 9 * quarter; ++look) {
        quarter = measure(copies / 4);
        whole = measure(copies);
    }
    QVERIFY2(whole < 9 * quarter, qPrintable(QStringLiteral("%1 / %2 ns").arg(whole).arg(quarter)));
}

void TestHighContrastStyle::whatIsResolvedReachesTheScreen()
{
    dialog_->setStyleSheet(highContrastStyleSheet(productSheet(), distinctColors(), {}));
    dialog_->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog_.get()));
    const StyleCascade cascade(dialog_->styleSheet());
    const QImage image = dialog_->grab().toImage();
    for (const char *name :
         {"microphone_test_next_button", "microphone_test_cancel_button", "audio_playback_test_first_input_set",
          "border_widget", "audio_playback_test_header", "display_interactive_widget_card"}) {
        const auto *widget = dialog_->findChild<QWidget *>(QLatin1StringView(name));
        const QPoint corner = widget->mapTo(dialog_.get(), QPoint(widget->width() / 2, 6));
        QCOMPARE(image.pixelColor(corner).name(), resolve(cascade, {widget, QString(), {}}).fill);
    }
    dialog_->hide();
}

QTEST_MAIN(TestHighContrastStyle)
#include "tst_high_contrast_style.moc"

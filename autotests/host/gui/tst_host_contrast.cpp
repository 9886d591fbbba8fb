// SPDX-License-Identifier: Apache-2.0
// The host's own windows in the contrast themes: they have no stylesheet, so all depends on the palette's roles being used in
// pairs, by the styles that Qt brings along and by what we paint ourselves.
#include "autotests/host/gui/host_windows.h"
#include "autotests/host/gui/text_places.h"
#include "autotests/support/contrast_palettes.h"
#include "host/gui/focus_ring.h"
#include "host/gui/spectrum_view.h"
#include "host/gui/wave_view.h"
#include "host/translations/translators.h"
#include "utils/color_contrast.h"

#include <QApplication>
#include <QHash>
#include <QImage>
#include <QMenu>
#include <QObject>
#include <QPalette>
#include <QSet>
#include <QStyle>
#include <QTest>

#include <algorithm>

using contrast_palettes::Palette;
using ostra::utils::contrastRatio;

namespace {

// WCAG 2.1, success criterion 1.4.6; the pair that Desert has for what is selected is rounded up to it. Fusion shades what it
// fills and lays a veil over the current cell, so that it reaches 1.4.3 only.
constexpr double leastForText = 6.995;
constexpr double leastForShadedText = 4.5;
constexpr double leastForParts = 3.0; // WCAG 2.1, success criterion 1.4.11

// As Qt's plug-in for Windows makes it from the system's colours.
QPalette paletteOf(const Palette &theme)
{
    const auto rgb = [](std::uint32_t value) { return QColor::fromRgb(value); };
    QPalette palette(rgb(theme.windowText), rgb(theme.buttonFace), rgb(theme.buttonText), rgb(theme.windowFrame),
                     rgb(theme.buttonFace).darker(150), rgb(theme.windowText), rgb(theme.buttonText), rgb(theme.window),
                     rgb(theme.window));
    palette.setColor(QPalette::ButtonText, rgb(theme.buttonText));
    palette.setColor(QPalette::Highlight, rgb(theme.highlight));
    palette.setColor(QPalette::HighlightedText, rgb(theme.highlightText));
    palette.setColor(QPalette::Link, rgb(theme.hotLight));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, rgb(theme.grayText));
    return palette;
}

QImage pictureOf(QWidget &widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

QHash<QRgb, int> coloursOf(const QImage &picture, const QRect &place)
{
    QHash<QRgb, int> counts;
    const QRect seen = place.intersected(picture.rect());
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return counts;
}

QRgb commonest(const QHash<QRgb, int> &counts) { return std::max_element(counts.cbegin(), counts.cend()).key(); }

// The letters are drawn without soft edges: what differs most from the ground is their colour.
double textContrast(const QImage &picture, const QRect &place)
{
    const QHash<QRgb, int> counts = coloursOf(picture, place);
    const QColor ground(commonest(counts));
    double best = 1;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour)
        best = std::max(best, contrastRatio(QColor(colour.key()), ground));
    return best;
}

double leastContrast()
{
    return QApplication::style()->objectName() == QLatin1String("windows") ? leastForText : leastForShadedText;
}

void verifyTexts(QWidget &window, const QString &state)
{
    const QImage picture = pictureOf(window);
    const QList<shown_texts::Place> places = shown_texts::textsOf(window);
    QVERIFY2(!places.isEmpty(), qPrintable(window.objectName()));
    for (const shown_texts::Place &place : places) {
        const double contrast = textContrast(picture, place.rect);
        QVERIFY2(contrast >= leastContrast(), qPrintable(QStringLiteral("%1, %2: %3").arg(state, place.text).arg(contrast)));
    }
}

// The entry that the arrow keys have reached as well.
void verifyMenus(QWidget &window)
{
    for (QMenu *menu : window.findChildren<QMenu *>()) {
        if (!menu->isEnabled())
            continue;
        menu->popup(QPoint());
        for (QAction *entry : menu->actions()) {
            if (entry->isSeparator() || !entry->isEnabled())
                continue;
            for (QAction *active : {static_cast<QAction *>(nullptr), entry}) {
                menu->setActiveAction(active);
                const double contrast = textContrast(pictureOf(*menu), menu->actionGeometry(entry).adjusted(3, 3, -3, -3));
                QVERIFY2(contrast >= leastContrast(), qPrintable(QStringLiteral("%1: %2").arg(entry->text()).arg(contrast)));
            }
        }
        menu->close();
    }
}

// Pixels that change visibly between two pictures.
int visibleChange(const QImage &before, const QImage &after)
{
    int count = 0;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            const QRgb one = before.pixel(x, y);
            const QRgb other = after.pixel(x, y);
            if (one != other && contrastRatio(QColor(one), QColor(other)) >= leastForParts)
                ++count;
        }
    }
    return count;
}

// At each stop of the Tab key its place looks otherwise than while the keyboard is nowhere.
void verifyFocus(QWidget &window, const QString &state)
{
    constexpr int leastPixels = 20;
    constexpr int pressLimit = 40;
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSet<QWidget *> met;
    for (int press = 0; press < pressLimit; ++press) {
        QTest::keyClick(&window, Qt::Key_Tab);
        QWidget *stop = window.focusWidget();
        if (stop == nullptr || met.contains(stop))
            break;
        met.insert(stop);
        const QRect place(stop->mapTo(&window, QPoint()), stop->size());
        const QImage with = pictureOf(window).copy(place);
        stop->clearFocus();
        const QImage without = pictureOf(window).copy(place);
        stop->setFocus(Qt::TabFocusReason);
        const int change = visibleChange(without, with);
        QVERIFY2(change >= leastPixels,
                 qPrintable(QStringLiteral("%1, %2: %3 pixels").arg(state, stop->objectName()).arg(change)));
    }
    QVERIFY2(!met.isEmpty(), qPrintable(window.objectName()));
}

template <typename View>
View &shown(View &view)
{
    view.resize(300, 90);
    view.show();
    return view;
}

} // namespace

class TestHostContrast : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void windowsAreReadable_data() { themesAndStyles(); }
    void windowsAreReadable();
    void ourPaintingHasTheColoursOfTheTheme_data() { themesAndStyles(); }
    void ourPaintingHasTheColoursOfTheTheme();

private:
    static void themesAndStyles();
    static void use(const Palette &theme, const QString &style);
};

void TestHostContrast::initTestCase()
{
    host::installTranslators(QStringLiteral("en_US"));
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::NoAntialias);
    QApplication::setFont(font);
}

// Windows takes its classic style while a contrast theme is on; other desktops keep theirs.
void TestHostContrast::themesAndStyles()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("style");
    for (std::size_t index = 0; index < contrast_palettes::themes.size(); ++index) {
        for (const char *style : {"Windows", "Fusion"})
            QTest::addRow("%s, %s", contrast_palettes::themes[index].name, style)
                << static_cast<int>(index) << QString::fromLatin1(style);
    }
}

void TestHostContrast::use(const Palette &theme, const QString &style)
{
    QVERIFY(QApplication::setStyle(style) != nullptr);
    QApplication::setPalette(paletteOf(theme));
}

void TestHostContrast::windowsAreReadable()
{
    QFETCH(const int, theme);
    QFETCH(const QString, style);
    use(contrast_palettes::themes.at(static_cast<std::size_t>(theme)), style);
    const host::FocusRing ring;
    host_windows::visitAll(QStringLiteral("en_US"), [](QWidget &window, const QString &state) {
        verifyTexts(window, state);
        if (!window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus))
            verifyFocus(window, state);
        if (state.isEmpty() || state == QLatin1String("measurements"))
            verifyMenus(window);
    });
}

void TestHostContrast::ourPaintingHasTheColoursOfTheTheme()
{
    QFETCH(const int, theme);
    QFETCH(const QString, style);
    const Palette &colours = contrast_palettes::themes.at(static_cast<std::size_t>(theme));
    use(colours, style);
    host::LevelBar fine;
    fine.setLevels(-20, -6);
    host::LevelBar tooLoud;
    tooLoud.setLevels(-20, 0);
    host::WaveView wave;
    wave.setWave({-0.5, 0.5, -0.2, 0.1, -0.9, 0.8}, 20, 1);
    host::SpectrumView spectrum;
    spectrum.setBands({-20, -50, -90}, 100);
    const QSet<QRgb> known{QColor::fromRgb(colours.window).rgb(), QColor::fromRgb(colours.windowText).rgb(),
                           QColor::fromRgb(colours.highlight).rgb()};
    for (QWidget *view : std::initializer_list<QWidget *>{&shown(fine), &shown(tooLoud), &shown(wave), &shown(spectrum)}) {
        const QHash<QRgb, int> painted = coloursOf(pictureOf(*view), view->rect());
        QVERIFY(painted.size() > 1);
        for (auto colour = painted.cbegin(); colour != painted.cend(); ++colour)
            QVERIFY2(known.contains(colour.key()), qPrintable(QString::number(colour.key(), 16)));
    }
    // Told by stripes, which is no matter of colour.
    const QRgb text = QColor::fromRgb(colours.windowText).rgb();
    QVERIFY(coloursOf(pictureOf(tooLoud), tooLoud.rect())[text] > 2 * coloursOf(pictureOf(fine), fine.rect())[text]);
}

QTEST_MAIN(TestHostContrast)
#include "tst_host_contrast.moc"

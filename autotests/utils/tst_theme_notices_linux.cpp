// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_event_filter.h"

#include "utils/screen_sources.h"
#include "utils/system_colors.h"

#include <QApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <memory>

using namespace ostra::utils;
using ostra::utils::event_filters::HighContrastEventFilter;

namespace {

QPalette paletteOf(const QColor &text, const QColor &background)
{
    QPalette palette(background);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(role, text);
    for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Base})
        palette.setColor(role, background);
    return palette;
}

} // namespace

class TestThemeNoticesLinux : public QObject {
    Q_OBJECT

private slots:
    void init() { QApplication::setPalette(paletteOf(Qt::black, QColor(0xEF, 0xEF, 0xEF))); }
    void everyInstalledFilterEmitsOncePerPalette();
    void survivesTheLastFilterGoingInTheNotice();
    void paletteDecidesContrastWithoutAPortal_data();
    void paletteDecidesContrastWithoutAPortal();
    void coloursFollowThePalette();
    void knowsNoColourOutsideOfTheIndices();
};

void TestThemeNoticesLinux::everyInstalledFilterEmitsOncePerPalette()
{
    QWidget window; // which Qt tells as well
    window.show();
    HighContrastEventFilter first(nullptr);
    HighContrastEventFilter second(nullptr);
    HighContrastEventFilter stranger(nullptr);
    first.install();
    second.install();
    const QSignalSpy firstSpy(&first, &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy secondSpy(&second, &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy strangerSpy(&stranger, &HighContrastEventFilter::ThemeChanged);
    QApplication::setPalette(paletteOf(Qt::white, Qt::black));
    QCoreApplication::processEvents();
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 1);
    QCOMPARE(strangerSpy.count(), 0);
}

void TestThemeNoticesLinux::survivesTheLastFilterGoingInTheNotice()
{
    auto filter = std::make_unique<HighContrastEventFilter>(nullptr);
    filter->install();
    connect(filter.get(), &HighContrastEventFilter::ThemeChanged, this, [&] { filter.reset(); });
    QApplication::setPalette(paletteOf(Qt::white, Qt::black));
    QVERIFY(filter == nullptr);
    QApplication::setPalette(paletteOf(Qt::black, Qt::white));
}

void TestThemeNoticesLinux::paletteDecidesContrastWithoutAPortal_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<bool>("isHigh");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << true;
    QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black) << true;
    QTest::newRow("ordinary light") << QColor(Qt::black) << QColor(0xEF, 0xEF, 0xEF) << false;
    QTest::newRow("ordinary dark") << QColor(0xF0, 0xF0, 0xF0) << QColor(0x32, 0x32, 0x32) << false;
}

void TestThemeNoticesLinux::paletteDecidesContrastWithoutAPortal()
{
    QFETCH(QColor, text);
    QFETCH(QColor, background);
    QApplication::setPalette(paletteOf(text, background));
    QTEST(desktopHighContrast(), "isHigh");
}

void TestThemeNoticesLinux::coloursFollowThePalette()
{
    QPalette palette = paletteOf(Qt::yellow, Qt::blue);
    palette.setColor(QPalette::Highlight, QColor(1, 2, 3));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(4, 5, 6));
    QApplication::setPalette(palette);
    const QList<QColor> colors = systemColorList();
    QCOMPARE(colors[systemColorPosition(system_color::windowText)], QColor(Qt::yellow));
    QCOMPARE(colors[systemColorPosition(system_color::buttonFace)], QColor(Qt::blue));
    QCOMPARE(colors[systemColorPosition(system_color::highlight)], QColor(1, 2, 3));
    QCOMPARE(colors[systemColorPosition(system_color::grayText)], QColor(4, 5, 6));
}

void TestThemeNoticesLinux::knowsNoColourOutsideOfTheIndices()
{
    QCOMPARE(desktopColor(-1), 0U);
    QCOMPARE(desktopColor(31), 0U);
}

int main(int argc, char *argv[])
{
    // A desktop on which nobody answers, wherever the test runs.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    const QApplication application(argc, argv);
    TestThemeNoticesLinux test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_theme_notices_linux.moc"

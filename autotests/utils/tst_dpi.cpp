// SPDX-License-Identifier: Apache-2.0
#include "utils/dpi.h"

#include "utils/screen_sources.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QTest>

#include <bit>
#include <limits>

using namespace ostra::utils;

namespace {

std::optional<std::uint32_t> answer;
int questionCount = 0;

std::optional<std::uint32_t> countedAnswer()
{
    ++questionCount;
    return answer;
}

} // namespace

class TestDpi : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { screenSources().primaryMonitorDpi = &countedAnswer; }
    void init();
    void isAbsentBeforeTheFirstWindow();
    void takesTheScreensDpiWhenTheSystemNeverTold(); // before any test in which it tells
    void truncatesAScreensDpi_data();
    void truncatesAScreensDpi();
    void roundsDownToTheLadder_data();
    void roundsDownToTheLadder();
    void scalesValuesToTheLastBit_data();
    void scalesValuesToTheLastBit();
    void measuresOnceForOneInstance();
    void staysHiddenWhenItsParentIsShown();
    void goesWithItsParent();
    void goesOnRequest();
    void measuresAfreshAfterItIsGone();
    void keepsTheLastReportWhenTheSystemFailsLater();
    void isAbsentAgainWithoutAWindow();
};

void TestDpi::init()
{
    answer = std::nullopt;
    questionCount = 0;
}

void TestDpi::isAbsentBeforeTheFirstWindow()
{
    QCOMPARE(Dpi::instance(), nullptr);
    QCOMPARE(questionCount, 0);
}

void TestDpi::takesTheScreensDpiWhenTheSystemNeverTold()
{
    const QWidget window;
    const double logicalDpi = QGuiApplication::screens().constFirst()->logicalDotsPerInchX();
    QCOMPARE(logicalDpi, 150.0); // chosen in main
    QCOMPARE(Dpi::instance()->dpiStep(), 144);
    QCOMPARE(Dpi::instance()->scaleFactor(), 1.5);
}

void TestDpi::truncatesAScreensDpi_data()
{
    QTest::addColumn<double>("logicalDpi");
    QTest::addColumn<quint32>("whole");
    QTest::newRow("exact") << 96.0 << 96U;
    QTest::newRow("just below a step") << 119.9 << 119U;
    QTest::newRow("nothing") << 0.0 << 0U;
    QTest::newRow("negative") << -96.0 << 0U;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0U;
    QTest::newRow("no DPI") << 1e300 << 0U;
}

void TestDpi::truncatesAScreensDpi()
{
    QFETCH(double, logicalDpi);
    QTEST(wholeDpi(logicalDpi), "whole");
}

void TestDpi::roundsDownToTheLadder_data()
{
    QTest::addColumn<quint32>("measured");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("wrapsWords"); // what a test view makes of it
    const auto add = [](quint32 measured, int dpi, int step, bool wraps) {
        QTest::addRow("%u", measured) << measured << dpi << step << wraps;
    };
    add(1, 96, 96, false);
    add(96, 96, 96, false);
    add(119, 96, 96, false);
    add(120, 120, 120, false);
    add(143, 120, 120, false);
    add(144, 144, 144, false);
    add(145, 144, 144, false);
    add(167, 144, 144, false);
    add(168, 168, 168, true);
    add(191, 168, 168, true);
    add(192, 192, 192, true);
    add(215, 192, 192, true);
    add(216, 192, 216, true);
    add(239, 192, 216, true);
    add(240, 192, 240, true);
    add(287, 192, 240, true);
    add(288, 192, 288, true);
    add(335, 192, 288, true);
    add(336, 192, 336, true);
    add(337, 192, 336, true);
    add(0xFFFFFFFF, 192, 336, true);
}

void TestDpi::roundsDownToTheLadder()
{
    const QWidget window;
    QFETCH(quint32, measured);
    QFETCH(int, dpi);
    answer = measured;
    const Dpi *instance = Dpi::instance();
    QTEST(instance->dpiStep(), "step");
    QCOMPARE(std::bit_cast<quint64>(instance->scaleFactor()), std::bit_cast<quint64>(dpi / 96.0));
    QTEST(instance->dpiStep() > 144, "wrapsWords");
}

void TestDpi::scalesValuesToTheLastBit_data()
{
    QTest::addColumn<quint32>("measured");
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("value");
    QTest::newRow("8, 4 at 96 DPI") << 96U << 8.0 << 4.0 << 0x1.0000000000000p+3;
    QTest::newRow("8, 4 at 120 DPI") << 120U << 8.0 << 4.0 << 0x1.b492492492492p+2;
    QTest::newRow("8, 4 at 144 DPI") << 144U << 8.0 << 4.0 << 0x1.7555555555555p+2;
    QTest::newRow("8, 4 at 168 DPI") << 168U << 8.0 << 4.0 << 0x1.499999999999ap+2;
    QTest::newRow("8, 4 at 192 DPI") << 192U << 8.0 << 4.0 << 0x1.4000000000000p+2;
    QTest::newRow("8, 4 at 288 DPI") << 288U << 8.0 << 4.0 << 0x1.4000000000000p+2;
    QTest::newRow("6.3, 5.4 at 168 DPI, where another order rounds differently") << 168U << 6.3 << 5.4 << 0x1.6428f5c28f5c4p+2;
    QTest::newRow("12.2, 0.8 at 168 DPI, where another order rounds differently")
        << 168U << 12.2 << 0.8 << 0x1.11eb851eb851fp+2;
    QTest::newRow("9.7, 3.3 at 168 DPI") << 168U << 9.7 << 3.3 << 0x1.49eb851eb851ep+2;
    QTest::newRow("0.1, 0.2 at 120 DPI") << 120U << 0.1 << 0.2 << 0x1.6a0ea0ea0ea0fp-2;
}

void TestDpi::scalesValuesToTheLastBit()
{
    const QWidget window;
    QFETCH(quint32, measured);
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(double, value);
    answer = measured;
    QCOMPARE(std::bit_cast<quint64>(Dpi::instance()->scaledValue(a, b)), std::bit_cast<quint64>(value));
}

void TestDpi::measuresOnceForOneInstance()
{
    const QWidget window;
    answer = 168;
    const Dpi *instance = Dpi::instance();
    answer = 240;
    QCOMPARE(Dpi::instance(), instance);
    QCOMPARE(instance->dpiStep(), 168);
    QCOMPARE(questionCount, 1);
}

void TestDpi::staysHiddenWhenItsParentIsShown()
{
    QWidget window;
    const Dpi *instance = Dpi::instance();
    QCOMPARE(instance->parentWidget(), &window);
    window.show();
    QVERIFY(window.isVisible());
    QVERIFY(!instance->isVisible());
    QVERIFY(instance->isHidden());
}

void TestDpi::goesWithItsParent()
{
    QPointer<Dpi> first;
    {
        const QWidget window;
        first = Dpi::instance();
        QVERIFY(first != nullptr);
    }
    QVERIFY(first.isNull());
    const QWidget next;
    answer = 240;
    QCOMPARE(Dpi::instance()->parentWidget(), &next);
    QCOMPARE(Dpi::instance()->dpiStep(), 240);
}

void TestDpi::goesOnRequest()
{
    const QWidget window;
    const QPointer<Dpi> instance = Dpi::instance();
    Dpi::destroyInstance();
    QVERIFY(instance.isNull());
    QVERIFY(window.children().isEmpty());
    Dpi::destroyInstance(); // nothing left to do
}

void TestDpi::measuresAfreshAfterItIsGone()
{
    const QWidget window;
    answer = 120;
    QCOMPARE(Dpi::instance()->dpiStep(), 120);
    Dpi::destroyInstance();
    answer = 192;
    QCOMPARE(Dpi::instance()->dpiStep(), 192);
    QCOMPARE(questionCount, 2);
}

void TestDpi::keepsTheLastReportWhenTheSystemFailsLater()
{
    const QWidget window;
    answer = 288;
    QCOMPARE(Dpi::instance()->dpiStep(), 288);
    Dpi::destroyInstance();
    answer = std::nullopt;
    QCOMPARE(Dpi::instance()->dpiStep(), 288);
}

void TestDpi::isAbsentAgainWithoutAWindow() { QCOMPARE(Dpi::instance(), nullptr); }

// The screen's logical DPI comes from these variables, which Qt reads when the application starts; with scaling of its own it
// would take the DPI for itself and report 96.
int main(int argc, char *argv[])
{
    qputenv("QT_FONT_DPI", "150");
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    const QApplication application(argc, argv);
    TestDpi test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_dpi.moc"

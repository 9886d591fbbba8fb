// SPDX-License-Identifier: Apache-2.0
#include "host/gui/measurements_page.h"

#include "host/gui/spectrum_view.h"
#include "host/gui/wave_view.h"
#include "host/translations/translators.h"

#include <QAccessible>
#include <QLabel>
#include <QLocale>
#include <QObject>
#include <QTableWidget>
#include <QTest>

#include <algorithm>

using host::MeasurementsPage;
using host::RunRecord;

namespace {

host::HeardDigit measuredDigit(int position)
{
    host::HeardDigit digit;
    digit.position = position;
    digit.heard = position;
    digit.typed = position;
    digit.score = 0.876;
    digit.levelDbfs = -21.04;
    digit.latencyMs = 33;
    digit.measured.emplace();
    digit.measured->snrDb = 61.26;
    digit.measured->lowest = QList<double>(40, -0.25); // 200 ms
    digit.measured->highest = QList<double>(40, 0.2);
    digit.measured->lowest[10] = -0.5;
    digit.measured->bandLevelsDbfs = {-60, -50, -23, -70};
    return digit;
}

RunRecord passedRun()
{
    RunRecord record;
    record.moduleCode = record.code = 0;
    record.digits = {measuredDigit(1), measuredDigit(2)};
    record.digits[1].measured->bandLevelsDbfs = {-20, -50, -33, -70};
    return record;
}

struct Page : MeasurementsPage {
    Page()
    {
        resize(900, 200);
        show();
    }
    QTableWidget *table() const { return findChild<QTableWidget *>(QStringLiteral("host_digits")); }
    host::WaveView *wave() const { return findChild<host::WaveView *>(QStringLiteral("host_digit_wave")); }
    host::SpectrumView *spectrum() const { return findChild<host::SpectrumView *>(QStringLiteral("host_digit_spectrum")); }
    QString words(const char *name) const { return findChild<QLabel *>(QLatin1String(name))->text(); }
    QStringList row(int row) const
    {
        QStringList cells;
        for (int column = 0; column < table()->columnCount(); ++column)
            cells.append(table()->item(row, column)->text());
        return cells;
    }
};

int darkPixels(QWidget &plot, QRgb colour)
{
    const QImage picture = plot.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

} // namespace

class TestMeasurementsPage : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(host::installTranslators(QStringLiteral("en_US"))); }
    void saysWhereNothingWasMeasured();
    void writesNumbersAsTheLanguageDoes();
    void listsTheDigits();
    void knowsWhatWasPlayedOnlyWhenItWasAccepted();
    void showsThePlotsOfTheChosenDigit();
    void tellsThePlotsInWords();
    void readsValuesByTheKeyboard();
    void isWalkedByTheTabKey();
    void paintsInTheColoursOfThePalette();
    void showsTheRecordingOfAMicrophoneRun();
    void survivesADigitWithoutMeasurement();
    void forgetsTheRunBefore();
};

void TestMeasurementsPage::saysWhereNothingWasMeasured()
{
    Page page;
    RunRecord record;
    page.showRun(record);
    QVERIFY(page.findChild<QLabel *>(QStringLiteral("host_nothing_measured"))->isVisible());
    QVERIFY(!page.table()->isVisible() && !page.wave()->isVisible() && !page.spectrum()->isVisible());
}

void TestMeasurementsPage::listsTheDigits()
{
    Page page;
    page.showRun(passedRun());
    QCOMPARE(page.table()->rowCount(), 2);
    QCOMPARE(page.row(1),
             (QStringList{QStringLiteral("1.2"), QStringLiteral("2"), QStringLiteral("2"), QStringLiteral("2"),
                          QStringLiteral("0.88"), QStringLiteral("-21.0"), QStringLiteral("61.3"), QStringLiteral("33")}));
    QVERIFY(!page.findChild<QLabel *>(QStringLiteral("host_nothing_measured"))->isVisible());
}

void TestMeasurementsPage::knowsWhatWasPlayedOnlyWhenItWasAccepted()
{
    Page page;
    RunRecord failed = passedRun();
    failed.moduleCode = failed.code = 1;
    page.showRun(failed);
    QCOMPARE(page.row(0)[1], QStringLiteral("not known"));
    QCOMPARE(page.row(0)[2], QStringLiteral("1"));
}

void TestMeasurementsPage::showsThePlotsOfTheChosenDigit()
{
    Page page;
    page.showRun(passedRun());
    QCOMPARE(page.table()->currentRow(), 0);
    QCOMPARE(page.wave()->wave().size(), 80);
    QCOMPARE(page.wave()->wave()[20], -0.5);
    QCOMPARE(page.spectrum()->bands()[2], -23.0);
    page.table()->setCurrentCell(1, 0);
    QCOMPARE(page.spectrum()->bands()[0], -20.0);
    QVERIFY(page.wave()->isVisible() && page.spectrum()->isVisible());
}

void TestMeasurementsPage::tellsThePlotsInWords()
{
    Page page;
    page.showRun(passedRun());
    QCOMPARE(page.words("host_digit_wave_words"), QStringLiteral("Waveform of digit 1.1: 0.2 s, peak -6 dBFS"));
    QCOMPARE(page.words("host_digit_spectrum_words"), QStringLiteral("Spectrum of digit 1.1: Loudest at 160 Hz: -23 dBFS"));
    QAccessibleInterface *spectrum = QAccessible::queryAccessibleInterface(page.spectrum());
    QCOMPARE(spectrum->role(), QAccessible::Graphic);
    QCOMPARE(spectrum->text(QAccessible::Name), QStringLiteral("Spectrum of digit 1.1"));
    const QString all = spectrum->text(QAccessible::Description);
    for (const char *value : {"100 Hz: -60 dBFS", "125 Hz: -50 dBFS", "160 Hz: -23 dBFS", "200 Hz: -70 dBFS", "arrow keys"})
        QVERIFY2(all.contains(QLatin1String(value)), qPrintable(all));
    host::installTranslators(QStringLiteral("de_DE"));
    page.retranslate();
    QVERIFY(page.words("host_digit_wave_words").startsWith(QStringLiteral("Wellenform der Ziffer 1.1")));
    QCOMPARE(page.table()->horizontalHeaderItem(2)->text(), QStringLiteral("Gehört"));
    host::installTranslators(QStringLiteral("en_US"));
}

void TestMeasurementsPage::readsValuesByTheKeyboard()
{
    Page page;
    page.showRun(passedRun());
    QTest::keyClick(page.spectrum(), Qt::Key_Right);
    QTest::keyClick(page.spectrum(), Qt::Key_Right);
    QCOMPARE(page.words("host_digit_spectrum_words"), QStringLiteral("125 Hz: -50 dBFS"));
    QCOMPARE(page.spectrum()->accessibleDescription(), QStringLiteral("125 Hz: -50 dBFS"));
    QTest::keyClick(page.spectrum(), Qt::Key_End);
    QTest::keyClick(page.spectrum(), Qt::Key_Right); // there is no further one
    QCOMPARE(page.words("host_digit_spectrum_words"), QStringLiteral("200 Hz: -70 dBFS"));
    QTest::keyClick(page.wave(), Qt::Key_Home);
    QCOMPARE(page.words("host_digit_wave_words"), QStringLiteral("At 0.00 s: from -0.25 to 0.20"));
    QTest::keyClick(page.wave(), Qt::Key_Right);
    QCOMPARE(page.words("host_digit_wave_words"), QStringLiteral("At 0.05 s: from -0.50 to 0.20"));
    QTest::keyClick(page.wave(), Qt::Key_End);
    QCOMPARE(page.words("host_digit_wave_words"), QStringLiteral("At 0.15 s: from -0.25 to 0.20"));
}

void TestMeasurementsPage::isWalkedByTheTabKey()
{
    Page page;
    page.showRun(passedRun());
    page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    page.table()->setFocus();
    QStringList met;
    for (int press = 0; press < 2; ++press) {
        QTest::keyClick(page.focusWidget(), Qt::Key_Tab);
        met.append(page.focusWidget()->objectName());
    }
    QCOMPARE(met, (QStringList{QStringLiteral("host_digit_wave"), QStringLiteral("host_digit_spectrum")}));
}

void TestMeasurementsPage::paintsInTheColoursOfThePalette()
{
    Page page;
    QPalette contrast;
    contrast.setColor(QPalette::Base, Qt::black);
    contrast.setColor(QPalette::Text, Qt::yellow);
    contrast.setColor(QPalette::Highlight, Qt::cyan);
    contrast.setColor(QPalette::Mid, Qt::white);
    page.setPalette(contrast);
    page.showRun(passedRun());
    for (host::PlotView *plot : {static_cast<host::PlotView *>(page.wave()), static_cast<host::PlotView *>(page.spectrum())}) {
        QVERIFY(darkPixels(*plot, qRgb(255, 255, 0)) > 100);
        QVERIFY(darkPixels(*plot, qRgb(0, 0, 0)) > 100);
        QCOMPARE(darkPixels(*plot, qRgb(0, 255, 255)), 0);
        QTest::keyClick(plot, Qt::Key_Right);
        QVERIFY(darkPixels(*plot, qRgb(0, 255, 255)) > 10); // the value that is read
    }
}

void TestMeasurementsPage::showsTheRecordingOfAMicrophoneRun()
{
    Page page;
    RunRecord record;
    record.recording.emplace();
    record.recording->lowest = QList<double>(100, -0.1); // 2 s
    record.recording->highest = QList<double>(100, 0.1);
    page.showRun(record);
    QVERIFY(page.wave()->isVisible() && !page.spectrum()->isVisible() && !page.table()->isVisible());
    QCOMPARE(page.words("host_digit_wave_words"), QStringLiteral("Waveform of the last playback: 2.0 s, peak -20 dBFS"));
}

void TestMeasurementsPage::survivesADigitWithoutMeasurement()
{
    Page page;
    RunRecord record;
    record.digits = {host::HeardDigit()};
    page.showRun(record);
    QCOMPARE(page.words("host_digit_wave_words"), QStringLiteral("Waveform of digit 1.1: not known"));
    QTest::keyClick(page.wave(), Qt::Key_Right);
    QTest::keyClick(page.spectrum(), Qt::Key_End);
    QCOMPARE(page.words("host_digit_spectrum_words"), QStringLiteral("Spectrum of digit 1.1: not known"));
    QVERIFY(!page.wave()->grab().isNull() && !page.spectrum()->grab().isNull());
}

void TestMeasurementsPage::forgetsTheRunBefore()
{
    Page page;
    page.showRun(passedRun());
    page.showRun(RunRecord());
    QCOMPARE(page.table()->rowCount(), 0);
    QVERIFY(!page.wave()->isVisible());
    page.showRun(passedRun());
    page.clear();
    QVERIFY(page.findChild<QLabel *>(QStringLiteral("host_nothing_measured"))->isVisible());
}

void TestMeasurementsPage::writesNumbersAsTheLanguageDoes()
{
    Page page;
    QVERIFY(host::installTranslators(QStringLiteral("de_DE")));
    page.showRun(passedRun());
    const QStringList row = page.row(0);
    const QString words = page.words("host_digit_wave_words");
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    QCOMPARE(row.mid(4, 3).join(u' '), QStringLiteral("0,88 -21,0 61,3"));
    QVERIFY2(words.contains(QStringLiteral("0,2")), qPrintable(words));
    page.retranslate();
    QCOMPARE(page.row(0).value(4), QStringLiteral("0.88"));
}

QTEST_MAIN(TestMeasurementsPage)
#include "tst_measurements_page.moc"

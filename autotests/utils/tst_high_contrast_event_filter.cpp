// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_event_filter.h"

#include "utils/screen_sources.h"
#include "utils/system_colors.h"

#include <QAbstractEventDispatcher>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <memory>

using namespace ostra::utils;
using ostra::utils::event_filters::HighContrastEventFilter;

namespace {

constexpr quint32 themeChanged = 794;

/// Laid out as the system's messages are.
struct Message {
    void *window = nullptr;
    quint32 number = themeChanged;
    quintptr parameters[2] = {};
};

bool send(HighContrastEventFilter &filter, quint32 number = themeChanged)
{
    Message message;
    message.number = number;
    qintptr result = 0;
    return filter.nativeEventFilter("windows_generic_MSG", &message, &result);
}

bool dispatch()
{
    Message message;
    qintptr result = 0;
    return QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &message, &result);
}

std::unique_ptr<HighContrastEventFilter> installedFilter()
{
    auto filter = std::make_unique<HighContrastEventFilter>(nullptr);
    filter->install();
    return filter;
}

} // namespace

class TestHighContrastEventFilter : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { screenSources() = ScreenSources(); }
    void hasOneSignalWithoutArguments();
    void handlesAThemeMessage();
    void leavesOtherMessagesAlone_data();
    void leavesOtherMessagesAlone();
    void readsNoMessageOfAnotherType_data();
    void readsNoMessageOfAnotherType();
    void everyInstalledFilterEmitsOnceWhicheverIsCalled();
    void theApplicationsMessageReachesEveryInstalledFilterOnce();
    void filterThatWasNeverInstalledSpeaksForItself();
    void secondInstallationChangesNothing();
    void survivesReceiversThatDestroyFilters_data();
    void survivesReceiversThatDestroyFilters();
    void filterMadeByAReceiverWaitsForTheNextMessage();
    void goesWithItsParent();
    void tellsHighContrastAfresh();
    void listsThirtyColoursInOrder();
    void lowByteIsRed();
    void knowsThePositionOfEachColour();
};

void TestHighContrastEventFilter::hasOneSignalWithoutArguments()
{
    const QMetaObject &meta = HighContrastEventFilter::staticMetaObject;
    QCOMPARE(meta.className(), "ostra::utils::event_filters::HighContrastEventFilter");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), QByteArray("ThemeChanged()"));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
}

void TestHighContrastEventFilter::handlesAThemeMessage()
{
    HighContrastEventFilter filter(nullptr);
    const QSignalSpy spy(&filter, &HighContrastEventFilter::ThemeChanged);
    QVERIFY(send(filter));
    QCOMPARE(spy.count(), 1);
}

void TestHighContrastEventFilter::leavesOtherMessagesAlone_data()
{
    QTest::addColumn<quint32>("number");
    for (const quint32 number : {0U, 21U /* WM_SYSCOLORCHANGE */, 26U /* WM_SETTINGCHANGE */, 793U, 795U, 0x1031AU, 0x31A0000U})
        QTest::addRow("%u", number) << number;
}

void TestHighContrastEventFilter::leavesOtherMessagesAlone()
{
    QFETCH(quint32, number);
    HighContrastEventFilter filter(nullptr);
    const QSignalSpy spy(&filter, &HighContrastEventFilter::ThemeChanged);
    QVERIFY(!send(filter, number));
    QCOMPARE(spy.count(), 0);
}

void TestHighContrastEventFilter::readsNoMessageOfAnotherType_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("dispatcher") << QByteArray("windows_dispatcher_MSG");
    QTest::newRow("another system") << QByteArray("xcb_generic_event_t");
    QTest::newRow("shorter") << QByteArray("windows_generic_MS");
    QTest::newRow("longer") << QByteArray("windows_generic_MSG2");
    QTest::newRow("longer by a zero") << QByteArray("windows_generic_MSG\0", 20);
    QTest::newRow("other letter case") << QByteArray("WINDOWS_GENERIC_MSG");
}

void TestHighContrastEventFilter::readsNoMessageOfAnotherType()
{
    QFETCH(QByteArray, type);
    HighContrastEventFilter filter(nullptr);
    const QSignalSpy spy(&filter, &HighContrastEventFilter::ThemeChanged);
    Message message;
    QVERIFY(!filter.nativeEventFilter(type, &message, nullptr));
    QVERIFY(!filter.nativeEventFilter(type, nullptr, nullptr)); // reading this one would crash
    QCOMPARE(spy.count(), 0);
}

void TestHighContrastEventFilter::everyInstalledFilterEmitsOnceWhicheverIsCalled()
{
    const auto first = installedFilter();
    const auto second = installedFilter();
    HighContrastEventFilter stranger(nullptr);
    const QSignalSpy firstSpy(first.get(), &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy secondSpy(second.get(), &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy strangerSpy(&stranger, &HighContrastEventFilter::ThemeChanged);
    QVERIFY(send(*first));
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 1);
    QVERIFY(send(*second));
    QCOMPARE(firstSpy.count(), 2);
    QCOMPARE(secondSpy.count(), 2);
    QCOMPARE(strangerSpy.count(), 0);
}

void TestHighContrastEventFilter::theApplicationsMessageReachesEveryInstalledFilterOnce()
{
    QVERIFY(!dispatch());
    const auto first = installedFilter();
    auto second = installedFilter();
    const QSignalSpy firstSpy(first.get(), &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy secondSpy(second.get(), &HighContrastEventFilter::ThemeChanged);
    QVERIFY(dispatch());
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 1);
    second.reset();
    QVERIFY(dispatch());
    QCOMPARE(firstSpy.count(), 2);
}

void TestHighContrastEventFilter::filterThatWasNeverInstalledSpeaksForItself()
{
    const auto installed = installedFilter();
    HighContrastEventFilter stranger(nullptr);
    const QSignalSpy installedSpy(installed.get(), &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy strangerSpy(&stranger, &HighContrastEventFilter::ThemeChanged);
    QVERIFY(send(stranger));
    QCOMPARE(strangerSpy.count(), 1);
    QCOMPARE(installedSpy.count(), 0);
}

void TestHighContrastEventFilter::secondInstallationChangesNothing()
{
    auto filter = installedFilter();
    filter->install();
    QCoreApplication::instance()->installNativeEventFilter(filter.get());
    const QSignalSpy spy(filter.get(), &HighContrastEventFilter::ThemeChanged);
    QVERIFY(dispatch());
    QCOMPARE(spy.count(), 1);
    filter.reset();
    QVERIFY(!dispatch());
}

void TestHighContrastEventFilter::survivesReceiversThatDestroyFilters_data()
{
    QTest::addColumn<int>("destroyer");
    QTest::addColumn<int>("destroyed");
    QTest::addColumn<int>("emissionCount");
    QTest::newRow("a later one") << 0 << 1 << 2;
    QTest::newRow("an earlier one") << 1 << 0 << 3;
    QTest::newRow("itself, first") << 0 << 0 << 3;
    QTest::newRow("itself, last") << 2 << 2 << 3;
    QTest::newRow("the one that was called") << 0 << 2 << 2;
}

void TestHighContrastEventFilter::survivesReceiversThatDestroyFilters()
{
    QFETCH(int, destroyer);
    QFETCH(int, destroyed);
    std::array<std::unique_ptr<HighContrastEventFilter>, 3> filters;
    int emissions = 0;
    for (std::size_t i = 0; i < filters.size(); ++i) {
        filters[i] = installedFilter();
        connect(filters[i].get(), &HighContrastEventFilter::ThemeChanged, this, [&, i] {
            ++emissions;
            if (static_cast<int>(i) == destroyer)
                filters[static_cast<std::size_t>(destroyed)].reset();
        });
    }
    QVERIFY(dispatch()); // calls the last one installed
    QTEST(emissions, "emissionCount");
    emissions = 0;
    QVERIFY(dispatch());
    QCOMPARE(emissions, 2);
}

void TestHighContrastEventFilter::filterMadeByAReceiverWaitsForTheNextMessage()
{
    const auto first = installedFilter();
    std::unique_ptr<HighContrastEventFilter> late;
    int lateEmissions = 0;
    connect(first.get(), &HighContrastEventFilter::ThemeChanged, this, [&] {
        if (late != nullptr)
            return;
        late = installedFilter();
        connect(late.get(), &HighContrastEventFilter::ThemeChanged, this, [&] { ++lateEmissions; });
    });
    QVERIFY(dispatch());
    QCOMPARE(lateEmissions, 0);
    QVERIFY(dispatch());
    QCOMPARE(lateEmissions, 1);
}

void TestHighContrastEventFilter::goesWithItsParent()
{
    {
        QObject parent;
        (new HighContrastEventFilter(&parent))->install();
        QVERIFY(dispatch());
    }
    QVERIFY(!dispatch());
}

void TestHighContrastEventFilter::tellsHighContrastAfresh()
{
    const HighContrastEventFilter filter(nullptr);
    screenSources().highContrastOn = [] { return true; };
    QVERIFY(filter.isHighContrast());
    screenSources().highContrastOn = [] { return false; };
    QVERIFY(!filter.isHighContrast());
}

void TestHighContrastEventFilter::listsThirtyColoursInOrder()
{
    const HighContrastEventFilter filter(nullptr);
    screenSources().systemColor = [](int index) { return static_cast<std::uint32_t>(index); };
    const QList<QColor> colors = filter.systemColors();
    QCOMPARE(colors.size(), 30);
    for (int position = 0; position < 30; ++position)
        QCOMPARE(colors[position], QColor(position < 25 ? position : position + 1, 0, 0));
}

void TestHighContrastEventFilter::lowByteIsRed()
{
    const HighContrastEventFilter filter(nullptr);
    screenSources().systemColor = [](int) { return std::uint32_t{0xFF332211}; };
    QCOMPARE(filter.systemColors().constFirst(), QColor(0x11, 0x22, 0x33, 255));
    QCOMPARE(referenceOfColor(QColor(0x11, 0x22, 0x33, 7)), 0x332211U);
}

void TestHighContrastEventFilter::knowsThePositionOfEachColour()
{
    for (qsizetype position = 0; position < 30; ++position)
        QCOMPARE(systemColorPosition(systemColorIndices[static_cast<std::size_t>(position)]), position);
    QCOMPARE(systemColorPosition(system_color::gradientActiveCaption), 26);
}

QTEST_MAIN(TestHighContrastEventFilter)
#include "tst_high_contrast_event_filter.moc"

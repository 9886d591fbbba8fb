// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_event_filter.h"

#include "utils/system_colors.h"

#include <QAbstractNativeEventFilter>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <windows.h>

#include <memory>

using ostra::utils::systemColorIndices;
using ostra::utils::event_filters::HighContrastEventFilter;

namespace {

/// Installed before ours, so that Qt asks it after them: it sees what they let pass.
class PassedMessages final : public QAbstractNativeEventFilter {
public:
    PassedMessages() { QCoreApplication::instance()->installNativeEventFilter(this); }
    bool nativeEventFilter(const QByteArray & /*eventType*/, void *message, qintptr * /*result*/) override
    {
        const UINT number = static_cast<const MSG *>(message)->message;
        themeCount += number == WM_THEMECHANGED;
        settingCount += number == WM_SETTINGCHANGE;
        return false;
    }

    int themeCount = 0;
    int settingCount = 0;
};

} // namespace

/// Real messages to real windows.
class TestThemeMessagesWindows : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sentMessageMakesEveryFilterEmitOnce();
    void postedMessageMakesEveryFilterEmitOnce();
    void otherMessagePasses();
    void destroyedFilterHearsNothing();
    void highContrastIsOffHere();
    void readsTheSystemsColoursAfresh();

private:
    HWND handle() const { return reinterpret_cast<HWND>(window_->winId()); }

    std::unique_ptr<QWidget> window_;
    std::unique_ptr<PassedMessages> passed_;
    std::unique_ptr<HighContrastEventFilter> first_;
    std::unique_ptr<HighContrastEventFilter> second_;
};

void TestThemeMessagesWindows::init()
{
    window_ = std::make_unique<QWidget>();
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    passed_ = std::make_unique<PassedMessages>();
    first_ = std::make_unique<HighContrastEventFilter>(nullptr);
    second_ = std::make_unique<HighContrastEventFilter>(nullptr);
    first_->install();
    second_->install();
}

void TestThemeMessagesWindows::cleanup()
{
    second_.reset();
    first_.reset();
    passed_.reset();
    window_.reset();
}

void TestThemeMessagesWindows::sentMessageMakesEveryFilterEmitOnce()
{
    const QSignalSpy firstSpy(first_.get(), &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy secondSpy(second_.get(), &HighContrastEventFilter::ThemeChanged);
    SendMessageW(handle(), WM_THEMECHANGED, 0, 0);
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 1);
    QCOMPARE(passed_->themeCount, 0);
}

void TestThemeMessagesWindows::postedMessageMakesEveryFilterEmitOnce()
{
    const QSignalSpy firstSpy(first_.get(), &HighContrastEventFilter::ThemeChanged);
    const QSignalSpy secondSpy(second_.get(), &HighContrastEventFilter::ThemeChanged);
    QVERIFY(PostMessageW(handle(), WM_THEMECHANGED, 0, 0));
    QTRY_COMPARE(firstSpy.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 1);
    QCOMPARE(passed_->themeCount, 0);
}

void TestThemeMessagesWindows::otherMessagePasses()
{
    const QSignalSpy spy(first_.get(), &HighContrastEventFilter::ThemeChanged);
    SendMessageW(handle(), WM_SETTINGCHANGE, 0, 0);
    SendMessageW(handle(), WM_SYSCOLORCHANGE, 0, 0);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(passed_->settingCount, 1);
}

void TestThemeMessagesWindows::destroyedFilterHearsNothing()
{
    second_.reset();
    const QSignalSpy spy(first_.get(), &HighContrastEventFilter::ThemeChanged);
    SendMessageW(handle(), WM_THEMECHANGED, 0, 0);
    QCOMPARE(spy.count(), 1);
    first_.reset();
    SendMessageW(handle(), WM_THEMECHANGED, 0, 0);
    QCOMPARE(passed_->themeCount, 1);
}

void TestThemeMessagesWindows::highContrastIsOffHere()
{
    HIGHCONTRASTW record{};
    record.cbSize = sizeof record;
    QVERIFY(SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof record, &record, 0));
    QCOMPARE(first_->isHighContrast(), (record.dwFlags & HCF_HIGHCONTRASTON) != 0);
}

void TestThemeMessagesWindows::readsTheSystemsColoursAfresh()
{
    const INT index = COLOR_BTNTEXT;
    const COLORREF before = GetSysColor(index);
    const COLORREF changed = RGB(1, 2, 3);
    QVERIFY(SetSysColors(1, &index, &changed));
    const QList<QColor> colors = first_->systemColors();
    QVERIFY(SetSysColors(1, &index, &before));
    QCOMPARE(colors[COLOR_BTNTEXT], QColor(1, 2, 3));
    const QList<QColor> restored = first_->systemColors();
    for (std::size_t i = 0; i < systemColorIndices.size(); ++i) {
        const DWORD color = GetSysColor(systemColorIndices[i]);
        QCOMPARE(restored[static_cast<qsizetype>(i)], QColor(GetRValue(color), GetGValue(color), GetBValue(color)));
    }
}

QTEST_MAIN(TestThemeMessagesWindows)
#include "tst_theme_messages_windows.moc"

// SPDX-License-Identifier: Apache-2.0
#include "utils/accessible_dialog_base.h"
#include "utils/screen_sources.h"

#include <QObject>
#include <QTest>

#include <windows.h>

using namespace ostra::utils;
using accessibility::AccessibleDialogBase;

namespace {

bool &isHighContrast()
{
    static bool on = false;
    return on;
}

void sendThemeChanged(const QWidget &window) { SendMessageW(reinterpret_cast<HWND>(window.winId()), WM_THEMECHANGED, 0, 0); }

} // namespace

class TestDialogThemeMessageWindows : public QObject {
    Q_OBJECT

private slots:
    void theSystemsMessageRestylesEveryDialog();
};

void TestDialogThemeMessageWindows::theSystemsMessageRestylesEveryDialog()
{
    screenSources().highContrastOn = [] { return isHighContrast(); }; // the desktop here refuses to switch it on
    AccessibleDialogBase first(nullptr);
    AccessibleDialogBase second(nullptr);
    first.show();
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&first) && QTest::qWaitForWindowExposed(&second));
    const QString productStyle = first.styleSheet();
    QVERIFY(!productStyle.isEmpty());
    isHighContrast() = true;
    sendThemeChanged(first);
    QCOMPARE(first.styleSheet(), productStyle);
    QTRY_VERIFY_WITH_TIMEOUT(first.styleSheet() != productStyle && second.styleSheet() != productStyle, 2000);
    isHighContrast() = false;
    sendThemeChanged(second);
    QTRY_VERIFY_WITH_TIMEOUT(first.styleSheet() == productStyle && second.styleSheet() == productStyle, 2000);
}

QTEST_MAIN(TestDialogThemeMessageWindows)
#include "tst_dialog_theme_message_windows.moc"

// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/theme_message.h"
#include "contract/style_manager.h"
#include "utils/accessible_dialog_base.h"
#include "utils/high_contrast_event_filter.h"
#include "utils/high_contrast_style.h"
#include "utils/screen_sources.h"
#include "utils/system_colors.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMetaMethod>
#include <QObject>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <cstddef>
#include <cstring>
#include <memory>

using namespace ostra::utils;
using accessibility::AccessibleDialogBase;
using event_filters::HighContrastEventFilter;
using theme_message::RestyleCounter;

namespace {

constexpr int bound = 1000; // ms; ten times the designed delay

struct Screen {
    bool highContrast = false;
    bool isInverted = false;
    int colorReads = 0;
};

Screen &screen()
{
    static Screen state;
    return state;
}

bool &isWithoutStyle()
{
    static bool without = false;
    return without;
}

const char *const productSheet = "QDialog { background-color: #ffffff; color: #101010; }\nQLabel { color: #123456; }";

class FakeStyle final : public style_manager::StyleManager {
public:
    std::string Stylesheet() const override { return productSheet; }
};

void sendThemeMessage(const QObject &dialog)
{
    QVERIFY(theme_message::isTakenBy(*dialog.findChild<HighContrastEventFilter *>()));
}

bool isInHighContrast(const QDialog &dialog) { return dialog.styleSheet() != QLatin1StringView(productSheet); }

QString expectedHighContrast() { return highContrastStyleSheet(QLatin1StringView(productSheet), systemColorList(), {}); }

struct FirstVirtualOfADialog : QDialog {
    virtual QAccessibleInterface *first();
};
QAccessibleInterface *FirstVirtualOfADialog::first() { return nullptr; }

// The compilers used here store the offset in the table, plus one, as the pointer to a virtual member.
template <typename Member>
std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t offset = 0;
    std::memcpy(&offset, &member, sizeof offset);
    return offset;
}

} // namespace

style_manager::StyleManager *style_manager::StyleManager::instance()
{
    static FakeStyle style;
    return isWithoutStyle() ? nullptr : &style;
}

class TestAccessibleDialogBase : public QObject {
    Q_OBJECT

private slots:
    void init();
    void carriesTheProductsStylesheet();
    void managesWithoutAStyleManager();
    void isTranslucentWithDefaultFlags();
    void hasOneSlotAndNothingElse();
    void aDialogMadeInHighContrastShowsItAtOnce();
    void switchesAHundredMillisecondsAfterTheMessage();
    void restoresExactlyTheStylesheetOfTheStart();
    void changesOfADerivedDialogAreLost();
    void coloursAreThoseOfConstruction();
    void threeMessagesRestyleThreeTimes();
    void readsTheStateWhenTheTimeIsOver();
    void aDialogDestroyedInTimeDoesNotRestyle();
    void everyOpenDialogRestyles();
    void nothingElseRestyles();
    void theFilterGoesWithItsDialog();
    void theInterfaceIsOneAndBoundToTheFirstDialog();
    void theInterfaceOutlivesItsDialogSafely();
    void theInterfaceIsTheFirstVirtualAfterTheDialogs();
};

void TestAccessibleDialogBase::init()
{
    screen() = {};
    isWithoutStyle() = false;
    screenSources().highContrastOn = [] { return screen().highContrast; };
    screenSources().systemColor = [](int index) -> std::uint32_t {
        ++screen().colorReads;
        const bool isLight = index == system_color::windowText || index == system_color::buttonText;
        return isLight != screen().isInverted ? 0xFFFFFFU : 0U;
    };
}

void TestAccessibleDialogBase::carriesTheProductsStylesheet()
{
    const AccessibleDialogBase dialog(nullptr);
    QCOMPARE(dialog.styleSheet(), QLatin1StringView(productSheet));
    QCOMPARE(screen().colorReads, 30);
}

void TestAccessibleDialogBase::managesWithoutAStyleManager()
{
    isWithoutStyle() = true;
    AccessibleDialogBase dialog(nullptr);
    QVERIFY(dialog.styleSheet().isEmpty());
    screen().highContrast = true;
    dialog.OnThemeChanged();
    QTRY_VERIFY_WITH_TIMEOUT(dialog.styleSheet().contains(QStringLiteral("QDialog {\n")), bound);
    screen().highContrast = false;
    dialog.OnThemeChanged();
    QTRY_VERIFY_WITH_TIMEOUT(dialog.styleSheet().isEmpty(), bound);
}

void TestAccessibleDialogBase::isTranslucentWithDefaultFlags()
{
    QWidget parent;
    const AccessibleDialogBase dialog(&parent);
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowFlags(), QDialog().windowFlags());
}

void TestAccessibleDialogBase::hasOneSlotAndNothingElse()
{
    const QMetaObject &meta = AccessibleDialogBase::staticMetaObject;
    QCOMPARE(meta.className(), "ostra::utils::accessibility::AccessibleDialogBase");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("OnThemeChanged()"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
}

void TestAccessibleDialogBase::aDialogMadeInHighContrastShowsItAtOnce()
{
    screen().highContrast = true;
    const AccessibleDialogBase dialog(nullptr);
    QCOMPARE(dialog.styleSheet(), expectedHighContrast());
}

void TestAccessibleDialogBase::switchesAHundredMillisecondsAfterTheMessage()
{
    AccessibleDialogBase dialog(nullptr);
    screen().highContrast = true;
    QElapsedTimer timer;
    timer.start();
    sendThemeMessage(dialog);
    QVERIFY(!isInHighContrast(dialog));
    QTRY_VERIFY_WITH_TIMEOUT(isInHighContrast(dialog), bound);
    QVERIFY2(timer.elapsed() >= 95, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(dialog.styleSheet(), expectedHighContrast());
}

void TestAccessibleDialogBase::restoresExactlyTheStylesheetOfTheStart()
{
    screen().highContrast = true;
    AccessibleDialogBase dialog(nullptr);
    screen().highContrast = false;
    sendThemeMessage(dialog);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.styleSheet(), QLatin1StringView(productSheet), bound);
}

void TestAccessibleDialogBase::changesOfADerivedDialogAreLost()
{
    AccessibleDialogBase dialog(nullptr);
    dialog.setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    screen().highContrast = true;
    sendThemeMessage(dialog);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.styleSheet(), expectedHighContrast(), bound);
    screen().highContrast = false;
    sendThemeMessage(dialog);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.styleSheet(), QLatin1StringView(productSheet), bound);
}

void TestAccessibleDialogBase::coloursAreThoseOfConstruction()
{
    AccessibleDialogBase dialog(nullptr);
    const QString ofConstruction = expectedHighContrast();
    screen().highContrast = true;
    screen().isInverted = true;
    screen().colorReads = 0;
    sendThemeMessage(dialog);
    QTRY_VERIFY_WITH_TIMEOUT(isInHighContrast(dialog), bound);
    QCOMPARE(screen().colorReads, 0);
    QCOMPARE(dialog.styleSheet(), ofConstruction);
    QVERIFY(ofConstruction != expectedHighContrast());
}

void TestAccessibleDialogBase::threeMessagesRestyleThreeTimes()
{
    AccessibleDialogBase dialog(nullptr);
    dialog.ensurePolished();
    screen().highContrast = true;
    const RestyleCounter counter(dialog);
    for (int message = 0; message < 3; ++message)
        sendThemeMessage(dialog);
    QCOMPARE(counter.count, 0);
    QTRY_COMPARE_WITH_TIMEOUT(counter.count, 3, bound);
    QTest::qWait(300); // and no fourth
    QCOMPARE(counter.count, 3);
}

void TestAccessibleDialogBase::readsTheStateWhenTheTimeIsOver()
{
    AccessibleDialogBase dialog(nullptr);
    dialog.ensurePolished();
    const RestyleCounter counter(dialog);
    screen().highContrast = true;
    sendThemeMessage(dialog);
    screen().highContrast = false; // the desktop changed its mind
    QTRY_COMPARE_WITH_TIMEOUT(counter.count, 1, bound);
    QVERIFY(!isInHighContrast(dialog));
}

void TestAccessibleDialogBase::aDialogDestroyedInTimeDoesNotRestyle()
{
    auto dialog = std::make_unique<AccessibleDialogBase>(nullptr);
    sendThemeMessage(*dialog);
    static int queries = 0;
    queries = 0;
    screenSources().highContrastOn = [] { return ++queries > 0; };
    dialog.reset();
    QTest::qWait(300);
    QCOMPARE(queries, 0);
}

void TestAccessibleDialogBase::everyOpenDialogRestyles()
{
    AccessibleDialogBase first(nullptr);
    AccessibleDialogBase second(nullptr);
    screen().highContrast = true;
    sendThemeMessage(first);
    QTRY_VERIFY_WITH_TIMEOUT(isInHighContrast(first) && isInHighContrast(second), bound);
}

void TestAccessibleDialogBase::nothingElseRestyles()
{
    AccessibleDialogBase dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const RestyleCounter counter(dialog);
    screen().highContrast = true;
    theme_message::Message message;
    message.number = 795;
    qintptr result = 0;
    QVERIFY(!dialog.findChild<HighContrastEventFilter *>()->nativeEventFilter("windows_generic_MSG", &message, &result));
    dialog.resize(dialog.size() * 2);
    dialog.hide();
    dialog.show();
    QTest::qWait(300);
    QCOMPARE(counter.count, 0);
    QVERIFY(!isInHighContrast(dialog));
}

void TestAccessibleDialogBase::theFilterGoesWithItsDialog()
{
    auto dialog = std::make_unique<AccessibleDialogBase>(nullptr);
    const QPointer<HighContrastEventFilter> filter = dialog->findChild<HighContrastEventFilter *>();
    QVERIFY(!filter.isNull());
    AccessibleDialogBase other(nullptr);
    dialog.reset();
    QVERIFY(filter.isNull());
    screen().highContrast = true;
    sendThemeMessage(other); // must not reach the one that is gone
    QTRY_VERIFY_WITH_TIMEOUT(isInHighContrast(other), bound);
}

void TestAccessibleDialogBase::theInterfaceIsOneAndBoundToTheFirstDialog()
{
    auto *first = new AccessibleDialogBase(nullptr);
    AccessibleDialogBase second(nullptr);
    QAccessibleInterface *interface = first->accessibleInterface();
    QVERIFY(interface != nullptr);
    QCOMPARE(second.accessibleInterface(), interface);
    QCOMPARE(interface->object(), first);
    QCOMPARE(interface->role(), QAccessible::Client);
    QCOMPARE(static_cast<int>(interface->role()), 10);
    QVERIFY(QAccessible::queryAccessibleInterface(first) != interface); // Qt knows another, its own
    QTimer::singleShot(0, first, &QObject::deleteLater);                // the next test finds it gone
    QTRY_VERIFY_WITH_TIMEOUT(interface->object() == nullptr, bound);
}

void TestAccessibleDialogBase::theInterfaceOutlivesItsDialogSafely()
{
    AccessibleDialogBase later(nullptr);
    QAccessibleInterface *interface = later.accessibleInterface();
    QVERIFY(interface != nullptr);
    QVERIFY(!interface->isValid());
    QVERIFY(interface->object() == nullptr);
    auto another = std::make_unique<AccessibleDialogBase>(nullptr);
    QCOMPARE(another->accessibleInterface(), interface);
    another.reset();
    QVERIFY(!interface->isValid());
}

void TestAccessibleDialogBase::theInterfaceIsTheFirstVirtualAfterTheDialogs()
{
    QCOMPARE(slotOf(&AccessibleDialogBase::accessibleInterface), slotOf(&FirstVirtualOfADialog::first));
}

QTEST_MAIN(TestAccessibleDialogBase)
#include "tst_accessible_dialog_base.moc"

// SPDX-License-Identifier: Apache-2.0
#include "views/select_device.h"

#include "autotests/support/hostile_names.h"
#include "autotests/views/fake_sound.h"
#include "autotests/views/page_probe.h"

#include <QAccessible>
#include <QLabel>
#include <QLayout>
#include <QObject>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace ostra;
using page_probe::named;

class TestSelectDevice : public QObject {
    Q_OBJECT

private slots:
    void declaresItsSignalsAndSlotsInOrder();
    void hasTheNamesOfItsForm();
    void showsTheKeysOfItsTexts();
    void listsTheMicrophonesInOrder();
    void checksTheFirstMicrophone();
    void handsOnTheCheckedMicrophoneBeforeItGoesOn();
    void handsOnTheMicrophoneChosenAnew();
    void checksOneMicrophoneAtATime();
    void cancels();
    void withoutAMicrophoneItOnlyCancels();
    void keepsAnAmpersandOfAName();
    void shortensANameThatIsTooLong();
    void showsAnyNameLiterally_data();
    void showsAnyNameLiterally();
    void noButtonIsADefaultOne();
    void screenReadersGetNamesAndRoles();
};

namespace {

QList<QRadioButton *> choices(const SelectDevice &page)
{
    return page.findChildren<QRadioButton *>(QStringLiteral("microphone_test_radio_button"));
}

} // namespace

void TestSelectDevice::declaresItsSignalsAndSlotsInOrder()
{
    const QByteArrayList expected{"signal NextWidget()", "signal micChanged(QString)", "signal cancelTest()",
                                  "slot onBtnNextClicked()", "slot onBtnCancelClicked()"};
    QCOMPARE(page_probe::ownMethods(SelectDevice::staticMetaObject), expected);
    QCOMPARE(SelectDevice::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void TestSelectDevice::hasTheNamesOfItsForm()
{
    const FakeSound sound;
    const SelectDevice page;
    QCOMPARE(page.objectName(), QStringLiteral("SelectDevice"));
    const QStringList tree = page_probe::namedTree(page);
    for (const char *name :
         {"verticalLayout QVBoxLayout", "microphone_test_selection_text_space QWidget", "horizontalLayout_2 QHBoxLayout",
          "microphone_test_select_mic_device_label QLabel", "microphone_test_selection_radio_buttons_space QScrollArea",
          "radio_group QVBoxLayout", "microphone_test_selection_buttons_space QWidget", "horizontalLayout QHBoxLayout",
          "microphone_test_cancel_button QPushButton", "microphone_test_next_button QPushButton"})
        QVERIFY2(tree.contains(QLatin1String(name)), name);
}

void TestSelectDevice::showsTheKeysOfItsTexts()
{
    const FakeSound sound;
    const SelectDevice page;
    QCOMPARE(named<QLabel>(page, "microphone_test_select_mic_device_label")->text(),
             QStringLiteral("SELECT_A_MICROPHONE_DEVICE"));
    QCOMPARE(named<QPushButton>(page, "microphone_test_cancel_button")->text(), QStringLiteral("CANCEL"));
    QCOMPARE(named<QPushButton>(page, "microphone_test_next_button")->text(), QStringLiteral("NEXT"));
}

void TestSelectDevice::listsTheMicrophonesInOrder()
{
    FakeSound sound;
    sound.microphones = {"Zulu", "Alpha", "Mïc"};
    const SelectDevice page;
    QStringList names;
    for (const QRadioButton *choice : choices(page))
        names << choice->text();
    QCOMPARE(names, (QStringList{QStringLiteral("Zulu"), QStringLiteral("Alpha"), QStringLiteral("Mïc")}));
    QCOMPARE(named<QLayout>(page, "radio_group")->count(), 3);
}

void TestSelectDevice::checksTheFirstMicrophone()
{
    const FakeSound sound;
    const SelectDevice page;
    QVERIFY(choices(page).constFirst()->isChecked());
    QVERIFY(!choices(page).constLast()->isChecked());
}

void TestSelectDevice::handsOnTheCheckedMicrophoneBeforeItGoesOn()
{
    const FakeSound sound;
    const SelectDevice page;
    QStringList told;
    connect(&page, &SelectDevice::micChanged, this, [&](const QString &name) { told << name; });
    connect(&page, &SelectDevice::NextWidget, this, [&] { told << QStringLiteral("next"); });
    named<QPushButton>(page, "microphone_test_next_button")->click();
    QCOMPARE(told, (QStringList{QStringLiteral("Mic A"), QStringLiteral("next")}));
}

void TestSelectDevice::handsOnTheMicrophoneChosenAnew()
{
    const FakeSound sound;
    const SelectDevice page;
    QSignalSpy chosen(&page, &SelectDevice::micChanged);
    choices(page).constLast()->click();
    named<QPushButton>(page, "microphone_test_next_button")->click();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.constFirst().constFirst().toString(), QStringLiteral("Mic B"));
}

void TestSelectDevice::checksOneMicrophoneAtATime()
{
    const FakeSound sound;
    const SelectDevice page;
    choices(page).constLast()->click();
    QVERIFY(!choices(page).constFirst()->isChecked());
    choices(page).constLast()->click(); // an exclusive choice cannot be taken back
    QVERIFY(choices(page).constLast()->isChecked());
}

void TestSelectDevice::cancels()
{
    const FakeSound sound;
    const SelectDevice page;
    QSignalSpy cancelled(&page, &SelectDevice::cancelTest);
    QSignalSpy next(&page, &SelectDevice::NextWidget);
    named<QPushButton>(page, "microphone_test_cancel_button")->click();
    QCOMPARE(cancelled.size(), 1);
    QCOMPARE(next.size(), 0);
}

void TestSelectDevice::withoutAMicrophoneItOnlyCancels()
{
    FakeSound sound;
    sound.microphones.clear();
    const SelectDevice page;
    QVERIFY(choices(page).isEmpty());
    QSignalSpy cancelled(&page, &SelectDevice::cancelTest);
    QSignalSpy next(&page, &SelectDevice::NextWidget);
    QSignalSpy chosen(&page, &SelectDevice::micChanged);
    named<QPushButton>(page, "microphone_test_next_button")->click();
    QCOMPARE(next.size() + chosen.size(), 0);
    named<QPushButton>(page, "microphone_test_cancel_button")->click();
    QCOMPARE(cancelled.size(), 1);
}

void TestSelectDevice::keepsAnAmpersandOfAName()
{
    FakeSound sound;
    sound.microphones = {"Brown & Son"};
    const SelectDevice page;
    QRadioButton *choice = choices(page).constFirst();
    QCOMPARE(choice->text(), QStringLiteral("Brown & Son"));
    QVERIFY(choice->shortcut().isEmpty());
    const QImage shown = choice->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QRadioButton plain(QStringLiteral("Brown && Son")); // what shows one ampersand
    plain.setChecked(true);
    plain.resize(choice->size());
    QCOMPARE(shown, plain.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

void TestSelectDevice::shortensANameThatIsTooLong()
{
    FakeSound sound;
    sound.microphones = {std::string(400, 'm')};
    SelectDevice page;
    page.resize(300, 200);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const QRadioButton *choice = choices(page).constFirst();
    QVERIFY2(choice->width() <= 300, "the page would have to be scrolled sideways");
    QCOMPARE(choice->text().size(), 400);
    QCOMPARE(choice->toolTip(), choice->text());
}

void TestSelectDevice::showsAnyNameLiterally_data()
{
    QTest::addColumn<QString>("name");
    for (const hostile_names::Name &name : hostile_names::all())
        QTest::newRow(name.row) << name.text;
}

void TestSelectDevice::showsAnyNameLiterally()
{
    QFETCH(QString, name);
    FakeSound sound;
    sound.microphones = {name.toStdString()};
    const SelectDevice page;
    QSignalSpy chosen(&page, &SelectDevice::micChanged);
    const QRadioButton *choice = choices(page).constFirst();
    QCOMPARE(hostile_names::shownByItself(choice->toolTip()), name);
    QCOMPARE(choice->accessibleName(), name);
    QVERIFY(choice->shortcut().isEmpty());
    named<QPushButton>(page, "microphone_test_next_button")->click();
    QCOMPARE(chosen.constFirst().constFirst().toString(), name); // to the letter: the device is opened by it
}

void TestSelectDevice::noButtonIsADefaultOne()
{
    const FakeSound sound;
    const SelectDevice page;
    const QList<QPushButton *> buttons = page.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 2);
    for (const QPushButton *button : buttons) {
        QVERIFY(!button->autoDefault() && !button->isDefault());
        QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    }
}

void TestSelectDevice::screenReadersGetNamesAndRoles()
{
    const FakeSound sound;
    const SelectDevice page;
    QAccessibleInterface *choice = QAccessible::queryAccessibleInterface(choices(page).constFirst());
    QCOMPARE(choice->role(), QAccessible::RadioButton);
    QCOMPARE(choice->text(QAccessible::Name), QStringLiteral("Mic A"));
    QAccessibleInterface *next = QAccessible::queryAccessibleInterface(named<QPushButton>(page, "microphone_test_next_button"));
    QCOMPARE(next->role(), QAccessible::Button);
    QCOMPARE(next->text(QAccessible::Name), QStringLiteral("NEXT"));
}

QTEST_MAIN(TestSelectDevice)
#include "tst_select_device.moc"

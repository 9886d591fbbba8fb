// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/gui/shown_program.h"
#include "host/gui/host_prompts.h"
#include "host/gui/level_bar.h"
#include "host/gui/level_window.h"
#include "host/gui/run_bar.h"
#include "host/gui/wave_view.h"
#include "host/translations/translators.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <functional>

namespace {

bool isInteractive(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::ProgressBar:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::Cell:
    case QAccessible::ColumnHeader:
    case QAccessible::PageTab:
    case QAccessible::PageTabList:
    case QAccessible::MenuItem:
    case QAccessible::PopupMenu:
    case QAccessible::Link:
    case QAccessible::Dialog:
    case QAccessible::Window:
        return true;
    default:
        return false;
    }
}

QString described(QAccessibleInterface *element)
{
    const QString object = element->object() != nullptr ? element->object()->objectName() : QString();
    const QString kind =
        element->object() != nullptr ? QString::fromLatin1(element->object()->metaObject()->className()) : QString();
    return QStringLiteral("%1 '%2' role %3").arg(kind, object).arg(static_cast<int>(element->role()));
}

struct Walk {
    QStringList unnamed;
    QStringList keys; ///< names that nobody translated
    int interactiveCount = 0;

    void visit(QAccessibleInterface *element, int depth = 0)
    {
        constexpr int deepest = 30;
        if (element == nullptr || !element->isValid() || element->state().invisible || depth > deepest)
            return;
        if (isInteractive(element->role()))
            note(element);
        for (int index = 0; index < element->childCount(); ++index)
            visit(element->child(index), depth + 1);
    }

    void note(QAccessibleInterface *element)
    {
        ++interactiveCount;
        const QString name = element->text(QAccessible::Name);
        // What lies in the corners of a toolkit's own widget and takes no focus is no element of the window.
        const bool isOffered =
            element->state().focusable || element->role() == QAccessible::Dialog || element->role() == QAccessible::Window;
        if (name.trimmed().isEmpty() && isOffered)
            unnamed.append(described(element));
        if (name.contains(u'_'))
            keys.append(name);
    }
};

// What lies on the other pages of the window and in its closed menus is met as well.
void visitAllPages(QWidget &window, Walk &walk)
{
    auto *tabs = window.findChild<QTabWidget *>();
    for (int page = 0; page < (tabs != nullptr ? tabs->count() : 1); ++page) {
        if (tabs != nullptr)
            tabs->setCurrentIndex(page);
        walk.visit(QAccessible::queryAccessibleInterface(&window));
    }
    for (QMenu *menu : window.findChildren<QMenu *>()) {
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator() && action->text().isEmpty())
                walk.unnamed.append(menu->title());
            if (action->text().contains(u'_'))
                walk.keys.append(action->text());
            ++walk.interactiveCount;
        }
    }
}

QString nameOf(QWidget *widget) { return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name); }

} // namespace

// Every window of the program as a screen reader meets it.
class TestAccessibleWindows : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QAccessible::setActive(true); }
    void init() { before_ = QDir::currentPath(); }
    void cleanup() { QVERIFY(QDir::setCurrent(before_)); }
    void namesEveryElement_data();
    void namesEveryElement();
    void findsAnUnnamedElement();
    void tabsThroughEveryButton();
    void tellsWhatIsWritten();
    void tellsWhatItPaints();

private:
    QString before_;
};

void TestAccessibleWindows::namesEveryElement_data()
{
    QTest::addColumn<QString>("language");
    for (const char *code : {"en_US", "de_DE", "ja_JP"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestAccessibleWindows::namesEveryElement()
{
    QFETCH(const QString, language);
    QVERIFY(host::installTranslators(language));
    ShownProgram program(true);
    program.module.playback = [](ostra::TestContext &context) {
        context.messages()->addMessage("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE", 2, 0);
        return ostra::result::failed;
    };
    QVERIFY(program.session.run(0, 0, language));
    program.window.showWave({-0.1, 0.1});
    host::InstructionsPrompt instructions(QStringLiteral("AUDIO_PLAYBACK_TEST"),
                                          QStringLiteral("AUDIO_PLAYBACK_TEST_INSTRUCTIONS"), {QStringLiteral("Speakers")});
    host::QuestionPrompt question(QStringLiteral("MICROPHONE_INTERACTIVE_TEST"),
                                  QStringLiteral("DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED"));
    host::PrecheckPrompt precheck({QStringLiteral("finding")}, false);
    host::PrecheckPrompt refusal({QStringLiteral("finding")}, true);
    host::RunBar bar(&program.window, true);
    host::LevelWindow levels(&program.window, QStringLiteral("Monitor of Speakers"));
    const std::pair<QWidget *, int> windows[] = {
        {&program.window, 25}, {&instructions, 3}, {&question, 3}, {&precheck, 3},
        {&refusal, 2},         {&bar, 2},          {&levels, 0}}; // for looking at only
    for (const auto &[window, leastCount] : windows) {
        window->show();
        QVERIFY2(QTest::qWaitFor([window = window] { return window->isVisible(); }), qPrintable(window->objectName()));
        Walk walk;
        visitAllPages(*window, walk);
        QVERIFY2(walk.unnamed.isEmpty(), qPrintable(window->objectName() + QStringLiteral(": ") + walk.unnamed.join(u'\n')));
        QVERIFY2(walk.keys.isEmpty(), qPrintable(window->objectName() + QStringLiteral(": ") + walk.keys.join(u'\n')));
        QVERIFY2(walk.interactiveCount >= leastCount,
                 qPrintable(QStringLiteral("%1: %2").arg(window->objectName()).arg(walk.interactiveCount)));
        window->hide();
    }
}

// The walk itself: a button without a word is found.
void TestAccessibleWindows::findsAnUnnamedElement()
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("A window"));
    const QPushButton button(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    Walk walk;
    walk.visit(QAccessible::queryAccessibleInterface(&window));
    QCOMPARE(walk.unnamed.size(), 1);
}

void TestAccessibleWindows::tabsThroughEveryButton()
{
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    ShownProgram program;
    program.module.playback = [](ostra::TestContext &context) {
        context.messages()->addMessage("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE", 2, 0);
        return ostra::result::failed;
    };
    QVERIFY(program.session.run(0, 0, QStringLiteral("en_US")));
    program.window.choose(0, 0);
    program.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&program.window));
    QStringList met;
    for (int press = 0; press < 30; ++press) {
        QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &program.window, Qt::Key_Tab);
        met.append(QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName() : QString());
    }
    for (const char *name : {"host_devices", "host_refresh", "host_tests", "host_run", "host_result_messages", "host_log"})
        QVERIFY2(met.contains(QLatin1String(name)), qPrintable(QLatin1String(name) + QStringLiteral(" of ") + met.join(u' ')));
}

void TestAccessibleWindows::tellsWhatIsWritten()
{
    QVERIFY(host::installTranslators(QStringLiteral("en_US")));
    ShownProgram program;
    const auto *description = program.find<QLabel>("host_test_description");
    QVERIFY(nameOf(program.find<QLabel>("host_test_description")).contains(description->text()));
    for (const QAction *title : program.window.menuBar()->actions()) {
        QMenu *menu = title->menu();
        QVERIFY2(!nameOf(menu).isEmpty(), qPrintable(title->text()));
        for (const QAction *action : menu->actions())
            QVERIFY2(!action->text().contains(u'\t'), qPrintable(action->text())); // its keys are told apart from its name
    }
}

void TestAccessibleWindows::tellsWhatItPaints()
{
    ShownProgram program;
    host::RunBar bar(&program.window, false);
    host::LevelWindow levels(&program.window, QStringLiteral("Monitor of Speakers"));
    QCOMPARE(QAccessible::queryAccessibleInterface(&bar)->role(), QAccessible::Window);
    QCOMPARE(QAccessible::queryAccessibleInterface(&levels)->role(), QAccessible::Window);
    QCOMPARE(QAccessible::queryAccessibleInterface(levels.findChild<host::WaveView *>())->role(), QAccessible::Graphic);
    auto *meter = levels.findChild<host::LevelBar *>();
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(meter);
    QCOMPARE(told->role(), QAccessible::ProgressBar);
    QAccessibleValueInterface *value = told->valueInterface();
    QVERIFY(value != nullptr);
    QCOMPARE(value->minimumValue().toDouble(), -60.0);
    QCOMPARE(value->maximumValue().toDouble(), 0.0);
    QCOMPARE(value->currentValue().toDouble(), -60.0);
    meter->setLevels(-21.5, -3);
    QCOMPARE(value->currentValue().toDouble(), -21.5);
}

QTEST_MAIN(TestAccessibleWindows)
#include "tst_accessible_windows.moc"

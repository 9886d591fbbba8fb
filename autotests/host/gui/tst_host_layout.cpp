// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/gui/host_windows.h"
#include "autotests/host/gui/pseudo_translator.h"
#include "autotests/host/gui/text_room.h"
#include "host/translations/translators.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <QScreen>
#include <QTableWidget>
#include <QTest>

namespace {

// Texts that are wrapped need the height for the width that they got.
QSize roomNeeded(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label != nullptr && label->wordWrap())
        return {0, label->heightForWidth(label->width())};
    return widget.sizeHint();
}

void verifyFits(const QWidget &window)
{
    const QRect room = window.screen()->availableGeometry();
    QVERIFY2(room.contains(window.frameGeometry()), qPrintable(window.objectName()));
    QList<const QWidget *> widgets;
    for (const QLabel *label : window.findChildren<QLabel *>())
        widgets.append(label);
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        widgets.append(button);
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->objectName().startsWith(QStringLiteral("qt_")) ||
            !widget->objectName().startsWith(QStringLiteral("host_")))
            continue;
        const QSize needed = roomNeeded(*widget);
        const bool isRoomy = widget->width() >= needed.width() && widget->height() >= needed.height();
        QVERIFY2(isRoomy, qPrintable(QStringLiteral("%1: %2x%3 of %4x%5")
                                         .arg(widget->objectName())
                                         .arg(widget->width())
                                         .arg(widget->height())
                                         .arg(needed.width())
                                         .arg(needed.height())));
        QVERIFY(widget->window()->rect().contains(QRect(widget->mapTo(widget->window(), QPoint()), widget->size())));
    }
    const QStringList cut = text_room::cutTexts(window);
    QVERIFY2(cut.isEmpty(), qPrintable(window.objectName() + QStringLiteral(": ") + cut.join(QStringLiteral("; "))));
}

// Each as it opens below its title, or at the window's corner.
void verifyMenusFit(const QWidget &window)
{
    for (QMenu *menu : window.findChildren<QMenu *>()) {
        if (menu->isEmpty())
            continue;
        auto *bar = qobject_cast<QMenuBar *>(menu->parentWidget());
        const QPoint below =
            bar != nullptr ? bar->mapToGlobal(bar->actionGeometry(menu->menuAction()).bottomLeft()) : window.pos();
        menu->popup(below);
        QVERIFY(QTest::qWaitForWindowExposed(menu));
        const QStringList cut = text_room::cutEntries(*menu);
        menu->close();
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral("; "))));
    }
}

// The column that tells how a device stands must leave its name readable.
void verifyNamesFit(const QWidget &window)
{
    const auto *devices = window.findChild<QTableWidget *>(QStringLiteral("host_devices"));
    QVERIFY(devices->columnWidth(0) >= devices->fontMetrics().horizontalAdvance(QStringLiteral("Speakers")));
}

// For a look at it: the folder that this variable names gets the pictures.
void photograph(QWidget &window, const QString &code)
{
    const QString folder = qEnvironmentVariable("HOST_LAYOUT_PICTURES");
    if (!folder.isEmpty())
        window.grab().save(QStringLiteral("%1/%2_%3_%4.png").arg(folder, window.objectName(), code).arg(window.logicalDpiX()));
}

} // namespace

/// One screen and resolution a run, set from outside.
class TestHostLayout : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void fits_data();
    void fits();

private:
    QString before_ = QDir::currentPath();
};

void TestHostLayout::initTestCase()
{
    if (qEnvironmentVariableIsSet("QT_FONT_DPI"))
        QCOMPARE(QApplication::primaryScreen()->logicalDotsPerInch(), qEnvironmentVariable("QT_FONT_DPI").toDouble());
}

void TestHostLayout::cleanup() { QVERIFY(QDir::setCurrent(before_)); }

void TestHostLayout::fits_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("isLonger");
    const QStringList codes = host::LanguageSetting::codes();
    for (const QString &code : codes)
        QTest::addRow("%s", qPrintable(code)) << code << false;
    QTest::newRow("two fifths longer") << QStringLiteral("en_US") << true;
}

void TestHostLayout::fits()
{
    QFETCH(const QString, code);
    QFETCH(const bool, isLonger);
    host::installTranslators(code);
    PseudoTranslator pseudo;
    QVERIFY(!isLonger || (pseudo.load() && QCoreApplication::installTranslator(&pseudo)));
    host_windows::visitAll(code, [&code](QWidget &window, const QString &state) {
        verifyFits(window);
        if (state.isEmpty() || state == QLatin1String("before"))
            verifyMenusFit(window);
        if (state == QLatin1String("before"))
            verifyNamesFit(window);
        photograph(window, state.isEmpty() ? code : code + u'_' + state);
    });
}

int main(int argc, char *argv[])
{
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // as the program does
    QApplication application(argc, argv);
    TestHostLayout test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_host_layout.moc"

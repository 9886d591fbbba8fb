// SPDX-License-Identifier: Apache-2.0
#include "utils/desktop_appearance_linux.h"

#include "utils/color_contrast.h"
#include "utils/screen_sources.h"
#include "utils/system_colors.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

using namespace ostra::utils;

namespace {

// The bus keeps the order of what one program sends: every question before this one is counted.
int questionCount()
{
    const auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("QuestionCount"));
    const QDBusMessage answer = QDBusConnection::sessionBus().call(question);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().constFirst().toInt() : -1;
}

} // namespace

/// Against a desktop portal that a second process plays; the bus is this test's own.
class TestDesktopAppearance : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void readsThePortalsSettings_data();
    void readsThePortalsSettings();
    void schemeColoursStandOut_data();
    void schemeColoursStandOut();
    void accentIsTheHighlight();
    void slowPortalHoldsNobodyUp(); // last: it is not asked again for seconds

private:
    void startPortal(const QStringList &arguments);

    QProcess portal_;
};

void TestDesktopAppearance::startPortal(const QStringList &arguments)
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/../pretend_portal/pretend_portal");
    portal_.start(program, arguments);
    QVERIFY(portal_.waitForReadyRead(10'000));
    QCOMPARE(portal_.readAllStandardOutput(), QByteArray("ready\n"));
    QTest::qWait(60); // the answer before is no longer kept
}

void TestDesktopAppearance::cleanup()
{
    portal_.kill();
    portal_.waitForFinished();
}

void TestDesktopAppearance::readsThePortalsSettings_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<int>("contrast"); // -1: not told
    QTest::addColumn<int>("dark");
    QTest::addColumn<QColor>("accent");
    QTest::newRow("nothing") << "- - - 0 0 0" << -1 << -1 << QColor();
    QTest::newRow("no preference") << "0 0 - 0 0 0" << 0 << -1 << QColor();
    QTest::newRow("more contrast") << "1 - - 0 0 0" << 1 << -1 << QColor();
    QTest::newRow("unknown contrast") << "2 - - 0 0 0" << 0 << -1 << QColor();
    QTest::newRow("dark") << "- 1 - 0 0 0" << -1 << 1 << QColor();
    QTest::newRow("light") << "- 2 - 0 0 0" << -1 << 0 << QColor();
    QTest::newRow("unknown scheme") << "- 3 - 0 0 0" << -1 << -1 << QColor();
    QTest::newRow("accent") << "1 1 1 0.2 0 0" << 1 << 1 << QColor(255, 51, 0);
    QTest::newRow("accent out of range") << "- - -1 0 0 0" << -1 << -1 << QColor();
}

void TestDesktopAppearance::readsThePortalsSettings()
{
    QFETCH(QString, settings);
    QFETCH(QColor, accent);
    startPortal(settings.split(u' '));
    const DesktopAppearance appearance = desktopAppearance();
    QTEST(appearance.highContrast ? int{*appearance.highContrast} : -1, "contrast");
    QTEST(appearance.dark ? int{*appearance.dark} : -1, "dark");
    QCOMPARE(appearance.accent.has_value(), accent.isValid());
    if (accent.isValid())
        QCOMPARE(appearance.accent->rgb(), accent.rgb());
    QCOMPARE(desktopHighContrast(), appearance.highContrast.value_or(false));
}

void TestDesktopAppearance::schemeColoursStandOut_data()
{
    QTest::addColumn<QString>("settings");
    QTest::newRow("dark") << "1 1 - 0 0 0";
    QTest::newRow("light") << "1 2 - 0 0 0";
}

void TestDesktopAppearance::schemeColoursStandOut()
{
    QFETCH(QString, settings);
    startPortal(settings.split(u' '));
    const QList<QColor> colors = systemColorList();
    const auto contrast = [&colors](int text, int background) {
        return contrastRatio(colors[systemColorPosition(text)], colors[systemColorPosition(background)]);
    };
    QVERIFY(contrast(system_color::windowText, system_color::window) >= 20.9);
    QVERIFY(contrast(system_color::buttonText, system_color::buttonFace) >= 20.9);
    QVERIFY(contrast(system_color::highlightText, system_color::highlight) >= 20.9);
    QVERIFY(contrast(system_color::highlight, system_color::window) >= 20.9);
    QVERIFY(contrast(system_color::hotLight, system_color::window) >= 7.0);
    QVERIFY(contrast(system_color::grayText, system_color::window) >= 7.0);
    QVERIFY(contrast(system_color::windowFrame, system_color::background) >= 20.9);
}

void TestDesktopAppearance::accentIsTheHighlight()
{
    startPortal(QStringLiteral("1 1 1 1 0 0").split(u' '));
    const QList<QColor> colors = systemColorList();
    QCOMPARE(colors[systemColorPosition(system_color::highlight)], QColor(Qt::yellow));
    QCOMPARE(colors[systemColorPosition(system_color::highlightText)], QColor(Qt::black));
}

void TestDesktopAppearance::slowPortalHoldsNobodyUp()
{
    startPortal(QStringLiteral("1 1 - 0 0 5000").split(u' '));
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!desktopAppearance().highContrast.has_value());
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(questionCount(), 1);
    QTest::qWait(60); // an answer would no longer be kept
    QCOMPARE(systemColorList().size(), 30);
    QCOMPARE(questionCount(), 1); // asks no more
}

QTEST_MAIN(TestDesktopAppearance)
#include "tst_desktop_appearance.moc"

// SPDX-License-Identifier: Apache-2.0
#include "autotests/views/playback_fixture.h"
#include "autotests/views/throwing_host.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>

using namespace ostra;
using playback_fixture::Playback;

namespace {

void send(const Playback &playback, QEvent::Type type, const QPoint &position, const QPoint &global,
          Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, position, global, button, button, Qt::NoModifier);
    QApplication::sendEvent(playback.view.get(), &event);
}

QPoint centre(const Playback &playback, const char *name)
{
    const QWidget &widget = playback.at(name);
    return widget.mapTo(playback.view.get(), widget.rect().center());
}

} // namespace

class TestPlaybackViewDragging : public QObject {
    Q_OBJECT

private slots:
    void followsTheCursor_data();
    void followsTheCursor();
    void startsOnAChildOfTheHeader();
    void staysWhenPressedElsewhere_data();
    void staysWhenPressedElsewhere();
    void stopsWhenReleased();
    void showsAClosedHandMeanwhile();
    void hidesTheMeasuringWidgetFromTheMouse();
    void anEventThatFailsEndsItWithoutAVerdict_data();
    void anEventThatFailsEndsItWithoutAVerdict();
};

void TestPlaybackViewDragging::followsTheCursor_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestPlaybackViewDragging::followsTheCursor()
{
    QFETCH(Qt::MouseButton, button);
    const Playback playback;
    playback.view->show();
    const QPoint grip = centre(playback, "header");
    send(playback, QEvent::MouseButtonPress, grip, playback.view->pos() + grip, button);
    send(playback, QEvent::MouseMove, grip, QPoint(300, 200), button);
    QCOMPARE(playback.view->pos(), QPoint(300, 200) - grip);
    send(playback, QEvent::MouseMove, grip, QPoint(310, 190), button);
    QCOMPARE(playback.view->pos(), QPoint(310, 190) - grip);
}

void TestPlaybackViewDragging::startsOnAChildOfTheHeader()
{
    const Playback playback;
    playback.view->show();
    QTest::mousePress(&playback.at("header_label"), Qt::LeftButton);
    QCOMPARE(playback.view->cursor().shape(), Qt::ClosedHandCursor);
}

void TestPlaybackViewDragging::staysWhenPressedElsewhere_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("close button") << QByteArray("header_close");
    QTest::newRow("instruction") << QByteArray("general_instruction_message");
    QTest::newRow("keypad") << QByteArray("numpad_space");
}

void TestPlaybackViewDragging::staysWhenPressedElsewhere()
{
    QFETCH(QByteArray, name);
    const Playback playback;
    playback.view->show();
    const QPoint before = playback.view->pos();
    const QPoint position = centre(playback, name);
    send(playback, QEvent::MouseButtonPress, position, before + position, Qt::RightButton);
    send(playback, QEvent::MouseMove, position, QPoint(300, 200), Qt::RightButton);
    QCOMPARE(playback.view->pos(), before);
    QVERIFY(playback.view->cursor().shape() != Qt::ClosedHandCursor);
}

void TestPlaybackViewDragging::stopsWhenReleased()
{
    const Playback playback;
    playback.view->show();
    const QPoint grip = centre(playback, "header");
    send(playback, QEvent::MouseButtonPress, grip, playback.view->pos() + grip);
    send(playback, QEvent::MouseMove, grip, QPoint(300, 200));
    send(playback, QEvent::MouseButtonRelease, grip, QPoint(300, 200));
    send(playback, QEvent::MouseMove, grip, QPoint(400, 300));
    QCOMPARE(playback.view->pos(), QPoint(300, 200) - grip);
}

void TestPlaybackViewDragging::showsAClosedHandMeanwhile()
{
    const Playback playback;
    playback.view->show();
    const QPoint grip = centre(playback, "header");
    send(playback, QEvent::MouseButtonPress, grip, playback.view->pos() + grip);
    QCOMPARE(playback.view->cursor().shape(), Qt::ClosedHandCursor);
    send(playback, QEvent::MouseButtonRelease, grip, playback.view->pos() + grip);
    QCOMPARE(playback.view->cursor().shape(), Qt::ArrowCursor);
}

void TestPlaybackViewDragging::hidesTheMeasuringWidgetFromTheMouse()
{
    const Playback playback;
    playback.view->show();
    const QWidget *hit = playback.view->childAt(QPoint(50, 15));
    QVERIFY(hit != nullptr);
    QVERIFY2(hit->objectName().startsWith(QStringLiteral("audio_playback_test_header")), qPrintable(hit->objectName()));
}

void TestPlaybackViewDragging::anEventThatFailsEndsItWithoutAVerdict_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("throwsAt");
    QTest::newRow("a press") << int(QEvent::MouseButtonPress) << int(QEvent::CursorChange);
    QTest::newRow("a move") << int(QEvent::MouseMove) << int(QEvent::Move);
    QTest::newRow("a release") << int(QEvent::MouseButtonRelease) << int(QEvent::CursorChange);
}

void TestPlaybackViewDragging::anEventThatFailsEndsItWithoutAVerdict()
{
    QFETCH(const int, type);
    QFETCH(const int, throwsAt);
    const Playback playback;
    playback.view->show();
    const QPoint grip = centre(playback, "header");
    if (type != QEvent::MouseButtonPress)
        send(playback, QEvent::MouseButtonPress, grip, playback.view->pos() + grip);
    throwing_host::Filter filter{QEvent::Type(throwsAt)};
    playback.view->installEventFilter(&filter);
    QVERIFY(!throwing_host::comesOut([&] { send(playback, QEvent::Type(type), grip, QPoint(300, 200)); }));
    QVERIFY(filter.hasThrown());
    QVERIFY(playback.view->hasFinished());
    QCOMPARE(playback.view->outcome(), 3);
}

QTEST_MAIN(TestPlaybackViewDragging)
#include "tst_playback_view_dragging.moc"

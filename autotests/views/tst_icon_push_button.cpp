// SPDX-License-Identifier: Apache-2.0
#include "views/icon_push_button.h"
#include "views/register_types.h"

#include "autotests/views/throwing_host.h"

#include <QIconEngine>
#include <QImage>
#include <QMetaType>
#include <QPixmap>
#include <QTest>

#include <new>

class TestIconPushButton : public QObject {
    Q_OBJECT

private slots:
    void isFoundByItsName();
    void hasNoSignalsOrSlotsOfItsOwn();
    void drawsItsIconAtItsSpot();
    void drawsTheNormalPixmapWhenDisabled();
    void isAnOrdinaryButtonWithoutAnIcon_data();
    void isAnOrdinaryButtonWithoutAnIcon();
    void whatCannotBePaintedIsPaintedTheNextTime_data();
    void whatCannotBePaintedIsPaintedTheNextTime();
};

namespace {

QIcon icon(Qt::GlobalColor normal, Qt::GlobalColor other)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(normal);
    QIcon result(pixmap);
    pixmap.fill(other);
    result.addPixmap(pixmap, QIcon::Disabled);
    result.addPixmap(pixmap, QIcon::Normal, QIcon::On);
    return result;
}

// An icon of a host's making.
class IconEngine final : public QIconEngine {
public:
    explicit IconEngine(const bool &throws) : throws_(throws) {}
    void paint(QPainter *, const QRect &, QIcon::Mode, QIcon::State) override {}
    QIconEngine *clone() const override { return new IconEngine(throws_); }
    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        if (throws_)
            throw std::bad_alloc();
        QPixmap pixmap(size);
        pixmap.fill(Qt::red);
        return pixmap;
    }

private:
    const bool &throws_;
};

} // namespace

void TestIconPushButton::isFoundByItsName()
{
    ostra::registerViewTypes();
    ostra::registerViewTypes();
    const QMetaType type = QMetaType::fromName("IconPushButton*");
    QVERIFY(type.isValid());
    QCOMPARE(type.metaObject(), &IconPushButton::staticMetaObject);
    QCOMPARE(QByteArray(type.metaObject()->className()), QByteArray("IconPushButton"));
}

void TestIconPushButton::hasNoSignalsOrSlotsOfItsOwn()
{
    const QMetaObject &meta = IconPushButton::staticMetaObject;
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void TestIconPushButton::drawsItsIconAtItsSpot()
{
    IconPushButton button;
    button.resize(100, 60);
    button.drawIconAt(icon(Qt::red, Qt::blue), QPoint(30, 20), QSize(16, 16));
    const QImage image = button.grab().toImage();
    const double ratio = image.devicePixelRatio();
    const auto color = [&](int x, int y) { return image.pixelColor(int(x * ratio), int(y * ratio)); };
    QCOMPARE(color(30, 20), QColor(Qt::red));
    QCOMPARE(color(45, 35), QColor(Qt::red));
    QVERIFY(color(29, 20) != QColor(Qt::red));
    QVERIFY(color(46, 35) != QColor(Qt::red));
}

void TestIconPushButton::drawsTheNormalPixmapWhenDisabled()
{
    IconPushButton button;
    button.resize(100, 60);
    button.setCheckable(true);
    button.setChecked(true);
    button.setEnabled(false);
    button.drawIconAt(icon(Qt::red, Qt::blue), QPoint(30, 20), QSize(16, 16));
    QCOMPARE(button.grab().toImage().pixelColor(35, 25), QColor(Qt::red));
}

void TestIconPushButton::isAnOrdinaryButtonWithoutAnIcon_data()
{
    QTest::addColumn<QIcon>("icon");
    QTest::addColumn<QSize>("size");
    QTest::newRow("as constructed") << QIcon() << QSize();
    QTest::newRow("null icon") << QIcon() << QSize(16, 16);
    QTest::newRow("invalid size") << icon(Qt::red, Qt::red) << QSize();
    QTest::newRow("empty size") << icon(Qt::red, Qt::red) << QSize(0, 16);
}

void TestIconPushButton::isAnOrdinaryButtonWithoutAnIcon()
{
    QFETCH(QIcon, icon);
    QFETCH(QSize, size);
    QPushButton plain;
    plain.resize(100, 60);
    IconPushButton button;
    button.resize(100, 60);
    button.drawIconAt(icon, QPoint(), size);
    QCOMPARE(button.grab().toImage(), plain.grab().toImage());
}

void TestIconPushButton::whatCannotBePaintedIsPaintedTheNextTime_data()
{
    QTest::addColumn<bool>("isStyle");
    QTest::newRow("the style") << true;
    QTest::newRow("the icon") << false;
}

void TestIconPushButton::whatCannotBePaintedIsPaintedTheNextTime()
{
    QFETCH(const bool, isStyle);
    bool throws = false;
    IconPushButton button;
    throwing_host::Style style(button);
    button.setStyle(&style);
    button.resize(100, 60);
    button.drawIconAt(QIcon(new IconEngine(throws)), QPoint(30, 20), QSize(16, 16));
    style.throws = isStyle;
    throws = !isStyle;
    QImage image;
    QVERIFY(!throwing_host::comesOut([&] { image = button.grab().toImage(); }));
    QVERIFY(image.pixelColor(35, 25) != QColor(Qt::red));
    style.throws = throws = false;
    QCOMPARE(button.grab().toImage().pixelColor(35, 25), QColor(Qt::red));
}

QTEST_MAIN(TestIconPushButton)
#include "tst_icon_push_button.moc"

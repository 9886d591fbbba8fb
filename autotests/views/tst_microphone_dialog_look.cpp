// SPDX-License-Identifier: Apache-2.0
// The room that the texts of the nine languages have, at the DPI of the display settings' steps.
#include "autotests/views/fake_sound.h"
#include "autotests/views/microphone_texts.h"
#include "autotests/views/page_probe.h"
#include "resources/icons.h"
#include "utils/dpi.h"
#include "utils/screen_sources.h"
#include "views/interaction_dialog.h"
#include "views/play_audio.h"
#include "views/record_audio.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QObject>
#include <QStackedWidget>
#include <QTest>

#include <cstdint>

using namespace ostra;

namespace {

std::uint32_t dpi = 96;

} // namespace

class TestMicrophoneDialogLook : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void growsWithTheDpi_data();
    void growsWithTheDpi();
};

void TestMicrophoneDialogLook::initTestCase()
{
    initIcons();
    utils::screenSources().primaryMonitorDpi = []() -> std::optional<std::uint32_t> { return dpi; };
}

void TestMicrophoneDialogLook::init() { utils::Dpi::destroyInstance(); }

void TestMicrophoneDialogLook::nothingIsClipped_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<quint32>("resolution");
    for (std::size_t index = 0; index < microphone_texts::languages.size(); ++index) {
        for (const quint32 resolution : {96U, 120U, 144U, 168U, 192U, 240U, 288U})
            QTest::addRow("%s, %u DPI", microphone_texts::languages[index].code, resolution)
                << static_cast<int>(index) << resolution;
    }
}

void TestMicrophoneDialogLook::nothingIsClipped()
{
    QFETCH(const int, language);
    QFETCH(const quint32, resolution);
    dpi = resolution;
    microphone_texts::Translator translator(microphone_texts::languages.at(static_cast<std::size_t>(language)));
    QCoreApplication::installTranslator(&translator);
    const FakeSound sound;
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    dialog.show();
    auto *pages = page_probe::named<QStackedWidget>(dialog, "microphone_test_popups_space");
    for (int index = 2; index < 5; ++index) {
        dialog.findChild<RecordAudio *>()->set_device_name(QStringLiteral("Mic A"));
        pages->setCurrentIndex(index);
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            const int needed = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            QVERIFY2(label->height() >= needed, qPrintable(label->objectName()));
            QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
        }
        for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
            if (!button->isVisible() || button->text().isEmpty())
                continue;
            const int text = button->fontMetrics().horizontalAdvance(button->text());
            QVERIFY2(button->width() >= text + button->iconSize().width(), qPrintable(button->objectName()));
            QVERIFY2(button->height() >= button->sizeHint().height(), qPrintable(button->objectName()));
        }
        for (const QWidget *widget : pages->currentWidget()->findChildren<QWidget *>()) {
            const QRect inPages(widget->mapTo(pages, QPoint()), widget->size());
            QVERIFY2(!widget->isVisible() || pages->rect().contains(inPages), qPrintable(widget->objectName()));
        }
    }
    QCoreApplication::removeTranslator(&translator);
}

void TestMicrophoneDialogLook::growsWithTheDpi_data()
{
    QTest::addColumn<quint32>("resolution");
    QTest::addColumn<int>("width");
    QTest::newRow("96") << 96U << 466;
    QTest::newRow("120") << 120U << 582;
    QTest::newRow("192") << 192U << 932;
    QTest::newRow("288") << 288U << 932; // the scale ends at two
}

void TestMicrophoneDialogLook::growsWithTheDpi()
{
    QFETCH(const quint32, resolution);
    dpi = resolution;
    const FakeSound sound;
    const microphone_texts::Translator translator(microphone_texts::languages[1]);
    const InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    QTEST(dialog.width(), "width");
}

QTEST_MAIN(TestMicrophoneDialogLook)
#include "tst_microphone_dialog_look.moc"

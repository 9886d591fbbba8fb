// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/long_texts.h"
#include "autotests/views/clipped_widgets.h"
#include "autotests/views/playback_fixture.h"
#include "autotests/views/throwing_host.h"

#include <QAccessible>
#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QStyle>

using namespace ostra;
using clipped_widgets::firstClipped;
using clipped_widgets::overlapping;
using playback_fixture::Playback;

namespace {

QString shortName(const QObject &object) { return object.objectName().remove(QStringLiteral("audio_playback_test_")); }

// One line for each item, indented: widgets by name, layouts in brackets, spacers by size.
void describe(const QLayout &layout, int depth, QStringList &lines)
{
    const QString indent(depth * 2, u' ');
    for (int index = 0; index < layout.count(); ++index) {
        QLayoutItem *item = layout.itemAt(index);
        if (item->layout() != nullptr) {
            lines.append(indent + u'[' + shortName(*item->layout()) + u']');
            describe(*item->layout(), depth + 1, lines);
        } else if (const QWidget *widget = item->widget(); widget != nullptr) {
            const QLayout *inner = widget->layout();
            lines.append(indent + shortName(*widget) + u' ' + QLatin1StringView(widget->metaObject()->className()) +
                         (inner == nullptr ? QString() : QStringLiteral(" [%1]").arg(shortName(*inner))));
            if (inner != nullptr)
                describe(*inner, depth + 1, lines);
        } else {
            lines.append(indent + QStringLiteral("%1x%2").arg(item->sizeHint().width()).arg(item->sizeHint().height()));
        }
    }
}

QString inputs(const char *position)
{
    QString lines;
    for (const char *state : {"set", "current", "unset"})
        lines += QStringLiteral("        %1_input_%2 QPushButton\n").arg(QLatin1StringView(position), QLatin1StringView(state));
    return lines;
}

QString key(int digit)
{
    return QStringLiteral("        numpad_button_unpressed_%1 QPushButton\n        numpad_button_pressed_%1 QPushButton\n")
        .arg(digit);
}

QString expectedTree()
{
    return QStringLiteral("header QWidget [horizontalLayout]\n"
                          "  header_icon QLabel\n"
                          "  header_label QLabel\n"
                          "  header_close QPushButton\n"
                          "general_instruction_widget QWidget [horizontalLayout_6]\n"
                          "  general_instruction_icon QLabel\n"
                          "  general_instruction_message QLabel\n"
                          "  40x20\n"
                          "sequence_icons_widget QWidget [horizontalLayout_2]\n"
                          "  129x20\n"
                          "  current_audio_sequence_icon QLabel\n"
                          "  failed_audio_sequence_icon QLabel\n"
                          "  non_executed_audio_sequence_icon QLabel\n"
                          "  current_audio_sequence_icon_2 QLabel\n"
                          "  129x20\n"
                          "audio_sequence_text_widget QWidget [horizontalLayout_5]\n"
                          "  first_audio_sequence_message QLabel\n"
                          "  second_audio_sequence_message_background QFrame [verticalLayout_8]\n"
                          "    second_audio_sequence_message QLabel\n"
                          "io_space QWidget [horizontalLayout_7]\n"
                          "  input_and_gif_space QWidget [verticalLayout_3]\n"
                          "    [verticalLayout_6]\n"
                          "      sound_indicator_gif QLabel\n"
                          "      input_sequence QWidget [horizontalLayout_3]\n") +
           inputs("first") + inputs("second") + inputs("third") +
           QStringLiteral("[horizontalLayout_10]\n"
                          "  numpad_instructions_message QLabel\n"
                          "[horizontalLayout_11]\n"
                          "  numpad_space QWidget [verticalLayout_2]\n"
                          "    [verticalLayout_5]\n"
                          "      [first_line_buttons]\n") +
           key(1) + key(2) + key(3) + QStringLiteral("      [second_line_buttons]\n") + key(4) + key(5) + key(6) +
           QStringLiteral("      [third_line_buttons]\n") + key(7) + key(8) + key(9) +
           QStringLiteral("      [forth_line_buttons]\n        numpad_backspace_button QPushButton\n") + key(0) +
           QStringLiteral("        numpad_repeat_button QPushButton\n"
                          "[h_layout_fail_btn]\n"
                          "  fail_button QPushButton");
}

/// Every object that a screen reader would come across, what is hidden left out.
void collect(QAccessibleInterface *object, QList<QAccessibleInterface *> &found)
{
    if (object == nullptr || object->state().invisible)
        return;
    found.append(object);
    for (int index = 0; index < object->childCount(); ++index)
        collect(object->child(index), found);
}

} // namespace

class TestPlaybackViewForm : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { playback_fixture::monitorDpi = 96; }
    void hasTheWidgetsInTheirOrder();
    void hasTheMarginsOfTheForm();
    void hasItsSlotsInOrder();
    void isATopLevelWindowOfItsKind();
    void installsTheEventFilter();
    void asksForItsTextsByKey();
    void startsWithTheFirstSequence();
    void hasItsSizes_data();
    void hasItsSizes();
    void hasTheFontsOfTheApplication();
    void hasAHandOverTheEndingButtons();
    void clipsNothing_data();
    void clipsNothing();
    void coversTheWholeWindow_data();
    void coversTheWholeWindow();
    void carriesEveryIcon();
    void namesEverythingForScreenReaders();
    void showsOneOfEachPairToScreenReaders();
    void tellsTheStateOfTheSequences();
    void whatCannotBePaintedIsPaintedTheNextTime();
};

void TestPlaybackViewForm::hasTheWidgetsInTheirOrder()
{
    const Playback playback;
    QCOMPARE(playback.view->objectName(), QStringLiteral("AudioPlaybackTestWidget"));
    QCOMPARE(playback.view->layout()->objectName(), QStringLiteral("verticalLayout"));
    QStringList lines;
    describe(*playback.view->layout(), 0, lines);
    const QStringList expected = expectedTree().split(u'\n');
    for (qsizetype line = 0; line < qMin(lines.size(), expected.size()); ++line)
        QCOMPARE(lines.at(line), expected.at(line));
    QCOMPARE(lines.size(), expected.size());
    QVERIFY(playback.at<QPushButton>("header_close").isFlat());
    QCOMPARE(int(playback.at<QLabel>("first_audio_sequence_message").alignment()), 132);
}

void TestPlaybackViewForm::hasTheMarginsOfTheForm()
{
    const Playback playback;
    const auto margins = [&](const char *name) {
        const auto *layout = playback.view->findChild<QLayout *>(QLatin1StringView(name));
        const QMargins of = layout->contentsMargins();
        return QStringLiteral("%1 %2 %3 %4").arg(of.left()).arg(of.top()).arg(of.right()).arg(of.bottom());
    };
    const int usual = playback.view->style()->pixelMetric(QStyle::PM_LayoutTopMargin, nullptr, &playback.at("header"));
    QVERIFY(usual > 0);
    QCOMPARE(margins("verticalLayout"), QStringLiteral("0 0 0 0"));
    QCOMPARE(margins("horizontalLayout"), QStringLiteral("9 %1 9 %1").arg(usual));
    QCOMPARE(margins("horizontalLayout_6"), QStringLiteral("9 0 %1 0").arg(usual));
    QCOMPARE(margins("horizontalLayout_2"), QStringLiteral("%1 5 %1 5").arg(usual));
    QCOMPARE(margins("verticalLayout_8"), QStringLiteral("8 0 8 0"));
}

void TestPlaybackViewForm::hasItsSlotsInOrder()
{
    const QMetaObject &meta = AudioPlaybackTestView::staticMetaObject;
    QStringList signatures;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(index).methodSignature()));
    }
    QCOMPARE(signatures.join(u' '),
             QStringLiteral("OnCloseButtonClicked() OnFailButtonClicked() FirstInputButtonClicked() SecondInputButtonClicked() "
                            "ThirdInputButtonClicked() FourthInputButtonClicked() FifthInputButtonClicked() "
                            "SixthInputButtonClicked() SeventhInputButtonClicked() EighthInputButtonClicked() "
                            "NinethInputButtonClicked() ZeroInputButtonClicked() OnBackspaceButtonClicked() PlayAudio() "
                            "CheckAudioIsPlaying() CheckSystemEventAbortion()"));
}

void TestPlaybackViewForm::isATopLevelWindowOfItsKind()
{
    const Playback playback;
    QWidget parent;
    const AudioPlaybackTestView view(&parent, nullptr, 7, playback.component.get(), nullptr);
    QCOMPARE(view.parent(), nullptr);
    QCOMPARE(int(view.windowFlags()), 0x40803);
    QVERIFY(view.testAttribute(Qt::WA_NativeWindow));
    QVERIFY(!view.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(view.isModal());
    QCOMPARE(view.windowModality(), Qt::ApplicationModal);
    QVERIFY(!view.isVisible());
}

void TestPlaybackViewForm::installsTheEventFilter()
{
    class Counter final : public QObject {
    public:
        int count = 0;
        bool eventFilter(QObject *, QEvent *) override { return ++count < 0; }
    };
    const Playback playback;
    Counter counter;
    AudioPlaybackTestView view(nullptr, &counter, 0, playback.component.get(), nullptr);
    view.show();
    QVERIFY(counter.count > 0);
}

void TestPlaybackViewForm::asksForItsTextsByKey()
{
    const Playback playback; // no translator: a key is its own text
    const auto text = [&](const char *name) {
        const auto *label = qobject_cast<QLabel *>(&playback.at(name));
        return label != nullptr ? label->text() : playback.at<QPushButton>(name).text();
    };
    QCOMPARE(playback.view->windowTitle(), QStringLiteral("APPLICATION_NAME"));
    QCOMPARE(text("header_label"), QStringLiteral("AUDIO_PLAYBACK_TEST"));
    QCOMPARE(text("first_audio_sequence_message"), QStringLiteral("FIRST_SEQUENCE"));
    QCOMPARE(text("second_audio_sequence_message"), QStringLiteral("SECOND_SEQUENCE"));
    QCOMPARE(text("general_instruction_message"), QStringLiteral("AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS"));
    QCOMPARE(text("numpad_instructions_message"), QStringLiteral("SELECT_OR_TYPE_NUMBER\nCLICK_FAIL_IF_NO_SOUND_WAS_HEARD"));
    QCOMPARE(text("fail_button"), QStringLiteral("FAIL_BUTTON_TEXT"));
    QCOMPARE(playback.at("fail_button").toolTip(), QStringLiteral("FAIL_BUTTON_TOOLTP"));
    QCOMPARE(playback.at("numpad_backspace_button").toolTip(), QStringLiteral("BACKSPACE_BUTTON_TOOLTP"));
    QCOMPARE(playback.at("numpad_repeat_button").toolTip(), QStringLiteral("PLAY_THE_SEQUENCE_AGAIN"));
}

void TestPlaybackViewForm::startsWithTheFirstSequence()
{
    const Playback playback;
    for (const char *name : {"current_audio_sequence_icon", "non_executed_audio_sequence_icon", "first_audio_sequence_message"})
        QVERIFY2(playback.shows(name), name);
    for (const char *name :
         {"failed_audio_sequence_icon", "current_audio_sequence_icon_2", "second_audio_sequence_message_background"})
        QVERIFY2(!playback.shows(name), name);
}

void TestPlaybackViewForm::hasItsSizes_data()
{
    QTest::addColumn<quint32>("dpi");
    QTest::addColumn<QSize>("dialog");
    QTest::addColumn<int>("keySide");
    QTest::newRow("96") << 96U << QSize(466, 424) << 34;
    QTest::newRow("119 counts as 96") << 119U << QSize(466, 424) << 34;
    QTest::newRow("120") << 120U << QSize(582, 530) << 42;
    QTest::newRow("144") << 144U << QSize(699, 636) << 51;
    QTest::newRow("168") << 168U << QSize(815, 742) << 59;
    QTest::newRow("192") << 192U << QSize(932, 848) << 68;
    QTest::newRow("288 is capped") << 288U << QSize(932, 848) << 68;
}

void TestPlaybackViewForm::hasItsSizes()
{
    QFETCH(quint32, dpi);
    QFETCH(QSize, dialog);
    QFETCH(int, keySide);
    playback_fixture::monitorDpi = dpi;
    const Playback playback;
    QCOMPARE(playback.view->minimumSize(), dialog);
    QCOMPARE(playback.view->maximumSize(), dialog);
    playback.view->show();
    QCOMPARE(playback.view->size(), dialog);
    for (int digit = 0; digit < 10; ++digit)
        QCOMPARE(playback.key(digit).size(), QSize(keySide, keySide));
    QCOMPARE(playback.at("numpad_backspace_button").size(), QSize(keySide, keySide));
    QCOMPARE(playback.at("numpad_repeat_button").size(), QSize(keySide, keySide));
}

void TestPlaybackViewForm::hasTheFontsOfTheApplication()
{
    playback_fixture::monitorDpi = 192;
    const Playback fine;
    playback_fixture::monitorDpi = 96;
    const Playback usual;
    for (const char *name : {"numpad_button_unpressed_5", "numpad_button_pressed_5", "first_input_set", "third_input_unset",
                             "numpad_instructions_message", "fail_button"}) {
        QCOMPARE(usual.at(name).font().family(), QApplication::font().family());
        const double growth = double(fine.at(name).font().pixelSize()) / usual.at(name).font().pixelSize();
        QVERIFY2(growth > 1.85 && growth < 2.15, name);
    }
}

void TestPlaybackViewForm::hasAHandOverTheEndingButtons()
{
    const Playback playback;
    QCOMPARE(playback.at("header_close").cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(playback.at("fail_button").cursor().shape(), Qt::PointingHandCursor);
}

void TestPlaybackViewForm::clipsNothing_data()
{
    QTest::addColumn<quint32>("dpi");
    QTest::addColumn<bool>("isSecond");
    for (const quint32 dpi : {96U, 120U, 144U, 192U, 288U}) {
        QTest::addRow("%u, first sequence", dpi) << dpi << false;
        QTest::addRow("%u, second sequence", dpi) << dpi << true;
    }
}

void TestPlaybackViewForm::clipsNothing()
{
    QFETCH(quint32, dpi);
    QFETCH(bool, isSecond);
    const LongTexts texts;
    playback_fixture::monitorDpi = dpi;
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.view->show();
    QVERIFY(QTest::qWaitForWindowExposed(playback.view.get()));
    if (isSecond)
        playback.type({7, 8, 9, 1});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // Windows would let a form that needs more height outgrow its fixed size.
    QCOMPARE(playback.view->size(), playback.view->maximumSize());
    QCOMPARE(firstClipped(*playback.view), QString());
    QCOMPARE(overlapping(*playback.view), QStringList());
}

void TestPlaybackViewForm::coversTheWholeWindow_data()
{
    QTest::addColumn<bool>("isHighContrast");
    QTest::newRow("product style") << false;
    QTest::newRow("high contrast") << true;
}

void TestPlaybackViewForm::coversTheWholeWindow()
{
    QFETCH(bool, isHighContrast);
    if (isHighContrast) {
        utils::screenSources().highContrastOn = [] { return true; };
        utils::screenSources().systemColor = [](int index) { return index == 8 || index == 18 ? 0xFFFFFFU : 0x400000U; };
    }
    const Playback playback;
    utils::screenSources() = {};
    playback.view->show();
    QVERIFY(QTest::qWaitForWindowExposed(playback.view.get()));
    QImage image(playback.view->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    playback.view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren); // as a window without a background does
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255)
                QFAIL(qPrintable(QStringLiteral("a hole at %1,%2").arg(x).arg(y)));
        }
    }
}

void TestPlaybackViewForm::carriesEveryIcon()
{
    const Playback playback;
    for (const char *name :
         {"arrow_down", "arrow_up", "audio_test", "backspace", "check", "close", "information", "microphone_test", "play",
          "record", "repeat", "sequence_current", "sequence_failed", "sequence_not_executed"}) {
        const QString path = QStringLiteral(":/audio/resources/icons/") + QLatin1StringView(name);
        QFile drawing(path + QStringLiteral(".svg"));
        QVERIFY2(drawing.open(QIODevice::ReadOnly), name);
        const QByteArray text = drawing.readAll();
        QCOMPARE(text.count('#'), 1); // one colour, so that it can be replaced
        QVERIFY2(text.contains("fill=\"#757575\""), name);
        QCOMPARE(QImage(path + QStringLiteral(".png")).size(), QSize(128, 128));
    }
}

void TestPlaybackViewForm::namesEverythingForScreenReaders()
{
    const LongTexts texts;
    const Playback playback;
    playback.view->show();
    QList<QAccessibleInterface *> found;
    collect(QAccessible::queryAccessibleInterface(playback.view.get()), found);
    QVERIFY(found.size() > 20);
    int buttonCount = 0;
    for (QAccessibleInterface *object : found) {
        const QString widget = object->object()->objectName();
        if (object->role() == QAccessible::Graphic)
            QVERIFY2(!object->text(QAccessible::Name).isEmpty(), qPrintable(widget));
        if (object->role() != QAccessible::Button)
            continue;
        ++buttonCount;
        QVERIFY2(!object->text(QAccessible::Name).isEmpty(), qPrintable(widget));
        const bool isTabStop = !widget.contains(QStringLiteral("input")) && !widget.contains(QStringLiteral("pressed_"));
        QCOMPARE(bool(object->state().focusable), isTabStop);
        QVERIFY2(!object->state().disabled, qPrintable(widget));
    }
    QCOMPARE(buttonCount, 17); // ten digits, three positions, backspace, repeat, fail, close
    QCOMPARE(playback.at("numpad_repeat_button").accessibleName(), playback.at("numpad_repeat_button").toolTip());
    QCOMPARE(playback.at("numpad_backspace_button").accessibleName(), playback.at("numpad_backspace_button").toolTip());
    QCOMPARE(playback.at("header_close").accessibleName(), QStringLiteral("Abbrechen"));
    QCOMPARE(playback.view->accessibleDescription(), QStringLiteral("Speakers"));
}

void TestPlaybackViewForm::showsOneOfEachPairToScreenReaders()
{
    const Playback playback;
    playback.view->show();
    playback.type({4});
    QList<QAccessibleInterface *> found;
    collect(QAccessible::queryAccessibleInterface(playback.view.get()), found);
    int fours = 0;
    for (QAccessibleInterface *object : found) {
        if (!object->object()->objectName().contains(QStringLiteral("pressed_4")))
            continue;
        ++fours;
        QCOMPARE(object->text(QAccessible::Name), QStringLiteral("4"));
        QVERIFY(object->state().disabled); // used up
    }
    QCOMPARE(fours, 1);
}

void TestPlaybackViewForm::tellsTheStateOfTheSequences()
{
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback.view->show();
    playback.type({7, 8, 9});
    QCOMPARE(playback.at("failed_audio_sequence_icon").accessibleName(), QStringLiteral("FIRST_SEQUENCE"));
    QCOMPARE(playback.at("failed_audio_sequence_icon").accessibleDescription(),
             QStringLiteral("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE"));
    QCOMPARE(playback.at("current_audio_sequence_icon_2").accessibleName(), QStringLiteral("SECOND_SEQUENCE"));
}

void TestPlaybackViewForm::whatCannotBePaintedIsPaintedTheNextTime()
{
    const Playback playback;
    throwing_host::Style style(*playback.view);
    playback.view->setStyle(&style);
    playback.view->setStyleSheet(QString()); // or it would paint the window by itself
    const QImage whole = playback.view->grab().toImage();
    style.throws = true;
    QVERIFY(!throwing_host::comesOut([&] { playback.view->grab(); }));
    QVERIFY(style.thrownCount > 0);
    QVERIFY(!playback.view->hasFinished());
    style.throws = false;
    QCOMPARE(playback.view->grab().toImage(), whole);
    playback.view->setStyle(nullptr);
}

QTEST_MAIN(TestPlaybackViewForm)
#include "tst_playback_view_form.moc"

// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/ts_texts.h"
#include "autotests/views/clipped_widgets.h"
#include "autotests/views/playback_fixture.h"

using playback_fixture::Playback;

class TestPlaybackViewLanguages : public QObject {
    Q_OBJECT

private slots:
    void hasRoomForItsTexts_data();
    void hasRoomForItsTexts();
};

void TestPlaybackViewLanguages::hasRoomForItsTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<quint32>("dpi");
    for (const char *language : {"pt_BR", "en_US", "es_ES", "fr_FR", "it_IT", "de_DE", "nl_NL", "zh_CN", "ja_JP"}) {
        for (const quint32 dpi : {96U, 120U, 144U, 192U, 288U})
            QTest::addRow("%s at %u", language, dpi) << QString::fromLatin1(language) << dpi;
    }
}

void TestPlaybackViewLanguages::hasRoomForItsTexts()
{
    QFETCH(QString, language);
    QFETCH(quint32, dpi);
    const TsTexts texts(QStringLiteral(TRANSLATIONS_DIR "/audio_%1.ts").arg(language));
    QVERIFY(texts.count() > 20);
    playback_fixture::monitorDpi = dpi;
    const Playback playback({1, 2, 3, 4, 5, 6});
    playback_fixture::monitorDpi = 96;
    playback.view->show();
    QVERIFY(QTest::qWaitForWindowExposed(playback.view.get()));
    QCOMPARE(clipped_widgets::firstClipped(*playback.view), QString());
    playback.type({7, 8, 9, 1});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(clipped_widgets::firstClipped(*playback.view), QString());
    QCOMPARE(playback.view->size(), playback.view->maximumSize());
    QCOMPARE(clipped_widgets::overlapping(*playback.view), QStringList());
}

QTEST_MAIN(TestPlaybackViewLanguages)
#include "tst_playback_view_languages.moc"

// SPDX-License-Identifier: Apache-2.0
#include "host/operator/volume_watch.h"

#include <QObject>
#include <QTest>

using ostra::audio::EndpointNames;
using ostra::audio::EndpointVolume;
using ostra::audio::EndpointVolumes;

namespace {

const EndpointNames names{{u"s", "Speakers"}, {u"h", "Kopfh\u00F6rer \u8033"}, {u"m", "Mic"}};

EndpointVolume endpoint(std::u16string id, float level, bool isMuted)
{
    EndpointVolume made;
    made.id = std::move(id);
    made.level = level;
    made.muted = isMuted;
    return made;
}

} // namespace

class TestVolumeWatch : public QObject {
    Q_OBJECT

private slots:
    void judgesTheEndpointsThatMatter_data();
    void judgesTheEndpointsThatMatter();
};

void TestVolumeWatch::judgesTheEndpointsThatMatter_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("changed");
    QTest::addColumn<float>("level");
    QTest::addColumn<bool>("isMuted");
    QTest::addColumn<bool>("areRaised");
    const auto add = [](const char *name, const char *wanted, const char *changed, float level, bool isMuted, bool raised) {
        QTest::newRow(name) << QString::fromUtf8(wanted) << QString::fromUtf8(changed) << level << isMuted << raised;
    };
    add("all raised", "Speakers", "s", 1.0F, false, true);
    add("muted", "Speakers", "s", 1.0F, true, false);
    add("lowered", "Speakers", "s", 0.37F, false, false);
    add("rounded by the driver", "Speakers", "s", 0.996F, false, true);
    add("another one muted", "Speakers", "h", 1.0F, true, true);
    add("the listening microphone muted", "Mic", "m", 1.0F, true, false);
    add("a name beyond ASCII", "Kopfh\u00F6rer \u8033", "h", 0.5F, false, false);
    add("no such name", "Speakers (2)", "h", 1.0F, true, false);
}

void TestVolumeWatch::judgesTheEndpointsThatMatter()
{
    QFETCH(const QString, wanted);
    QFETCH(const QString, changed);
    QFETCH(const float, level);
    QFETCH(const bool, isMuted);
    EndpointVolumes volumes;
    for (const char16_t *id : {u"s", u"h", u"m"}) {
        const bool isChanged = changed == QStringView(id);
        volumes.push_back(endpoint(id, isChanged ? level : 1.0F, isChanged && isMuted));
    }
    const QStringList wantedNames{QStringLiteral("Monitor of nothing"), wanted};
    QTEST(host::areRaised(volumes, names, wantedNames), "areRaised");
}

QTEST_GUILESS_MAIN(TestVolumeWatch)
#include "tst_volume_watch.moc"

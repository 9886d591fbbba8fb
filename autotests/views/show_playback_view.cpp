// SPDX-License-Identifier: Apache-2.0
#include "audio/audio_component.h"
#include "autotests/support/contrast_palettes.h"
#include "autotests/support/fake_sdl.h"
#include "autotests/support/long_texts.h"
#include "autotests/support/wave_files.h"
#include "resources/icons.h"
#include "utils/screen_sources.h"
#include "views/audio_playback_test_view.h"
#include "views/digit_sequence.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QScreen>
#include <QTimer>

#include <chrono>
#include <cstdio>

using namespace ostra;

namespace {

std::uint32_t monitorDpi = 96;
const contrast_palettes::Palette *palette = nullptr;

void choosePalette(const QString &name)
{
    for (const contrast_palettes::Palette &theme : contrast_palettes::themes) {
        if (name == QLatin1StringView(theme.name))
            palette = &theme;
    }
    utils::screenSources().highContrastOn = [] { return palette != nullptr; };
    utils::screenSources().systemColor = [](int index) {
        return palette == nullptr ? utils::desktopColor(index)
                                  : utils::referenceOfColor(contrast_palettes::color(*palette, index));
    };
}

// "typed": one digit; "second": a wrong answer; "playing": the bars; "focus": the keyboard is on the repeat button.
void bringInto(const QString &state, AudioPlaybackTestView &view)
{
    if (state == u"typed")
        view.FourthInputButtonClicked();
    if (state == u"playing")
        QMetaObject::invokeMethod(&view, &AudioPlaybackTestView::PlayAudio);
    if (state == u"focus")
        view.findChild<QWidget *>(QStringLiteral("audio_playback_test_numpad_repeat_button"))->setFocus();
    if (state != u"second")
        return;
    view.SeventhInputButtonClicked();
    view.EighthInputButtonClicked();
    view.NinethInputButtonClicked();
    view.FirstInputButtonClicked();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Shows the view of the playback test; nothing is played."));
    options.addHelpOption();
    const QCommandLineOption dpi(QStringLiteral("dpi"), QStringLiteral("Monitor's DPI."), QStringLiteral("dpi"),
                                 QStringLiteral("96"));
    const QCommandLineOption state(QStringLiteral("state"), QStringLiteral("start, typed, second, playing or focus."),
                                   QStringLiteral("state"), QStringLiteral("start"));
    const QCommandLineOption colors(QStringLiteral("palette"), QStringLiteral("aquatic, desert, dusk or night-sky."),
                                    QStringLiteral("name"));
    const QCommandLineOption file(QStringLiteral("grab"), QStringLiteral("Writes a PNG and ends."), QStringLiteral("file"));
    options.addOptions({dpi, state, colors, file});
    options.process(application);
    monitorDpi = options.value(dpi).toUInt();
    utils::screenSources().primaryMonitorDpi = []() -> std::optional<std::uint32_t> { return monitorDpi; };
    choosePalette(options.value(colors));
    initIcons();
    playbackSources().digit = [] {
        static int digit = 0;
        return digit++ % 3;
    };
    playbackSources().volumeGuard = [](std::int32_t) { return audio::VolumeGuard(); };
    wave_files::writeClipSet(QCoreApplication::applicationDirPath(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 48));
    QDir::setCurrent(QCoreApplication::applicationDirPath()); // no configuration file: the system's language
    const FakeSdl silence;
    const LongTexts texts;
    audio::AudioComponent component("Speakers");
    AudioPlaybackTestView view(nullptr, nullptr, 0, &component, nullptr);
    view.show();
    view.activateWindow();
    bringInto(options.value(state), view);
    if (options.isSet(file)) {
        QTimer::singleShot(std::chrono::milliseconds{600}, &view, [&] {
            const bool isSaved = view.screen()->grabWindow(view.winId()).save(options.value(file));
            QApplication::exit(isSaved ? 0 : 1);
        });
    }
    return QApplication::exec();
}

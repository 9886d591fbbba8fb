// SPDX-License-Identifier: Apache-2.0
// Shows the microphone dialog at one of its pages, with sound devices that do not exist.
#include "autotests/support/contrast_palettes.h"
#include "autotests/views/fake_sound.h"
#include "autotests/views/microphone_texts.h"
#include "autotests/views/page_probe.h"
#include "resources/icons.h"
#include "utils/screen_sources.h"
#include "views/interaction_dialog.h"
#include "views/play_audio.h"
#include "views/record_audio.h"
#include "views/select_device.h"

#include <QCommandLineParser>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <memory>

using namespace ostra;

namespace {

const contrast_palettes::Palette *chosen = nullptr;

void usePalette(const QString &name)
{
    for (const contrast_palettes::Palette &theme : contrast_palettes::themes) {
        if (name == QLatin1StringView(theme.name))
            chosen = &theme;
    }
    if (chosen == nullptr)
        return;
    utils::screenSources().highContrastOn = [] { return true; };
    utils::screenSources().systemColor = [](int index) {
        return utils::referenceOfColor(contrast_palettes::color(*chosen, index));
    };
}

void goTo(InteractionDialog &dialog, const QString &page)
{
    if (page == u"select")
        return;
    page_probe::named<QPushButton>(*dialog.findChild<SelectDevice *>(), "microphone_test_next_button")->click();
    auto *record = dialog.findChild<RecordAudio *>();
    if (page == u"idle")
        return;
    page_probe::named<QPushButton>(*record, "microphone_test_record_button")->click();
    for (int tick = 0; tick < 3; ++tick)
        record->OnTimerTick();
    if (page == u"record")
        return;
    dialog.goToNextWidget();
    auto *play = dialog.findChild<PlayAudio *>();
    play->set_result_status(0);
    if (page == u"play")
        play->OnTimerTick();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser options;
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("select, idle, record or play."),
                                  QStringLiteral("name"), QStringLiteral("select"));
    const QCommandLineOption palette(QStringLiteral("palette"), QStringLiteral("A contrast theme."), QStringLiteral("name"));
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("Such as de_DE."), QStringLiteral("code"));
    const QCommandLineOption file(QStringLiteral("grab"), QStringLiteral("Writes a PNG once it is shown, and ends."),
                                  QStringLiteral("file"));
    options.addOptions({page, palette, language, file});
    options.addHelpOption();
    options.process(application);
    initIcons();
    usePalette(options.value(palette));
    std::unique_ptr<microphone_texts::Translator> translator;
    for (const microphone_texts::Language &known : microphone_texts::languages) {
        if (options.value(language) == QLatin1StringView(known.code))
            translator = std::make_unique<microphone_texts::Translator>(known);
    }
    if (translator)
        QCoreApplication::installTranslator(translator.get());
    FakeSound sound;
    sound.microphones = {"Microphone Array (Digital Microphones)", "Headset & Co", "USB"};
    InteractionDialog dialog(QStringLiteral("Speakers"), nullptr, nullptr, nullptr);
    dialog.show();
    goTo(dialog, options.value(page));
    if (options.isSet(file)) {
        QTimer::singleShot(std::chrono::milliseconds{500}, &dialog, [&] {
            const bool isSaved = dialog.screen()->grabWindow(dialog.winId()).save(options.value(file));
            QApplication::exit(isSaved ? 0 : 1);
        });
    }
    return QApplication::exec();
}

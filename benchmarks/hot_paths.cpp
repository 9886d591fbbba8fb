// SPDX-License-Identifier: Apache-2.0
// The code that runs most often, each piece in a function of its own whose instructions are counted. The making of the input
// and a first turn, which binds symbols and makes what is made once, run before and are not.
#include "audio/transfer_buffer.h"
#include "benchmarks/workloads.h"
#include "host/measure/matched_filter.h"
#include "resources/icons.h"
#include "utils/config_reader.h"
#include "utils/high_contrast_style.h"
#include "utils/icon_recolouring.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

constexpr std::uint32_t callCount = 1000;

struct HotInput {
    HotInput();
    void rewind();

    QTemporaryDir folder;
    std::string configFile = folder.filePath(QStringLiteral("config.ini")).toStdString();
    QString sheet = productSheet();
    QList<QColor> colors = contrastColors();
    measure::DigitClips clips = digitClips();
    measure::MatchedFilter filter{clips};
    measure::MonoSound capture = digitCapture(clips);
    ostra::audio::TransferBuffer buffer;
    std::vector<std::uint8_t> stream = std::vector<std::uint8_t>(512); // 64 frames
};

HotInput::HotInput()
{
    QFile file(QString::fromStdString(configFile));
    if (file.open(QIODevice::WriteOnly))
        file.write(longConfiguration(2000) + longLineConfiguration(20000));
}

void HotInput::rewind()
{
    const auto byteCount = static_cast<std::uint32_t>(stream.size()) * callCount + 1;
    buffer.bind(std::make_unique<std::uint8_t[]>(byteCount), byteCount);
}

namespace {

using Path = void (*)(HotInput &);

void readConfiguration(HotInput &input)
{
    ostra::utils::IniConfiguration configuration;
    ostra::utils::readConfigFile(input.configFile, configuration);
}

void capture(HotInput &input)
{
    for (std::uint32_t call = 0; call < callCount; ++call)
        ostra::audio::TransferBuffer::capture(&input.buffer, input.stream.data(), static_cast<int>(input.stream.size()));
}

void playBack(HotInput &input)
{
    for (std::uint32_t call = 0; call < callCount; ++call)
        ostra::audio::TransferBuffer::playback(&input.buffer, input.stream.data(), static_cast<int>(input.stream.size()));
}

void rewriteSheet(HotInput &input) { ostra::utils::highContrastStyleSheet(input.sheet, input.colors, {}); }

void recolourIcon(HotInput & /*input*/)
{
    QObject dialog;
    ostra::utils::recolourIcon(&dialog, QStringLiteral("url(\":/audio/resources/icons/microphone_test.svg\")"),
                               QStringLiteral("#ffff00"));
}

void decideDigit(HotInput &input) { static_cast<void>(input.filter.recognise(input.capture)); }

} // namespace
} // namespace bench

// By these names the counts are found; called through a table that is searched, so that none is dissolved into its caller.
extern "C" {
void hot_config_reader(bench::HotInput &input) { bench::readConfiguration(input); }
void hot_capture_callback(bench::HotInput &input) { bench::capture(input); }
void hot_playback_callback(bench::HotInput &input) { bench::playBack(input); }
void hot_contrast_sheet(bench::HotInput &input) { bench::rewriteSheet(input); }
void hot_icon_recolouring(bench::HotInput &input) { bench::recolourIcon(input); }
void hot_digit_decision(bench::HotInput &input) { bench::decideDigit(input); }
}

/// hot_paths NAME: one of the six, without its "hot_".
int main(int argumentCount, char **arguments)
{
    struct Turn {
        std::string_view name;
        bench::Path first;
        bench::Path counted;
    };
    const std::array<Turn, 6> turns{{{"config_reader", &bench::readConfiguration, &hot_config_reader},
                                     {"capture_callback", &bench::capture, &hot_capture_callback},
                                     {"playback_callback", &bench::playBack, &hot_playback_callback},
                                     {"contrast_sheet", &bench::rewriteSheet, &hot_contrast_sheet},
                                     {"icon_recolouring", &bench::recolourIcon, &hot_icon_recolouring},
                                     {"digit_decision", &bench::decideDigit, &hot_digit_decision}}};
    const QCoreApplication application(argumentCount, arguments);
    const std::string_view name = argumentCount > 1 ? arguments[1] : "";
    const auto *turn = std::find_if(turns.begin(), turns.end(), [name](const Turn &each) { return each.name == name; });
    if (turn == turns.end())
        return 2;
    ostra::initIcons();
    bench::HotInput input;
    input.rewind();
    turn->first(input);
    input.rewind();
    turn->counted(input);
    return 0;
}

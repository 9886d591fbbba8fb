// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ostra::audio {

/// Languages that the product ships clips for. Nothing consults the list at run time: the configuration names the language.
inline constexpr std::array<const char *, 9> clipLanguages{"pt_BR", "en_US", "es_ES", "fr_FR", "it_IT",
                                                           "de_DE", "nl_NL", "zh_CN", "ja_JP"};

/// UTF-8 path of the clip of `number`: folder/audio_files/language/number_language.wav. A negative number keeps its sign.
std::string clipPath(const std::string &folder, const std::string &language, std::int32_t number);

/// Whether the clips of all ten digits can be opened for reading as regular files, asked in increasing order up to the first
/// that cannot. Playback is all or nothing: a set with a gap would blame the speakers for a digit that was never played.
bool allClipsPresent(const std::string &folder, const std::string &language);

} // namespace ostra::audio

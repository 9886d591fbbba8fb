// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QList>

#include <array>
#include <cstdint>

/// The desktop's colours, numbered as Windows numbers them (winuser.h, COLOR_*), on every platform.
namespace ostra::utils {

/// Windows system colour indices, for `systemColorPosition`.
namespace system_color {

inline constexpr int background = 1; // COLOR_BACKGROUND, and so on
inline constexpr int window = 5;
inline constexpr int windowFrame = 6;
inline constexpr int windowText = 8;
inline constexpr int highlight = 13;
inline constexpr int highlightText = 14;
inline constexpr int buttonFace = 15;
inline constexpr int grayText = 17;
inline constexpr int buttonText = 18;
inline constexpr int infoText = 23;
inline constexpr int hotLight = 26;
inline constexpr int gradientActiveCaption = 27;

} // namespace system_color

/// Every index, in the order of the list: Windows has no index 25.
inline constexpr std::array<int, 30> systemColorIndices = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                                                           15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 26, 27, 28, 29, 30};

/// Position of a system colour in the list: position 25 holds index 26, position 29 index 30.
constexpr qsizetype systemColorPosition(int index) noexcept { return index > 25 ? index - 1 : index; }

/// Opaque colour of 0x00BBGGRR: the low byte is red.
QColor colorOfReference(std::uint32_t reference);

/// 0x00BBGGRR of a colour; its alpha is dropped.
std::uint32_t referenceOfColor(const QColor &color);

/// The 30 colours of `systemColorIndices`, asked afresh from the source in force. GUI thread.
QList<QColor> systemColorList();

} // namespace ostra::utils

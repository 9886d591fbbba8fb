// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <array>
#include <cstdint>

namespace ostra::utils {

/// The steps of dots per inch that the display settings of Windows offer (100 % to 350 %).
inline constexpr std::array<std::int32_t, 9> dpiLadder = {96, 120, 144, 168, 192, 216, 240, 288, 336};

/// A measured DPI rounded down to the ladder; what lies below it counts as 96.
constexpr std::int32_t dpiLadderStep(std::uint32_t measured) noexcept
{
    std::int32_t step = dpiLadder.front();
    for (const std::int32_t next : dpiLadder) {
        if (measured >= static_cast<std::uint32_t>(next))
            step = next;
    }
    return step;
}

/// A screen's logical DPI without its fraction; 0 for what is no DPI.
constexpr std::uint32_t wholeDpi(double logicalDpi) noexcept
{
    return logicalDpi >= 1.0 && logicalDpi < 65536.0 ? static_cast<std::uint32_t>(logicalDpi) : 0;
}

/// The primary monitor's DPI, measured once, and what follows from it for sizes.
///
/// It is a child of the first top-level widget that existed when it was first asked for, explicitly hidden so that it does
/// not appear with its parent, and goes with it; the next call of `instance` then makes and measures a new one. The last
/// DPI that the system reported is kept for the case that it fails later. Threading: GUI thread only.
class Dpi final : public QWidget {
public:
    /// The instance; null while the application has no top-level widget. Owned by that widget.
    static Dpi *instance();

    /// Deletes the instance, if there is one: for a library that is about to go while the host's widget stays.
    static void destroyInstance();

    ~Dpi() override;

    /// 1.0 at 96 DPI up to 2.0 at 192 DPI and more.
    double scaleFactor() const;

    /// `a` at scale 1.0, `b` + 1.0 at scale 2.0, and between them a curve.
    double scaledValue(double a, double b) const;

    /// The step of the ladder, 96 to 336.
    std::int32_t dpiStep() const { return dpiStep_; }

private:
    explicit Dpi(QWidget *parent);
    void measure();

    std::int32_t dpi_ = dpiLadder.front(); ///< at most 192: the divisor of `scaledValue` is zero at a scale of 3.0
    std::int32_t dpiStep_ = dpiLadder.front();
};

} // namespace ostra::utils

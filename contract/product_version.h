// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

// The C library's system headers define these as macros for device numbers.
#undef major
#undef minor

namespace ostra {

/// Version of the product that the host shows; deliberately another number than the library file's own version.
/// One static instance lives in the module; the host never destroys it. Any thread.
class ProductVersion {
public:
    /// The four numbers.
    constexpr ProductVersion(std::uint32_t major, std::uint32_t minor, std::uint32_t build, std::uint32_t revision) noexcept
        : major_(major), minor_(minor), build_(build), revision_(revision)
    {}
    ProductVersion(const ProductVersion &) = delete;
    ProductVersion &operator=(const ProductVersion &) = delete;

    virtual ~ProductVersion() = default;                                  // slot 0
    virtual std::uint32_t major() const noexcept { return major_; }       ///< Slot 1.
    virtual std::uint32_t minor() const noexcept { return minor_; }       ///< Slot 2.
    virtual std::uint32_t build() const noexcept { return build_; }       ///< Slot 3.
    virtual std::uint32_t revision() const noexcept { return revision_; } ///< Slot 4.

private:
    std::uint32_t major_;
    std::uint32_t minor_;
    std::uint32_t build_;
    std::uint32_t revision_;
};

} // namespace ostra

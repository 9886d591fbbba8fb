// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace sal {

/// Version of the kernel driver of the sound card with that kernel number: the version that its module declares, else
/// "kernel " and the release of the running kernel, because a driver of the kernel's own tree has no version of its own. Empty
/// when not even that is known. `systemFolder` is the root of the kernel's device tree.
std::string kernelDriverVersion(std::optional<std::uint32_t> alsaCard, const std::filesystem::path &systemFolder = "/sys");

} // namespace sal

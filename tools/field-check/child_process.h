// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace field_check {

/// A program that was started, with what it prints kept and an input without an end. Ended with this object at the latest.
class ChildProcess {
public:
    /// Starts the command in that current folder; its output goes to the file.
    ChildProcess(const std::wstring &command, const std::filesystem::path &folder, const std::filesystem::path &output);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Ends its input, which asks a listener to end.
    void endInput();
    bool isRunning() const;
    DWORD id() const noexcept { return process_.dwProcessId; }
    /// The exit code; nothing when it did not start or is still running after that time.
    std::optional<DWORD> waitFor(std::chrono::milliseconds limit);
    /// Paths of the libraries that it has loaded by now.
    std::set<std::wstring> libraries() const;

private:
    PROCESS_INFORMATION process_{};
    HANDLE input_ = nullptr; ///< our end of its input
    HANDLE output_ = INVALID_HANDLE_VALUE;
};

/// Runs the command to its end. Nothing when it did not start or did not end.
std::optional<DWORD> runToEnd(const std::wstring &command, const std::filesystem::path &folder,
                              const std::filesystem::path &output, std::chrono::milliseconds limit);

std::string contents(const std::filesystem::path &file);

} // namespace field_check

// SPDX-License-Identifier: Apache-2.0
#include "tools/field-check/child_process.h"

#include <tlhelp32.h>

#include <fstream>
#include <iterator>

namespace field_check {

namespace {

HANDLE openForChild(const std::filesystem::path &file)
{
    SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

// The child's end; ours must not reach it, or its input would have no end.
HANDLE openPipe(HANDLE &ours)
{
    SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE theirs = nullptr;
    if (!CreatePipe(&theirs, &ours, &inheritable, 0))
        return nullptr;
    SetHandleInformation(ours, HANDLE_FLAG_INHERIT, 0);
    return theirs;
}

} // namespace

ChildProcess::ChildProcess(const std::wstring &command, const std::filesystem::path &folder,
                           const std::filesystem::path &output)
    : output_(openForChild(output))
{
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = openPipe(input_);
    start.hStdOutput = output_;
    start.hStdError = output_;
    std::wstring changeable = command;
    if (!CreateProcessW(nullptr, changeable.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, folder.c_str(), &start,
                        &process_))
        process_ = {};
    if (start.hStdInput != nullptr)
        CloseHandle(start.hStdInput);
}

void ChildProcess::endInput()
{
    if (input_ != nullptr)
        CloseHandle(input_);
    input_ = nullptr;
}

ChildProcess::~ChildProcess()
{
    endInput();
    if (process_.hProcess != nullptr) {
        if (isRunning())
            TerminateProcess(process_.hProcess, 1);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }
    if (output_ != INVALID_HANDLE_VALUE)
        CloseHandle(output_);
}

bool ChildProcess::isRunning() const
{
    return process_.hProcess != nullptr && WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> ChildProcess::waitFor(std::chrono::milliseconds limit)
{
    DWORD code = 0;
    if (process_.hProcess == nullptr ||
        WaitForSingleObject(process_.hProcess, static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process_.hProcess, &code))
        return std::nullopt;
    return code;
}

std::set<std::wstring> ChildProcess::libraries() const
{
    std::set<std::wstring> found;
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process_.dwProcessId);
    if (snapshot == INVALID_HANDLE_VALUE)
        return found;
    MODULEENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL isThere = Module32FirstW(snapshot, &entry); isThere; isThere = Module32NextW(snapshot, &entry))
        found.insert(entry.szExePath);
    CloseHandle(snapshot);
    return found;
}

std::optional<DWORD> runToEnd(const std::wstring &command, const std::filesystem::path &folder,
                              const std::filesystem::path &output, std::chrono::milliseconds limit)
{
    ChildProcess child(command, folder, output);
    return child.waitFor(limit);
}

std::string contents(const std::filesystem::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace field_check

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <string>

namespace fuzz {

/// Ends the process, so that the input is kept as a crash, unless the promise holds.
void require(bool holds, const char *promise);

/// A nameless file in memory whose content each run replaces: faster than a disk, and nothing to clean up.
class MemoryFile {
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    /// By which this process can open it.
    std::string path() const;
    void setContent(const char *bytes, std::size_t byteCount) const;

private:
    int descriptor_;
};

inline const char *chars(const std::uint8_t *data) { return reinterpret_cast<const char *>(data); }

inline QByteArray bytes(const std::uint8_t *data, std::size_t byteCount)
{
    return QByteArray(chars(data), static_cast<qsizetype>(byteCount));
}

} // namespace fuzz

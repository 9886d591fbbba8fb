// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The host's platform library, imported by the module. Every function returns a process-wide object that the caller never
/// frees; null means that the host lacks the service. Tests replace the library by linking another one.
namespace sal {

/// Values of one row in the order in which the properties were asked for. An absent (null) value is no value at all, which is
/// not the same as an empty text.
using CimRow = std::vector<std::optional<std::string>>;

/// Queries of the management service (WMI on Windows).
class Cim {
public:
    virtual ~Cim() = default; // slot 0
    /// Slot 1. Appends the matching instances of `className` to `rows`, in the service's order. `condition` is the text after
    /// WHERE, empty for none; `propertyNames` points at `propertyCount` UTF-8 names; `nameSpace` is such as "root\\CIMV2".
    /// Returns 0 on success, else a platform error code; `rows` is then unspecified. Blocks; any thread.
    virtual std::int32_t query(std::vector<CimRow> &rows, const std::string &condition, const std::string &className,
                               std::uint32_t propertyCount, const char *const *propertyNames, const std::string &nameSpace) = 0;
};

/// The host's number formatter.
class NumberHandler {
public:
    virtual ~NumberHandler() = default; // slot 0
    /// Slot 1. Text of `number` as the host wants to read it; plain decimal digits in the reference host.
    virtual std::string toText(std::int64_t number) = 0;
};

/// A steady tick source.
class Timer {
public:
    virtual ~Timer() = default; // slot 0
    /// Slot 1. Milliseconds since some fixed moment, never going back. Any thread.
    virtual std::uint64_t ticks() = 0;
};

/// Loads libraries of the operating system, from the system's own folder only.
class ModuleLoader {
public:
    virtual ~ModuleLoader() = default; // slot 0
    /// Slot 1. Handle of `fileName` (a bare name such as "shcore.dll"), null when it cannot be loaded. `flag` 1: the system's
    /// folder; other values are refused. The caller gives the handle back through slot 2.
    virtual void *load(const std::string &fileName, std::uint32_t flag) = 0;
    /// Slot 2. Null is ignored.
    virtual void release(void *handle) = 0;
};

/// The host's folder for temporary files.
class TemporaryPath {
public:
    virtual ~TemporaryPath() = default; // slot 0
    /// Slot 1. UTF-8 path without a trailing separator; empty when the host has none, and the module then uses its own.
    virtual std::string path() = 0;
};

} // namespace sal

extern "C" {
sal::Cim *get_cim();
sal::NumberHandler *get_number_handler();
sal::Timer *get_timer();
sal::ModuleLoader *get_module();
sal::TemporaryPath *get_temporary_path();
}

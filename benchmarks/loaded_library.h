// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <bit>

namespace bench {

/// A library that is loaded while the program runs, and stays.
class LoadedLibrary {
public:
    /// Ends the program when it cannot be loaded.
    explicit LoadedLibrary(const char *path);

    /// Ends the program when the library does not have it.
    template <typename Function>
    Function function(const char *name) const
    {
        return std::bit_cast<Function>(address(name));
    }

private:
    void *address(const char *name) const;

    void *handle_ = nullptr;
};

} // namespace bench

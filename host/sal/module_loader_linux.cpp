// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

namespace sal {
namespace {

class EmptyModuleLoader final : public ModuleLoader {
public:
    void *load(const std::string &, std::uint32_t) override { return nullptr; }
    void release(void *) override {}
};

} // namespace

ModuleLoader &moduleLoaderService()
{
    static EmptyModuleLoader service;
    return service;
}

} // namespace sal

// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_sal.h"

#include <chrono>
#include <new>

namespace fake_sal {

namespace {

class RecordingCim final : public sal::Cim {
public:
    std::int32_t query(std::vector<sal::CimRow> &rows, const std::string &condition, const std::string &className,
                       std::uint32_t propertyCount, const char *const *propertyNames, const std::string &nameSpace) override
    {
        state().onCall("cim");
        state().queries.push_back({condition, className, {propertyNames, propertyNames + propertyCount}, nameSpace});
        if (state().queries.size() == state().failingQuery)
            throw std::bad_alloc();
        rows = state().rows;
        return state().queryResult;
    }
};

class PrefixingNumberHandler final : public sal::NumberHandler {
public:
    std::string toText(std::int64_t number) override
    {
        state().onCall("number handler");
        return state().numberPrefix + std::to_string(number);
    }
};

class SteadyTimer final : public sal::Timer {
public:
    std::uint64_t ticks() override
    {
        state().onCall("timer");
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
    }
};

class NoModules final : public sal::ModuleLoader {
public:
    void *load(const std::string & /*fileName*/, std::uint32_t /*flag*/) override
    {
        state().onCall("module loader");
        return nullptr;
    }
    void release(void * /*handle*/) override {}
};

class ChosenPath final : public sal::TemporaryPath {
public:
    std::string path() override
    {
        state().onCall("temporary path");
        return state().temporaryPath;
    }
};

} // namespace

State &state()
{
    static State current;
    return current;
}

} // namespace fake_sal

extern "C" {

sal::Cim *get_cim()
{
    static fake_sal::RecordingCim service;
    return fake_sal::state().hasCim ? &service : nullptr;
}

sal::NumberHandler *get_number_handler()
{
    static fake_sal::PrefixingNumberHandler service;
    return fake_sal::state().hasNumberHandler ? &service : nullptr;
}

sal::Timer *get_timer()
{
    static fake_sal::SteadyTimer service;
    return &service;
}

sal::ModuleLoader *get_module()
{
    static fake_sal::NoModules service;
    return &service;
}

sal::TemporaryPath *get_temporary_path()
{
    static fake_sal::ChosenPath service;
    return &service;
}
}

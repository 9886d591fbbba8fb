// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

/// Notices of devices that come and go, at moments that a test chooses: Wine sends none by itself. Stands before the system's
/// device enumerator on the thread that made it and passes every question on; only who asked for notices is kept here.
namespace hot_plug {

class HotPlug {
public:
    HotPlug();
    ~HotPlug();
    HotPlug(const HotPlug &) = delete;
    HotPlug &operator=(const HotPlug &) = delete;

    /// Whether somebody wants notices.
    bool isHeard() const;
    /// COM references to the enumerators handed out.
    long referenceCount() const;

    /// Tells that the active endpoint of this name was unplugged, or that it is active, as the system does: from a thread of
    /// the multithreaded apartment. False where there is no such endpoint or nobody listens.
    bool unplug(const std::wstring &name);
    bool plug(const std::wstring &name);

    struct Core;

private:
    std::unique_ptr<Core> core_;
};

} // namespace hot_plug

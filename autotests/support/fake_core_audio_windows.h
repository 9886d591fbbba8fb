// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct IMMNotificationClient;

/// Core Audio with endpoints that a test chooses, for what Wine lacks (levels that can be set) and no machine does on demand
/// (calls that fail). Its class object stands for the system's device enumerator on the thread that made it, as long as that
/// thread stays in its single-threaded apartment; other threads see the real one.
namespace fake_core_audio {

enum class Call {
    createEnumerator,
    enumAudioEndpoints,
    getCount,
    item,
    getId,
    activate,
    getLevel,
    setLevel,
    getMute,
    setMute,
    openProperties,
    getProperty,
};

const char *nameOf(Call call);

struct Endpoint {
    std::optional<std::wstring> id; ///< nullopt: the call succeeds and hands over no text
    float level = 0.0F;
    bool muted = false;
    std::optional<std::wstring> name = std::nullopt; ///< nullopt: the property is there and empty

    bool operator==(const Endpoint &) const = default;
};

/// What the fake was asked, in order: the call and, where it is one endpoint's, its index in the enumeration.
struct Event {
    Call call;
    std::size_t endpoint = 0;

    bool operator==(const Event &) const = default;
};

/// One per thread and process at a time. Takes part in the apartment by itself, so that a pass cannot end it.
class FakeCoreAudio {
public:
    FakeCoreAudio();
    ~FakeCoreAudio();
    FakeCoreAudio(const FakeCoreAudio &) = delete;
    FakeCoreAudio &operator=(const FakeCoreAudio &) = delete;

    std::vector<std::shared_ptr<Endpoint>> endpoints; ///< in the order of the enumeration; may change between passes
    std::vector<Event> events;

    /// Makes the call with this number (from 0, of all calls made from now on) fail with `code`.
    void failAt(std::size_t number, HRESULT code = E_ACCESSDENIED);

    void add(std::optional<std::wstring> id, float level, bool muted);
    std::vector<Endpoint> states() const;
    std::vector<Call> calls() const;

    /// COM references to the fake's objects, without the class object.
    long referenceCount() const;
    /// Ids handed out and not given back to COM's allocator.
    std::size_t outstandingIdCount() const;
    /// The apartment entries of this thread that the product made and has not left.
    int openApartmentCount() const;
    /// The most references that were alive while the product left an apartment.
    long referencesAtLeaving() const;
    /// Who hears of devices that come and go; null for nobody. The real thing calls it from threads of its own.
    IMMNotificationClient *client() const;
    /// Arguments that the contract of Core Audio or ours does not allow, in words.
    const std::vector<std::string> &complaints() const;

    struct Core;

private:
    std::unique_ptr<Core> core_;
};

} // namespace fake_core_audio

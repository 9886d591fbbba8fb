// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <windows.h>

#include <objbase.h>

#include <string_view>

namespace ostra::audio {

/// The calling thread's stay in a COM apartment. A thread that has entered a single-threaded one before stays in it and this
/// counts as one more entry; a thread of the multithreaded apartment stays there, where COM works as well, and nothing was
/// entered that could be left again. Create and destroy on one thread, after every COM reference made meanwhile is released.
class ComApartment {
public:
    ComApartment() : result_(CoInitialize(nullptr)) {}
    ~ComApartment()
    {
        if (SUCCEEDED(result_))
            CoUninitialize();
    }
    ComApartment(const ComApartment &) = delete;
    ComApartment &operator=(const ComApartment &) = delete;

    bool isUsable() const { return SUCCEEDED(result_) || result_ == RPC_E_CHANGED_MODE; }

private:
    HRESULT result_;
};

/// One counted reference to a COM object.
template <typename Interface>
class ComPointer {
public:
    ComPointer() = default;
    ~ComPointer()
    {
        if (pointer_ != nullptr)
            pointer_->Release();
    }
    ComPointer(const ComPointer &) = delete;
    ComPointer &operator=(const ComPointer &) = delete;

    Interface *get() const { return pointer_; }
    Interface *operator->() const { return pointer_; }

    /// Where a function stores the one reference that it hands over. Once per object.
    Interface **receive() { return &pointer_; }
    /// The same for functions that hand over any kind of interface.
    void **receiveAny() { return reinterpret_cast<void **>(&pointer_); }

private:
    Interface *pointer_ = nullptr;
};

/// A text that COM allocated for its caller.
class CoTaskText {
public:
    CoTaskText() = default;
    ~CoTaskText() { CoTaskMemFree(text_); }
    CoTaskText(const CoTaskText &) = delete;
    CoTaskText &operator=(const CoTaskText &) = delete;

    bool isPresent() const { return text_ != nullptr; }
    /// Empty when there is none.
    std::wstring_view view() const { return text_ == nullptr ? std::wstring_view() : std::wstring_view(text_); }

    /// Where a function stores the text that it hands over. Once per object.
    LPWSTR *receive() { return &text_; }

private:
    LPWSTR text_ = nullptr;
};

} // namespace ostra::audio

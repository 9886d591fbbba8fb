// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

#include <string>

namespace sal {

/// The calling thread's membership in a COM apartment for the lifetime of the object. A thread that already lives in an
/// apartment of another kind keeps it (RPC_E_CHANGED_MODE): COM works there, and the membership is not ours to end. Create and
/// destroy on the same thread, and release every COM pointer before.
class ComApartment {
public:
    ComApartment() : result_(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) {}
    ~ComApartment()
    {
        if (SUCCEEDED(result_))
            CoUninitialize();
    }
    ComApartment(const ComApartment &) = delete;
    ComApartment &operator=(const ComApartment &) = delete;

    /// S_OK when COM may be used on this thread, else the failure.
    HRESULT state() const { return SUCCEEDED(result_) || result_ == RPC_E_CHANGED_MODE ? S_OK : result_; }

private:
    HRESULT result_;
};

/// One counted reference to a COM object.
template <typename Interface>
class ComPointer {
public:
    ComPointer() = default;
    ~ComPointer() { reset(); }
    ComPointer(const ComPointer &) = delete;
    ComPointer &operator=(const ComPointer &) = delete;

    Interface *get() const { return pointer_; }
    Interface *operator->() const { return pointer_; }
    explicit operator bool() const { return pointer_ != nullptr; }

    /// Where a function stores the reference that it hands over; gives up the one held before.
    Interface **receive()
    {
        reset();
        return &pointer_;
    }

    void reset()
    {
        if (pointer_ != nullptr)
            pointer_->Release();
        pointer_ = nullptr;
    }

private:
    Interface *pointer_ = nullptr;
};

/// A BSTR made from wide text; null when there was no memory for it, which COM reads as an empty text.
class BasicString {
public:
    explicit BasicString(const std::wstring &text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    ~BasicString() { SysFreeString(text_); }
    BasicString(const BasicString &) = delete;
    BasicString &operator=(const BasicString &) = delete;

    BSTR get() const { return text_; }

private:
    BSTR text_;
};

/// A VARIANT and whatever it holds.
class Variant {
public:
    Variant() { VariantInit(&value_); }
    ~Variant() { VariantClear(&value_); }
    Variant(const Variant &) = delete;
    Variant &operator=(const Variant &) = delete;

    /// Never null; for functions that only read it.
    VARIANT *get() { return &value_; }

    VARIANT *receive()
    {
        VariantClear(&value_);
        return &value_;
    }

private:
    VARIANT value_;
};

} // namespace sal

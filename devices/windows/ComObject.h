#pragma once

#include <atomic>
#include <utility>
#include <windows.h>
#include <wrl/client.h>

namespace fieldcal {

/// Base of objects that the system calls back. It counts references, starts with one, and deletes the object with the
/// last.
template <typename Interface>
class ComObject : public Interface {
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** out) override {
        if (out == nullptr) return E_POINTER;
        *out = find(wanted);
        if (*out == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++owners_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --owners_;
        if (left == 0) delete this;
        return left;
    }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;

    /// Returns null when the object does not have that interface.
    virtual void* find(REFIID wanted) {
        const bool own = wanted == __uuidof(Interface) || wanted == __uuidof(IUnknown);
        return own ? static_cast<Interface*>(this) : nullptr;
    }

private:
    std::atomic<ULONG> owners_{1};
};

/// Creates an object with one reference. (`ComPtr::Attach` of this compiler's headers adds another one.)
template <typename Object, typename... Arguments>
Microsoft::WRL::ComPtr<Object> makeCom(Arguments&&... arguments) {
    Microsoft::WRL::ComPtr<Object> made;
    *made.GetAddressOf() = new Object(std::forward<Arguments>(arguments)...);
    return made;
}

}  // namespace fieldcal

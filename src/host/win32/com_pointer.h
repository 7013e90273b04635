// COM for one thread.
#pragma once

#include "host/win32/windows_api.h"

namespace orvik::host::win32 {

// Keeps COM open for the thread that made it.
class ComApartment {
 public:
  ComApartment() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComApartment() {
    // Not after a refusal: somebody else on the thread opened it in another mode.
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  HRESULT result_;
};

// A counted reference to a COM object.
template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ~ComPointer() {
    if (object_ != nullptr) object_->Release();
  }
  ComPointer(const ComPointer&) = delete;
  ComPointer& operator=(const ComPointer&) = delete;

  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // Where a call of the system puts a new reference; only while empty.
  void** Slot() { return reinterpret_cast<void**>(&object_); }

 private:
  Interface* object_ = nullptr;
};

}  // namespace orvik::host::win32

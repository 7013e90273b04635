// Handles of the system that close by themselves.
#pragma once

#include <memory>

#include "host/win32/windows_api.h"

namespace orvik::host::win32 {

// The two services that open a handle say "none" in two ways; both end up as an empty pointer.
struct CloseAnyHandle {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, CloseAnyHandle>;

inline UniqueHandle Owned(HANDLE handle) {
  return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

struct CloseSearch {
  void operator()(HANDLE handle) const { FindClose(handle); }
};
using UniqueSearch = std::unique_ptr<void, CloseSearch>;

inline UniqueSearch OwnedSearch(HANDLE handle) {
  return UniqueSearch(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace orvik::host::win32

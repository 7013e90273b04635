// The name that a window carries for programs that test the windows from outside.
#pragma once

#include <string>

#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// The property "Orvik.Name" of a window is a global atom with the name of its form or control, in
// the code's own spelling ("frCRC(0)"). Other properties of a window hold other names.
class NameTag {
 public:
  explicit NameTag(const wchar_t* property = L"Orvik.Name") : property_(property) {}
  ~NameTag() { Remove(); }
  NameTag(const NameTag&) = delete;
  NameTag& operator=(const NameTag&) = delete;

  void Put(HWND window, const std::string& name);
  // Atoms outlive their process, so each one is given back, also when the process ends at once.
  void Remove();

 private:
  const wchar_t* property_;
  HWND window_ = nullptr;
  ATOM atom_ = 0;
};

}  // namespace orvik::forms::win32

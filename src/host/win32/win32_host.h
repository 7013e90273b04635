// Windows as the program's operating system.
#pragma once

#include <memory>

#include "host/host.h"

namespace orvik::host::win32 {

// All services of Windows, through its ANSI calls. One object a process, made, used and ended on
// the thread of the user interface: shortcuts need that thread's COM.
class Win32Host {
 public:
  Win32Host();
  ~Win32Host();
  Win32Host(const Win32Host&) = delete;
  Win32Host& operator=(const Win32Host&) = delete;

  // The services; they live as long as this object.
  Host services();

 private:
  struct Services;
  std::unique_ptr<Services> services_;
};

}  // namespace orvik::host::win32

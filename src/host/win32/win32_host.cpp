#include "host/win32/win32_host.h"

#include "host/win32/win32_file_system.h"
#include "host/win32/win32_processes.h"
#include "host/win32/win32_registry.h"
#include "host/win32/win32_shell.h"
#include "host/win32/win32_system.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {

struct Win32Host::Services {
  Win32FileSystem files;
  Win32Registry registry;
  Win32Shell shell;
  Win32Processes processes;
  Win32System system;
};

Win32Host::Win32Host() : services_(std::make_unique<Services>()) {
  // A drive without a medium is an answer, not an occasion for the system's own message box. For
  // this thread only, so that started programs don't inherit it.
  SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
}

Win32Host::~Win32Host() = default;

Host Win32Host::services() {
  return {&services_->files, &services_->registry, &services_->shell, &services_->processes,
          &services_->system};
}

}  // namespace orvik::host::win32

// The processes of Windows.
#pragma once

#include "host/processes.h"

namespace orvik::host::win32 {

class Win32Processes : public Processes {
 public:
  std::vector<Process> Snapshot() override;
  bool Terminate(const Process& process) override;
};

}  // namespace orvik::host::win32

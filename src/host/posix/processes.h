// The processes of Linux.
#pragma once

#include "host/processes.h"

namespace orvik::host::posix {

class PosixProcesses : public Processes {
 public:
  // Every program that runs, by the name of its file; threads of the kernel and processes that
  // have ended aren't programs.
  std::vector<Process> Snapshot() override;
  // Ends it at once, as Windows does, unless the number belongs to another program by now.
  bool Terminate(const Process& process) override;
};

}  // namespace orvik::host::posix

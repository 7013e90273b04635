// The processes that run on the machine.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvik::host {

struct Process {
  std::uint32_t id = 0;
  Text file_name;  // bare
};

class Processes {
 public:
  virtual ~Processes() = default;
  virtual std::vector<Process> Snapshot() = 0;
  // Ends a process with exit code 1. False when it can't be opened or resists.
  virtual bool Terminate(const Process& process) = 0;
};

}  // namespace orvik::host

#include "platform/kill_process.h"

#include "base/failure.h"
#include "host/host.h"

namespace orvik::mdlKillProcess {

Flag KillProcess(const Text& name) {
  Flag found = kFalse;
  Int16 hits;
  const Text end = ToLower(TextView(name));
  // A hit that can't be counted ends the whole search.
  Attempt([&] {
    for (const host::Process& process : host::TheProcesses().Snapshot()) {
      if (!EndsWith(ToLower(TextView(process.file_name)), end)) continue;
      found = kTrue;
      ++hits;
      host::TheProcesses().Terminate(process);
    }
  });
  return found;
}

}  // namespace orvik::mdlKillProcess

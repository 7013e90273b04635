#include "host/host.h"

namespace orvik::host {

namespace {
Host current;
}

void Install(const Host& host) { current = host; }

FileSystem& Files() { return *current.files; }
Registry& Keys() { return *current.registry; }
Shell& TheShell() { return *current.shell; }
Processes& TheProcesses() { return *current.processes; }
System& TheSystem() { return *current.system; }

}  // namespace orvik::host

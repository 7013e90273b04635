// The one place where the program finds its operating system.
#pragma once

#include "host/file_system.h"
#include "host/processes.h"
#include "host/registry.h"
#include "host/shell.h"
#include "host/system.h"

namespace orvik::host {

// The services of one system. They outlive their use.
struct Host {
  FileSystem* files = nullptr;
  Registry* registry = nullptr;
  Shell* shell = nullptr;
  Processes* processes = nullptr;
  System* system = nullptr;
};

// Puts a host in place, once at the start of a program and once for each test.
void Install(const Host& host);

FileSystem& Files();
Registry& Keys();
Shell& TheShell();
Processes& TheProcesses();
System& TheSystem();

}  // namespace orvik::host

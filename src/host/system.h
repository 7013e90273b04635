// The machine: environment, version, memory, clock.
#pragma once

#include <cstdint>
#include <optional>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik::host {

struct MemoryStatus {
  std::uint32_t load_percent = 0;
  std::uint64_t physical_bytes = 0;
  std::uint64_t virtual_bytes = 0;
};

struct DateTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

class System {
 public:
  virtual ~System() = default;

  // "NAME=value" at an index from 1; nothing past the end.
  virtual std::optional<Text> EnvironmentEntry(int index) = 0;
  // 2 for a system of the NT line.
  virtual int PlatformId() = 0;
  // Without a closing backslash.
  virtual Text SystemFolder() = 0;
  // The full path of the running program.
  virtual Text OwnPath() = 0;
  virtual MemoryStatus Memory() = 0;
  // Local time.
  virtual DateTime Now() = 0;
  // Milliseconds since some start, wrapping at 32 bits.
  virtual std::uint32_t Ticks() = 0;
  // Through which names and file contents become texts.
  virtual const CodePage& AnsiPage() = 0;
  // The code page of the console and of DOS programs.
  virtual const CodePage& OemPage() = 0;
};

}  // namespace orvik::host

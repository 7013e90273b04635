// The machine as Windows shows it.
#pragma once

#include "host/system.h"

namespace orvik::host::win32 {

class Win32System : public System {
 public:
  Win32System();

  std::optional<Text> EnvironmentEntry(int index) override;
  int PlatformId() override;
  Text SystemFolder() override;
  Text OwnPath() override;
  MemoryStatus Memory() override;
  DateTime Now() override;
  std::uint32_t Ticks() override;
  const CodePage& AnsiPage() override { return ansi_page_; }
  const CodePage& OemPage() override { return oem_page_; }

 private:
  CodePage ansi_page_;
  CodePage oem_page_;
};

}  // namespace orvik::host::win32

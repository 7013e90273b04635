// The program's operating system on Linux, put together.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/text.h"
#include "host/host.h"

namespace orvik::host::posix {

struct Options {
  std::map<char16_t, std::string> drives;  // folders by capital letter
  std::map<char16_t, int> drive_types;     // 3 for a drive, 1 for no drive where nothing is given
  std::string registry_file;
  int code_page = 1251;
  int oem_page = 866;
  std::vector<Text> environment;  // "NAME=value"
};

// "Z:" is "/", "C:" a folder of the user's data directory, the registry a file in the user's
// configuration directory, and the environment that of a fresh Windows on "C:".
Options DefaultOptions();

// Makes the default folder of "C:" with its Windows folders when that is what the options say.
// Services are for one thread, and live as long as the host.
class PosixHost {
 public:
  explicit PosixHost(Options options);
  ~PosixHost();
  PosixHost(const PosixHost&) = delete;
  PosixHost& operator=(const PosixHost&) = delete;

  Host services();

  // A path of Linux in drive form ("/home/u" is "Z:\home\u"), by the deepest drive that holds it;
  // empty when none does. The path must be absolute.
  Text DriveForm(const std::string& path) const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace orvik::host::posix

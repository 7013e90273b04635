// Scripts of the headless program, whatever stands in them.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "forms/headless/script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik::forms::headless;
  std::string reason;
  const auto script =
      ParseScript(std::string_view(reinterpret_cast<const char*>(data), size), reason);
  // Either a script or a reason that names a line, never both and never neither.
  if (script.has_value() != reason.empty()) std::abort();
  if (!script && !reason.starts_with("script line ")) std::abort();
  if (script) {
    int last = 0;
    for (const ScriptLine& line : *script) {
      if (line.number <= last || line.during < 0) std::abort();
      last = line.number;
    }
  }
  return 0;
}

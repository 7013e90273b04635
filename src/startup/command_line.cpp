#include "startup/command_line.h"

namespace orvik {

TextView BehindProgramName(TextView command_line) {
  std::size_t at = 0;
  bool quoted = false;
  for (; at < command_line.size() && (quoted || command_line[at] > u' '); ++at) {
    if (command_line[at] == u'"') quoted = !quoted;
  }
  while (at < command_line.size() && command_line[at] <= u' ') ++at;
  return command_line.substr(at);
}

}  // namespace orvik

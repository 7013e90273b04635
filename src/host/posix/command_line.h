// Command lines of Windows, taken apart.
#pragma once

#include <vector>

#include "base/text.h"

namespace orvik::host::posix {

// The words of a command line: separated by blanks and tabs, except within double quotes, which are
// dropped. A backslash is a plain character, but for one in front of a quote within a word, which
// makes the quote a character.
std::vector<Text> WordsOf(TextView command_line);

// The ways to read the program's name at the front of a command line, likeliest first, each with
// the rest of the line. A name in quotes has one; without quotes it may hold blanks, so that
// "C:\Program Files\a b" is tried as "C:\Program" first.
struct ProgramReading {
  Text program;
  Text rest;
};
std::vector<ProgramReading> ProgramReadings(TextView command_line);

}  // namespace orvik::host::posix

// Texts on their way to the ANSI services of Windows and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

namespace orvik::host::win32 {

// The bytes of a text in the ANSI code page. A character that the page lacks becomes "?", never a
// similar one: a name that resembles another must not reach the other's file.
std::string ToAnsi(TextView text);
Text FromAnsi(std::string_view bytes);

// A wide text as it looks after a trip through the code page. Names that the system hands out are
// asked for wide and brought down here, because its own conversion picks similar characters.
Text ThroughAnsi(std::wstring_view wide);

// A text with nothing lost, for the services that know wide texts only.
std::wstring ToWide(TextView text);
Text FromWide(std::wstring_view wide);

// True for what no operation takes, not even a search: a path longer than kLongestPath, with a zero
// inside, or with a colon that isn't a drive's. The system would cut such a path, or open a hidden
// stream of a file.
bool IsBeyondUse(const Text& path);

// The path as the ANSI services take it, or nothing for one that no operation takes: one that is
// beyond use, empty, or with "?" or "*" in its ANSI form.
std::optional<std::string> AnsiPath(const Text& path);

}  // namespace orvik::host::win32

// Values as they are written in options and scripts.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/text.h"
#include "host/registry.h"
#include "host/system.h"

namespace orvik::forms::headless {

// Decimal digits with nothing around them; nothing outside 0 to `largest`.
std::optional<std::int64_t> ReadNumber(std::string_view digits,
                                       std::int64_t largest = 0x7FFFFFFF'FFFFFFFF);

// "YYYY-MM-DD HH:MM:SS", a date that exists.
std::optional<host::DateTime> ReadDateTime(std::string_view text);

// A path behind "HKEY_LOCAL_MACHINE\" or "HKEY_CLASSES_ROOT\".
struct KeyPath {
  host::Registry::Handle root = 0;
  Text path;
};
std::optional<KeyPath> ReadKeyPath(TextView key);

// The date and time that many milliseconds later.
host::DateTime Later(const host::DateTime& start, std::int64_t milliseconds);

}  // namespace orvik::forms::headless

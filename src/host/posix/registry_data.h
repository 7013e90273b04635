// The data of registry values as it stands in the file.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/text.h"

namespace orvik::host::posix {

// The data for a text of a registry type, given as a text and in the bytes of the ANSI code page.
// Texts (types 1 and 2) keep their characters; other types are the bytes.
Text RegistryData(std::uint32_t type, TextView text, std::string_view ansi);

// The text of such data: what stands in quotes, or bytes of type 1 or 2. Empty for all others.
Text TextOfRegistryData(TextView data);

}  // namespace orvik::host::posix

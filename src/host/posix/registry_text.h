// The text form that the registry editor of Windows exports.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"
#include "host/posix/registry_document.h"

namespace orvik::host::posix {

// How a registry file was encoded. The editor writes UTF-16 and so do new files; one that somebody
// has put into UTF-8 stays so.
enum class RegistryEncoding { kUtf16, kUtf8, kUtf8Marked };

struct RegistryFileText {
  Text text;
  RegistryEncoding encoding = RegistryEncoding::kUtf16;
  bool faithful = true;  // writing it back gives the same bytes
};
RegistryFileText DecodeRegistryFile(std::string_view bytes);
std::string EncodeRegistryFile(TextView text, RegistryEncoding encoding);

// Reads any text without complaint: what isn't a key or a value is kept line by line, and written
// back where it stood. Of values with the same name the last one counts.
RegistryDocument ParseRegistry(TextView text);
Text WriteRegistry(const RegistryDocument& document);

// A text in quotes, with backslashes in front of what needs them; and back: takes such a text off
// the front of a line, nothing when it isn't closed.
Text Quoted(TextView text);
std::optional<Text> TakeQuoted(TextView& line);

}  // namespace orvik::host::posix

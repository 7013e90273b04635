// LinkTargetIDList: the way to the target, an item for each step from the desktop down.
#pragma once

#include <optional>
#include <string>

#include "base/code_page.h"
#include "base/text.h"
#include "host/shell_link/byte_view.h"

namespace orvik::host::shell_link {

// The path that the items of a list (without the size in front) lead along: "C:\" or "C:\a\b".
// Empty when one isn't a drive, folder or file, as on the way to a printer.
Text ReadItemPath(const ByteView& list, const CodePage& page);

// The items to a path of a drive, the closing empty one included. Nothing when the path isn't of a
// drive or is too long.
std::optional<std::string> WriteItemPath(TextView path, bool folder, const CodePage& page);

}  // namespace orvik::host::shell_link

// LinkInfo: the target's place as a path, on a drive and on a share.
#pragma once

#include <string>

#include "base/code_page.h"
#include "host/shell_link/byte_view.h"
#include "host/shell_link/shell_link.h"

namespace orvik::host::shell_link {

// Takes the paths and the drive's type out of the structure, whose size stands in front. An offset
// that leads out of it tells nothing.
void ReadLinkInfo(const ByteView& info, const CodePage& page, ShellLink& link);

// The structure for local_path and network_path, one of which isn't empty.
std::string WriteLinkInfo(const ShellLink& link, const CodePage& page);

}  // namespace orvik::host::shell_link

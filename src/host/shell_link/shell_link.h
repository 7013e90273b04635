// The file of a shortcut, ".lnk": from bytes to a value and back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik::host {

// What a file tells, as the published description of the format, [MS-SHLLINK], names its parts. The
// target can stand in four places; a text is empty where a file doesn't have it.
struct ShellLink {
  Text item_path;       // LinkTargetIDList: "C:\a\b", when every item of it is of a drive
  Text local_path;      // LinkInfo: LocalBasePath with CommonPathSuffix; may be a share's path, too
  Text network_path;    // LinkInfo: NetName of CommonNetworkRelativeLink with CommonPathSuffix
  Text variable_path;   // EnvironmentVariableDataBlock: "%windir%\a", variables not yet expanded
  bool folder = false;  // the target is a folder
  std::uint32_t drive_type = 0;  // VolumeID: of the drive of local_path

  Text description;
  Text relative_path;
  Text working_folder;
  Text arguments;
  Text icon_path;
  std::int32_t icon_index = 0;
  std::int32_t window_style = 1;

  bool operator==(const ShellLink&) const = default;
};

// The longest text that the format's counts can tell, and the longest path of variables with it.
constexpr std::size_t kLongestLinkText = 65535;
constexpr std::size_t kLongestVariablePath = 259;

// Any bytes may come. Nothing when they are no shortcut, or when one of the parts that the header
// promises isn't whole: then the shell opens no such file either. The blocks behind those parts
// may be missing, cut or unknown. Texts that aren't UTF-16 are of the code page. What is allocated
// is of the order of what comes.
std::optional<ShellLink> ReadShellLink(std::string_view bytes, const CodePage& page);

// The bytes of a shortcut, which read as the same value again where the texts hold no zero and each
// path stands in its own place. Nothing when a text is too long for the format, or item_path isn't
// of a drive.
std::optional<std::string> WriteShellLink(const ShellLink& link, const CodePage& page);

}  // namespace orvik::host

#include "host/shell_link/byte_writer.h"
#include "host/shell_link/format.h"
#include "host/shell_link/item_list.h"
#include "host/shell_link/link_info.h"
#include "host/shell_link/shell_link.h"

namespace orvik::host {

using namespace shell_link;

namespace {

std::string Header(const ShellLink& link, std::uint32_t flags) {
  std::string bytes;
  PutU32(bytes, kHeaderSize);
  bytes += kClass;
  PutU32(bytes, flags);
  PutU32(bytes, link.folder ? kFolderAttribute : 0);
  bytes.resize(header::kIconIndex);  // times and length of the target: unknown
  PutU32(bytes, static_cast<std::uint32_t>(link.icon_index));
  PutU32(bytes, static_cast<std::uint32_t>(link.window_style));
  bytes.resize(kHeaderSize);  // no hot key
  return bytes;
}

std::string VariableBlock(TextView path, const CodePage& page) {
  std::string bytes;
  PutU32(bytes, variable_block::kSize);
  PutU32(bytes, variable_block::kSignature);
  bytes += page.Encode(path);
  bytes.resize(kBlockHeaderSize + variable_block::kAnsiRoom);
  PutWide(bytes, path);
  bytes.resize(variable_block::kSize);
  return bytes;
}

// The flags and bytes of the parts behind the header.
struct Parts {
  std::uint32_t flags = kIsUnicode;
  std::string bytes;

  void Add(std::uint32_t flag, const std::string& part) {
    flags |= flag;
    bytes += part;
  }
  void AddText(std::uint32_t flag, TextView text) {
    if (text.empty()) return;
    flags |= flag;
    PutU16(bytes, text.size());
    PutWide(bytes, text);
  }
};

bool Fits(const ShellLink& link) {
  for (const Text* text :
       {&link.local_path, &link.network_path, &link.description, &link.relative_path,
        &link.working_folder, &link.arguments, &link.icon_path}) {
    if (text->size() > kLongestLinkText) return false;
  }
  return link.variable_path.size() <= kLongestVariablePath;
}

}  // namespace

std::optional<std::string> WriteShellLink(const ShellLink& link, const CodePage& page) {
  if (!Fits(link)) return std::nullopt;
  Parts parts;
  if (!link.item_path.empty()) {
    const auto items = WriteItemPath(link.item_path, link.folder, page);
    if (!items) return std::nullopt;
    PutU16(parts.bytes, items->size());
    parts.Add(kHasItemList, *items);
  }
  if (!link.local_path.empty() || !link.network_path.empty()) {
    parts.Add(kHasLinkInfo, WriteLinkInfo(link, page));
  }
  parts.AddText(kHasName, link.description);
  parts.AddText(kHasRelativePath, link.relative_path);
  parts.AddText(kHasWorkingFolder, link.working_folder);
  parts.AddText(kHasArguments, link.arguments);
  parts.AddText(kHasIconLocation, link.icon_path);
  if (!link.variable_path.empty()) {
    parts.Add(kHasVariablePath, VariableBlock(link.variable_path, page));
  }
  PutU32(parts.bytes, 0);
  return Header(link, parts.flags) + parts.bytes;
}

}  // namespace orvik::host

#include "host/shell_link/byte_view.h"
#include "host/shell_link/format.h"
#include "host/shell_link/item_list.h"
#include "host/shell_link/link_info.h"
#include "host/shell_link/shell_link.h"

namespace orvik::host {

using namespace shell_link;

namespace {

// The file, and the place up to which it has been read.
struct Cursor {
  ByteView file;
  std::size_t at = 0;

  std::optional<ByteView> Take(std::size_t length) {
    const auto part = file.Part(at, length);
    if (part) at += length;
    return part;
  }
};

bool IsHeader(const ByteView& file) {
  const auto identifier = file.Part(header::kClass, kClass.size());
  return file.size() >= kHeaderSize && file.U32(0) == kHeaderSize && identifier &&
         identifier->bytes() == kClass;
}

// LinkTargetIDList; false when it isn't whole.
bool TakeItemList(Cursor& cursor, const CodePage& page, ShellLink& link) {
  const auto size = cursor.file.U16(cursor.at);
  const auto part = size ? cursor.Take(std::size_t{2} + *size) : std::nullopt;
  if (part) link.item_path = ReadItemPath(part->From(2), page);
  return part.has_value();
}

// LinkInfo, its size included; false when it isn't whole.
bool TakeLinkInfo(Cursor& cursor, const CodePage& page, bool used, ShellLink& link) {
  const auto size = cursor.file.U32(cursor.at);
  if (!size || *size < link_info::kHeaderSize) return false;
  const auto part = cursor.Take(*size);
  if (part && used) ReadLinkInfo(*part, page, link);
  return part.has_value();
}

// One text of StringData, behind its count of characters; false when it isn't whole.
bool TakeText(Cursor& cursor, const CodePage* page, Text& text) {
  const auto count = cursor.file.U16(cursor.at);
  if (!count) return false;
  cursor.at += 2;
  const auto part = cursor.Take(page != nullptr ? *count : std::size_t{2} * *count);
  if (part) text = page != nullptr ? part->AnsiText(*page) : part->WideText();
  return part.has_value();
}

bool TakeTexts(Cursor& cursor, std::uint32_t flags, const CodePage& page, ShellLink& link) {
  const CodePage* const narrow = (flags & kIsUnicode) != 0 ? nullptr : &page;
  const auto take = [&](std::uint32_t flag, Text& text) {
    return (flags & flag) == 0 || TakeText(cursor, narrow, text);
  };
  return take(kHasName, link.description) && take(kHasRelativePath, link.relative_path) &&
         take(kHasWorkingFolder, link.working_folder) && take(kHasArguments, link.arguments) &&
         take(kHasIconLocation, link.icon_path);
}

Text VariablePath(const ByteView& block, const CodePage& page) {
  const std::size_t wide_place = kBlockHeaderSize + variable_block::kAnsiRoom;
  const auto ansi = block.Part(kBlockHeaderSize, variable_block::kAnsiRoom);
  const auto wide = block.Part(wide_place, variable_block::kWideRoom);
  Text path = wide ? wide->WideText() : Text();
  if (path.empty() && ansi) path = ansi->AnsiText(page);
  return path.substr(0, kLongestVariablePath);
}

// ExtraData. The first block that isn't whole ends it, as the closing one does.
void TakeBlocks(Cursor& cursor, std::uint32_t flags, const CodePage& page, ShellLink& link) {
  for (;;) {
    const std::uint32_t size = cursor.file.U32(cursor.at).value_or(0);
    if (size < kSmallestBlock) return;
    const auto block = cursor.Take(size);
    if (!block) return;
    const bool variable = block->U32(4) == variable_block::kSignature;
    if (variable && (flags & kHasVariablePath) != 0)
      link.variable_path = VariablePath(*block, page);
  }
}

}  // namespace

std::optional<ShellLink> ReadShellLink(std::string_view bytes, const CodePage& page) {
  Cursor cursor{ByteView(bytes), kHeaderSize};
  if (!IsHeader(cursor.file)) return std::nullopt;
  const std::uint32_t flags = *cursor.file.U32(header::kFlags);
  ShellLink link;
  link.folder = (*cursor.file.U32(header::kAttributes) & kFolderAttribute) != 0;
  link.icon_index = static_cast<std::int32_t>(*cursor.file.U32(header::kIconIndex));
  link.window_style = static_cast<std::int32_t>(*cursor.file.U32(header::kWindowStyle));
  if ((flags & kHasItemList) != 0 && !TakeItemList(cursor, page, link)) return std::nullopt;
  const bool used = (flags & kForceNoLinkInfo) == 0;
  if ((flags & kHasLinkInfo) != 0 && !TakeLinkInfo(cursor, page, used, link)) return std::nullopt;
  if (!TakeTexts(cursor, flags, page, link)) return std::nullopt;
  TakeBlocks(cursor, flags, page, link);
  return link;
}

}  // namespace orvik::host

#include "host/shell_link/item_list.h"

#include "host/shell_link/byte_writer.h"
#include "host/shell_link/format.h"

namespace orvik::host::shell_link {
namespace {

constexpr std::size_t kLargestItem = 0xFFFF;

bool IsLetter(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); }

bool IsDrivePath(TextView path) {
  return path.size() >= 3 && IsLetter(path[0]) && path[1] == u':' && path[2] == u'\\';
}

// The name in UTF-16 that an extension of the item holds; empty when none does.
Text ExtendedName(const ByteView& item) {
  const auto first = item.size() < 2 ? std::nullopt : item.U16(item.size() - 2);
  std::size_t at = first.value_or(0);
  while (at > item::kNamePlace) {
    const auto size = item.U16(at);
    const auto block = size ? item.Part(at, *size) : std::nullopt;
    if (!block || block->size() < extension::kNameOffset) break;
    const std::uint32_t signature = *block->U32(4);
    // Wine leaves the signature out.
    if (signature == 0) return block->From(extension::kNameOffset).WideText();
    if (signature == extension::kSignature) {
      const std::uint16_t place = *block->U16(extension::kNameOffsetPlace);
      return place < extension::kNameOffset ? Text() : block->From(place).WideText();
    }
    at += block->size();
  }
  return {};
}

Text NameOfFile(const ByteView& item, const CodePage& page) {
  Text name = ExtendedName(item);
  if (!name.empty()) return name;
  const ByteView plain = item.From(item::kNamePlace);
  return (*item.U8(2) & item::kWideName) != 0 ? plain.WideText() : plain.AnsiText(page);
}

bool IsMyComputer(const ByteView& item) {
  const auto identifier = item.Part(4, item::kMyComputer.size());
  return item.U8(2) == item::kRoot && identifier && identifier->bytes() == item::kMyComputer;
}

// Walks one step down. False for an item that leads elsewhere.
bool Append(const ByteView& item, const CodePage& page, Text& path) {
  const std::uint8_t kind = item.U8(2).value_or(0);
  if ((kind & item::kClassMask) == item::kDriveClass && kind != item::kVirtual) {
    const Text drive = item.From(3).AnsiText(page);
    if (!path.empty() || drive.size() > 3 || !IsDrivePath(drive)) return false;
    path = drive;
    return true;
  }
  if ((kind & item::kClassMask) != item::kFileClass || path.empty()) return false;
  const Text name = NameOfFile(item, page);
  if (name.empty() || name.find_first_of(u"\\/:") != Text::npos) return false;
  if (path.back() != u'\\') path += u'\\';
  path += name;
  return true;
}

// A drive's item has a fixed size, and room that nobody uses.
std::string DriveItem(TextView drive) {
  std::string bytes;
  PutU16(bytes, item::kDriveSize);
  bytes.push_back(static_cast<char>(item::kDrive));
  for (const char16_t c : drive) bytes.push_back(static_cast<char>(c));
  bytes.resize(item::kDriveSize);
  return bytes;
}

std::string Extension(TextView name, std::size_t place) {
  std::string bytes;
  PutU16(bytes, extension::kNameOffset + 2 * name.size() + 4);
  PutU16(bytes, extension::kVersion);
  PutU32(bytes, extension::kSignature);
  PutU32(bytes, 0);  // made
  PutU32(bytes, 0);  // read
  PutU16(bytes, extension::kNameOffset);
  PutU16(bytes, 0);  // no name in the user's language
  PutWide(bytes, name);
  PutU16(bytes, 0);
  PutU16(bytes, place);
  return bytes;
}

std::string FileItem(TextView name, bool folder, const CodePage& page) {
  std::string bytes;
  bytes.push_back(static_cast<char>(folder ? item::kFolder : item::kFile));
  bytes.push_back('\0');
  PutU32(bytes, 0);  // length
  PutU32(bytes, 0);  // changed
  PutU16(bytes, folder ? kFolderAttribute : 0);
  bytes += page.Encode(name);
  bytes.append(bytes.size() % 2 == 0 ? 2 : 1, '\0');
  bytes += Extension(name, bytes.size() + 2);
  std::string item;
  PutU16(item, bytes.size() + 2);
  return item + bytes;
}

}  // namespace

Text ReadItemPath(const ByteView& list, const CodePage& page) {
  Text path;
  for (std::size_t at = 0;;) {
    const std::size_t size = list.U16(at).value_or(0);
    if (size == 0) return path;
    const auto item = list.Part(at, size);
    if (!item || size < 3) return {};
    const bool root = at == 0 && IsMyComputer(*item);
    if (!root && !Append(*item, page, path)) return {};
    at += size;
  }
}

std::optional<std::string> WriteItemPath(TextView path, bool folder, const CodePage& page) {
  if (!IsDrivePath(path)) return std::nullopt;
  std::string bytes;
  PutU16(bytes, 4 + item::kMyComputer.size());
  bytes.push_back(static_cast<char>(item::kRoot));
  bytes.push_back('\x50');  // its place among the others
  bytes += item::kMyComputer;
  bytes += DriveItem(path.substr(0, 3));
  const std::vector<TextView> names = Split(path.substr(3), u"\\");
  for (const TextView& name : names) {
    if (name.empty()) continue;
    const std::string item = FileItem(name, folder || &name != &names.back(), page);
    if (bytes.size() + item.size() + 2 > kLargestItem) return std::nullopt;
    bytes += item;
  }
  PutU16(bytes, 0);
  return bytes;
}

}  // namespace orvik::host::shell_link

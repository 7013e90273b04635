#include "host/shell_link/link_info.h"

#include "host/shell_link/byte_writer.h"
#include "host/shell_link/format.h"

namespace orvik::host::shell_link {
namespace {

// The text whose offset stands at a place; empty when there is none.
Text AnsiAt(const ByteView& part, std::size_t place, const CodePage& page) {
  const std::uint32_t offset = part.U32(place).value_or(0);
  return offset == 0 ? Text() : part.From(offset).AnsiText(page);
}
Text WideAt(const ByteView& part, std::size_t place) {
  const std::uint32_t offset = part.U32(place).value_or(0);
  return offset == 0 ? Text() : part.From(offset).WideText();
}

Text Either(Text wide, Text ansi) { return wide.empty() ? std::move(ansi) : std::move(wide); }

Text Joined(Text base, TextView suffix) {
  if (base.empty() || suffix.empty()) return base;
  if (base.back() != u'\\' && suffix.front() != u'\\') base += u'\\';
  return base.append(suffix);
}

Text NetName(const ByteView& info, const CodePage& page) {
  const std::size_t place = info.U32(0x14).value_or(0);
  const std::size_t size = place == 0 ? 0 : info.U32(place).value_or(0);
  const auto part = info.Part(place, size);
  if (!part || size < network::kHeaderSize) return {};
  const bool wide = part->U32(8).value_or(0) > network::kHeaderSize;
  return Either(wide ? WideAt(*part, 0x14) : Text(), AnsiAt(*part, 8, page));
}

std::uint32_t DriveType(const ByteView& info) {
  const std::size_t place = info.U32(0x0C).value_or(0);
  return place == 0 ? 0 : info.From(place).U32(4).value_or(0);
}

std::string Closed(const std::string& bytes) { return bytes + '\0'; }

std::string ClosedWide(TextView text) {
  std::string bytes;
  PutWide(bytes, text);
  PutU16(bytes, 0);
  return bytes;
}

// Nothing is known of the volume but its type: no serial number, an empty label.
std::string Volume(std::uint32_t drive_type) {
  std::string bytes;
  PutU32(bytes, volume::kHeaderSize + 1);
  PutU32(bytes, drive_type);
  PutU32(bytes, 0);
  PutU32(bytes, volume::kHeaderSize);
  return Closed(bytes);
}

std::string Network(TextView name, const CodePage& page) {
  const std::string ansi = Closed(page.Encode(name));
  const std::string wide = ClosedWide(name);
  std::string bytes;
  PutU32(bytes, network::kWideHeaderSize + ansi.size() + wide.size());
  PutU32(bytes, network::kHasProvider);
  PutU32(bytes, network::kWideHeaderSize);
  PutU32(bytes, 0);  // no letter stands for it
  PutU32(bytes, network::kLanManager);
  PutU32(bytes, network::kWideHeaderSize + ansi.size());
  PutU32(bytes, 0);
  return bytes + ansi + wide;
}

// Where the suffix of "\\server\share\suffix" begins; the end for a path that has none.
std::size_t SuffixOf(TextView path) {
  if (!path.starts_with(u"\\\\")) return path.size();
  const std::size_t server_end = path.find(u'\\', 2);
  if (server_end == TextView::npos) return path.size();
  const std::size_t share_end = path.find(u'\\', server_end + 1);
  if (share_end == TextView::npos || share_end == server_end + 1) return path.size();
  const bool plain = share_end + 1 < path.size() && path[share_end + 1] != u'\\';
  return plain ? share_end + 1 : path.size();
}

// The contents behind the header, and the header's offsets into them.
struct Body {
  std::string bytes;

  std::size_t Add(const std::string& part) {
    const std::size_t offset = link_info::kWideHeaderSize + bytes.size();
    bytes += part;
    return offset;
  }
};

}  // namespace

void ReadLinkInfo(const ByteView& info, const CodePage& page, ShellLink& link) {
  const bool wide = info.U32(4).value_or(0) >= link_info::kWideHeaderSize;
  const std::uint32_t flags = info.U32(8).value_or(0);
  const Text suffix = Either(wide ? WideAt(info, 0x20) : Text(), AnsiAt(info, 0x18, page));
  if ((flags & link_info::kHasLocalPath) != 0) {
    Text base = Either(wide ? WideAt(info, 0x1C) : Text(), AnsiAt(info, 0x10, page));
    link.local_path = Joined(std::move(base), suffix);
    if (!link.local_path.empty()) link.drive_type = DriveType(info);
  }
  if ((flags & link_info::kHasNetworkPath) != 0) {
    link.network_path = Joined(NetName(info, page), suffix);
  }
}

// Wine reads the local path without the suffix, so both stand in one piece where there is one.
std::string WriteLinkInfo(const ShellLink& link, const CodePage& page) {
  const bool local = !link.local_path.empty();
  const bool network = !link.network_path.empty();
  const TextView name = link.network_path;
  const std::size_t cut = local ? name.size() : SuffixOf(name);
  const TextView suffix = name.substr(cut);
  const TextView share = name.substr(0, suffix.empty() ? cut : cut - 1);
  Body body;
  const std::size_t volume = local ? body.Add(Volume(link.drive_type)) : 0;
  const std::size_t path = local ? body.Add(Closed(page.Encode(link.local_path))) : 0;
  const std::size_t net = network ? body.Add(Network(share, page)) : 0;
  const std::size_t rest = body.Add(Closed(page.Encode(suffix)));
  const std::size_t wide_path = local ? body.Add(ClosedWide(link.local_path)) : 0;
  const std::size_t wide_rest = body.Add(ClosedWide(suffix));
  std::string bytes;
  PutU32(bytes, link_info::kWideHeaderSize + body.bytes.size());
  PutU32(bytes, link_info::kWideHeaderSize);
  PutU32(bytes,
         (local ? link_info::kHasLocalPath : 0) | (network ? link_info::kHasNetworkPath : 0));
  for (const std::size_t offset : {volume, path, net, rest, wide_path, wide_rest}) {
    PutU32(bytes, offset);
  }
  return bytes + body.bytes;
}

}  // namespace orvik::host::shell_link

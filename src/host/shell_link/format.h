// The numbers of [MS-SHLLINK]. All of them are little-endian, all sizes count bytes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvik::host::shell_link {

// ShellLinkHeader.
constexpr std::size_t kHeaderSize = 0x4C;
constexpr std::string_view kClass{"\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16};
namespace header {
constexpr std::size_t kClass = 0x04;
constexpr std::size_t kFlags = 0x14;
constexpr std::size_t kAttributes = 0x18;
constexpr std::size_t kIconIndex = 0x38;
constexpr std::size_t kWindowStyle = 0x3C;
}  // namespace header
constexpr std::uint32_t kFolderAttribute = 0x10;

// LinkFlags: which parts follow the header, in this order.
constexpr std::uint32_t kHasItemList = 0x1;
constexpr std::uint32_t kHasLinkInfo = 0x2;
constexpr std::uint32_t kHasName = 0x4;
constexpr std::uint32_t kHasRelativePath = 0x8;
constexpr std::uint32_t kHasWorkingFolder = 0x10;
constexpr std::uint32_t kHasArguments = 0x20;
constexpr std::uint32_t kHasIconLocation = 0x40;
constexpr std::uint32_t kIsUnicode = 0x80;
constexpr std::uint32_t kForceNoLinkInfo = 0x100;
constexpr std::uint32_t kHasVariablePath = 0x200;

// LinkInfo, VolumeID and CommonNetworkRelativeLink. Offsets count from the beginning of the
// structure that they stand in; a longer header has those of the UTF-16 texts as well.
namespace link_info {
constexpr std::size_t kHeaderSize = 0x1C;
constexpr std::size_t kWideHeaderSize = 0x24;
constexpr std::uint32_t kHasLocalPath = 1;
constexpr std::uint32_t kHasNetworkPath = 2;
}  // namespace link_info
namespace volume {
constexpr std::size_t kHeaderSize = 0x10;
}
namespace network {
constexpr std::size_t kHeaderSize = 0x14;
constexpr std::size_t kWideHeaderSize = 0x1C;
constexpr std::uint32_t kHasProvider = 2;
constexpr std::uint32_t kLanManager = 0x20000;
}  // namespace network

// Items of a LinkTargetIDList. The document leaves their contents to the folders that make them;
// these are those of "My Computer", its drives, and the folders and files below. The class is in
// the high half of the first byte behind the size.
namespace item {
constexpr std::uint8_t kRoot = 0x1F;
constexpr std::string_view kMyComputer{
    "\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\x00\x2B\x30\x30\x9D", 16};
constexpr std::uint8_t kClassMask = 0x70;
constexpr std::uint8_t kDriveClass = 0x20;
constexpr std::uint8_t kFileClass = 0x30;
constexpr std::uint8_t kVirtual = 0x2E;  // of the class of drives, and none
constexpr std::uint8_t kDrive = 0x2F;
constexpr std::uint8_t kFolder = 0x31;
constexpr std::uint8_t kFile = 0x32;
constexpr std::uint8_t kWideName = 0x04;  // the name is UTF-16
constexpr std::size_t kDriveSize = 0x19;
constexpr std::size_t kNamePlace = 0x0E;
}  // namespace item

// The extension of an item for a file or folder, which holds its full name in UTF-16.
namespace extension {
constexpr std::uint32_t kSignature = 0xBEEF0004;
constexpr std::uint16_t kVersion = 3;
constexpr std::size_t kNameOffsetPlace = 0x10;
constexpr std::uint16_t kNameOffset = 0x14;  // in this version; later ones have more in front
}  // namespace extension

// ExtraData: blocks of a size, a signature and contents, closed by a size below 4.
constexpr std::size_t kBlockHeaderSize = 8;
constexpr std::size_t kSmallestBlock = 4;
namespace variable_block {
constexpr std::uint32_t kSignature = 0xA0000001;
constexpr std::size_t kSize = 0x314;
constexpr std::size_t kAnsiRoom = 260;
constexpr std::size_t kWideRoom = 520;
}  // namespace variable_block

}  // namespace orvik::host::shell_link

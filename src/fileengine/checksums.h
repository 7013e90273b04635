// The two checksums on which every statement rests that two files are the same.
#pragma once

#include <array>
#include <cstdint>

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlSupport {

// A checksum is the CRC-32 of a content taken as text, two bytes a character, as a signed number.
// It is not the CRC-32 of the file's bytes: stored file lists rest on that.

// The published table. Filled once, by InitCRCTable.
extern std::array<std::uint32_t, 256> CRCTable;
void InitCRCTable();

// The checksum of a text.
std::int32_t ComputeCRC(TextView text);

// The checksum of a whole file; 0 for one that is missing, unreadable, empty or of 2 GiB or more.
std::int32_t GetFileCRC(const Text& path);

// The checksum of a file's first block, of the block in front of its last byte, and of its length
// as text; of the whole file where that isn't longer than a block. A block size below 1 means 512.
// 0 as with GetFileCRC. The last byte of a longer file is never read: that is settled, as stored
// lists would stop matching.
std::int32_t GetFastCRC(const Text& path, std::int32_t block_size);

// True when both files have the same length and the same fast checksum. A length that can't be read
// is 0.
Flag SameFastCRC(const Text& first, const Text& second);

// A length in 32 bits, as the program sees it: 2 GiB and more are negative.
std::int32_t ReportedLength(std::int64_t length);
// The length of a file in 32 bits. Throws Failure for a missing file and for a folder.
std::int32_t FileLength(const Text& path);

}  // namespace orvik::mdlSupport

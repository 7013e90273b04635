// The recursive walk: a folder and a mask list become an array of full paths.
#pragma once

#include <cstdint>
#include <vector>

#include "base/checked.h"
#include "base/text.h"
#include "host/file_system.h"

namespace orvik::mdlSupport {

// The upper bound of an array with the lower bound 0; -1 for one without elements.
template <typename Element>
std::int32_t UpperBoundOrMinusOne(const std::vector<Element>& array) {
  return static_cast<std::int32_t>(array.size()) - 1;
}

// The masks of a list joined by ";", nothing trimmed, empty ones kept. The empty list is the one
// mask "*".
std::vector<Text> SplitMasks(TextView masks);

// Every entry that the system gives for a folder path with a mask. Records are left untouched when
// there is none. Yields between entries.
void FindAllEntries(const Text& search, std::vector<host::FindRecord>& records,
                    host::Details details = host::Details::kFolderBit);

// Only this bit decides whether an entry is entered: a link to a folder is a folder.
inline bool IsFolderEntry(const host::FindRecord& record) {
  return (record.attributes & host::attribute::kFolder) != 0;
}

// These three give the caller's own folder variable a closing backslash, and throw Failure when it
// is empty.

// The names of the subfolders one level down; no mask limits them.
void ListSubfolders(Text& folder, std::vector<Text>& names);
// The names of the files one level down, mask by mask: one that two masks match comes twice.
void ListFilesByMasks(Text& folder, TextView masks, std::vector<Text>& names);
// Appends the full paths of the files of a tree: depth first, a folder's files before its
// subfolders, within a folder by mask, then in the system's order. With publish the list begins
// anew with one empty element, and ScanFiles and ScanNames take the files over.
void WalkFiles(Text& root, TextView masks, std::vector<Text>& list, Flag publish);

}  // namespace orvik::mdlSupport

// The breadth-first scan of a tree or of all drives, and the size of a tree.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlSupport {

// An ordered collection of texts, or nothing when unset. They live until the next scan or
// ClearScanResults. ScanFiles and ScanNames run in parallel, as do DriveFiles and DriveNames.
using ScanCollection = std::optional<std::vector<Text>>;

extern ScanCollection ScanFolders;  // the root as given, then full paths without closing backslash
extern ScanCollection ScanFiles;    // full paths
extern ScanCollection ScanNames;    // bare names
extern ScanCollection DriveFolders;
extern ScanCollection DriveFiles;
extern ScanCollection DriveNames;

// Sets all six collections to nothing.
void ClearScanResults();
// Replaces a collection with a new empty one.
void ResetCollection(ScanCollection& collection);

// The names of a folder's entries that match a mask, "." and ".." among them, all read before this
// returns. Throws Failure when the drive can't be asked at all; a folder that can't be listed is
// empty.
std::vector<Text> ListFolder(const Text& folder, TextView mask);

// Fills ScanFolders, ScanFiles and ScanNames from a tree, breadth first. The pattern of the pattern
// operator filters files only; the empty one takes all. Yields once a folder. False when the root
// couldn't even be asked, as on a drive without medium. Never ends on a tree of 32767 folders or
// more: its index is 16 bits wide.
bool ScanFolderTree(const Text& root, TextView pattern, Flag case_sensitive);

// Scans A: to Z: and gathers in the three Drive collections what drives with files hold.
void ScanAllDrives(TextView pattern);

// The bytes of a file or of all files of a tree, 0 for a missing path. A file of 2 GiB or more
// counts wrongly in a tree: the high word of its size stands for 65536 a unit, the low word is
// signed. Limits that users have set rest on these sums. Yields after each entry.
double GetTreeSize(const Text& path);

// The sizes of all folders of a tree, each what GetTreeSize answers, for one pass over the tree.
class TreeSizes {
 public:
  // Measures the tree at once. Yields after each entry.
  explicit TreeSizes(Text root);
  // The size of the root or of a folder below it.
  double Of(const Text& folder) const;

 private:
  double Measure(const Text& folder);

  std::unordered_map<Text, double> sizes_;
};

}  // namespace orvik::mdlSupport

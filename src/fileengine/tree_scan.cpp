#include "fileengine/tree_scan.h"

#include "base/failure.h"
#include "fileengine/checksums.h"
#include "fileengine/paths.h"
#include "fileengine/pattern.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "host/host.h"

namespace orvik::mdlSupport {

ScanCollection ScanFolders;
ScanCollection ScanFiles;
ScanCollection ScanNames;
ScanCollection DriveFolders;
ScanCollection DriveFiles;
ScanCollection DriveNames;

namespace {

// The names of a folder's entries, "." and ".." among them. Throws Failure when the drive can't be
// asked at all; a folder that can't be listed is empty.
std::vector<Text> ListNames(const Text& folder) {
  std::vector<Text> names;
  host::FindRecord record;
  const auto entries = host::Files().FindFirst(folder + u"\\*", host::Details::kFolderBit, record);
  if (!entries) {
    if (!host::Files().PathExists(GetDriveSpec(folder) + u"\\")) throw Failure{};
    return names;
  }
  do {
    names.push_back(record.name);
  } while (entries->Next(record));
  return names;
}

// True for the folder bit, also when the attributes can't be read: that failing condition passes.
bool IsFolderPath(const Text& path) {
  return Passes([&] {
    const auto attributes = host::Files().Attributes(path);
    if (!attributes) throw Failure{};
    return (*attributes & host::attribute::kFolder) != 0;
  });
}

// One run of ScanFolderTree.
struct TreeScan {
  Text pattern;
  bool fold_case;
  std::vector<Text> folders;
  std::vector<Text> files;
  std::vector<Text> names;

  void TakeEntry(const Text& folder, const Text& name) {
    if (ToUpper(name) == u"PAGEFILE.SYS" || name == u"." || name == u"..") return;
    Text path = folder + u"\\" + name;
    if (IsFolderPath(path)) {
      folders.push_back(std::move(path));
    } else if (Passes([&] { return Like(fold_case ? ToLower(name) : name, pattern); })) {
      files.push_back(std::move(path));
      names.push_back(name);
    }
  }

  void Run() {
    bool first_entry_taken = false;
    for (Int16 index = 1; static_cast<std::size_t>(index) <= folders.size();) {
      Text folder = folders[static_cast<std::size_t>(index) - 1];
      if (folder.ends_with(u'\\')) folder.pop_back();
      Attempt([&] { ++index; });
      std::vector<Text> entries;
      const auto list = [&] { entries = ListNames(folder); };
      if (first_entry_taken) {
        Attempt(list);
      } else {
        list();
      }
      for (const Text& name : entries) {
        first_entry_taken = true;
        TakeEntry(folder, name);
      }
      forms::Yield();
    }
  }
};

void Append(ScanCollection& total, const ScanCollection& part) {
  total->insert(total->end(), part->begin(), part->end());
}

double SizeOf(const host::FindRecord& record) {
  return static_cast<double>(record.size_high) * 65536.0 +
         static_cast<double>(static_cast<std::int32_t>(record.size_low));
}

}  // namespace

void ClearScanResults() {
  for (ScanCollection* collection :
       {&ScanFolders, &ScanFiles, &ScanNames, &DriveFolders, &DriveFiles, &DriveNames}) {
    collection->reset();
  }
}

void ResetCollection(ScanCollection& collection) { collection.emplace(); }

bool ScanFolderTree(const Text& root, TextView pattern, Flag case_sensitive) {
  TreeScan scan;
  scan.fold_case = case_sensitive == kFalse;
  scan.pattern = pattern.empty() ? u"*" : scan.fold_case ? ToLower(pattern) : Text(pattern);
  scan.folders.push_back(root);
  bool complete = false;
  Attempt([&] {
    scan.Run();
    complete = true;
  });
  ScanFolders = std::move(scan.folders);
  ScanFiles = std::move(scan.files);
  ScanNames = std::move(scan.names);
  return complete;
}

void ScanAllDrives(TextView pattern) {
  ClearScanResults();
  ResetCollection(DriveFolders);
  ResetCollection(DriveFiles);
  ResetCollection(DriveNames);
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    ScanFolderTree(Text{letter, u':'}, pattern, kFalse);
    if (ScanFiles->empty()) continue;
    Append(DriveFolders, ScanFolders);
    Append(DriveNames, ScanNames);
    Append(DriveFiles, ScanFiles);
  }
}

double GetTreeSize(const Text& path) {
  const auto attributes = host::Files().Attributes(path);
  if (!attributes) return 0;
  if ((*attributes & host::attribute::kFolder) == 0) {
    double length = 0;
    Attempt([&] { length = FileLength(path); });
    return length;
  }
  double total = 0;
  host::FindRecord record;
  const auto entries = host::Files().FindFirst(path + u"\\*.*", host::Details::kSizes, record);
  if (!entries) return 0;
  do {
    if (!IsFolderEntry(record)) {
      total += SizeOf(record);
    } else if (record.name != u"." && record.name != u"..") {
      total += GetTreeSize(path + u"\\" + record.name);
    }
    forms::Yield();
  } while (entries->Next(record));
  return total;
}

}  // namespace orvik::mdlSupport

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
      const auto list = [&] { entries = ListFolder(folder, u"*"); };
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

// The bytes of a file, or of a folder whose subfolders are measured by `size_below`.
template <typename SizeBelow>
double SizeOfTree(const Text& path, SizeBelow&& size_below) {
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
      total += size_below(path + u"\\" + record.name);
    }
    forms::Yield();
  } while (entries->Next(record));
  return total;
}

}  // namespace

void ClearScanResults() {
  for (ScanCollection* collection :
       {&ScanFolders, &ScanFiles, &ScanNames, &DriveFolders, &DriveFiles, &DriveNames}) {
    collection->reset();
  }
}

void ResetCollection(ScanCollection& collection) { collection.emplace(); }

std::vector<Text> ListFolder(const Text& folder, TextView mask) {
  std::vector<Text> names;
  host::FindRecord record;
  const auto entries =
      host::Files().FindFirst(folder + u"\\" + Text(mask), host::Details::kFolderBit, record);
  if (!entries) {
    if (!host::Files().PathExists(GetDriveSpec(folder) + u"\\")) throw Failure{};
    return names;
  }
  do {
    names.push_back(record.name);
  } while (entries->Next(record));
  return names;
}

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
  return SizeOfTree(path, [](const Text& below) { return GetTreeSize(below); });
}

TreeSizes::TreeSizes(Text root) {
  // Folders below the root of a drive are named without the doubled backslash.
  if (root.ends_with(u'\\')) root.pop_back();
  Measure(root);
}

double TreeSizes::Measure(const Text& folder) {
  const double size = SizeOfTree(folder, [this](const Text& below) { return Measure(below); });
  sizes_[folder] = size;
  return size;
}

double TreeSizes::Of(const Text& folder) const {
  const bool closed = folder.ends_with(u'\\');
  const auto known = sizes_.find(closed ? folder.substr(0, folder.size() - 1) : folder);
  // What came to be a folder only by its attributes that can't be read was no folder to the pass.
  return known != sizes_.end() ? known->second : GetTreeSize(folder);
}

}  // namespace orvik::mdlSupport

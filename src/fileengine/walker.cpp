#include "fileengine/walker.h"

#include "base/failure.h"
#include "fileengine/paths.h"
#include "fileengine/tree_scan.h"
#include "forms/front_end.h"
#include "host/host.h"

namespace orvik::mdlSupport {

namespace {

void CloseFolder(Text& folder) {
  if (folder.empty()) throw Failure{};
  EnsureBackslash(folder);
}

bool IsSelfOrParent(const Text& name) { return name == u"." || name == u".."; }

void Publish(const std::vector<Text>& list) {
  ClearScanResults();
  ScanFiles.emplace();
  ScanNames.emplace();
  for (std::size_t i = 1; i < list.size(); ++i) {
    ScanFiles->push_back(list[i]);
    ScanNames->emplace_back(GetFileName(list[i]));
  }
}

}  // namespace

std::vector<Text> SplitMasks(TextView masks) {
  const auto pieces = Split(masks, u";");
  if (pieces.empty()) return {u"*"};
  return {pieces.begin(), pieces.end()};
}

void FindAllEntries(const Text& search, std::vector<host::FindRecord>& records,
                    host::Details details) {
  host::FindRecord record;
  const auto entries = host::Files().FindFirst(search, details, record);
  if (!entries) return;
  records.clear();
  for (;;) {
    records.push_back(record);
    if (!entries->Next(record)) return;
    forms::Yield();
  }
}

void ListSubfolders(Text& folder, std::vector<Text>& names) {
  names.clear();
  CloseFolder(folder);
  std::vector<host::FindRecord> records;
  FindAllEntries(folder + u"*", records);
  for (host::FindRecord& record : records) {
    forms::Yield();
    if (!IsSelfOrParent(record.name) && IsFolderEntry(record)) {
      names.push_back(std::move(record.name));
    }
  }
}

void ListFilesByMasks(Text& folder, TextView masks, std::vector<Text>& names) {
  names.clear();
  CloseFolder(folder);
  for (const Text& mask : SplitMasks(masks)) {
    forms::Yield();
    std::vector<host::FindRecord> records;
    FindAllEntries(folder + mask, records);
    for (host::FindRecord& record : records) {
      forms::Yield();
      if (!IsSelfOrParent(record.name) && !IsFolderEntry(record)) {
        names.push_back(std::move(record.name));
      }
    }
  }
}

void WalkFiles(Text& root, TextView masks, std::vector<Text>& list, Flag publish) {
  if (publish != kFalse) list.assign(1, Text());
  CloseFolder(root);
  std::vector<Text> subfolders;
  ListSubfolders(root, subfolders);
  std::vector<Text> files;
  ListFilesByMasks(root, masks, files);
  for (const Text& file : files) {
    forms::Yield();
    list.push_back(root + file);
  }
  for (const Text& subfolder : subfolders) {
    forms::Yield();
    Text folder = root + subfolder;
    WalkFiles(folder, masks, list, kFalse);
  }
  if (publish != kFalse) Publish(list);
}

}  // namespace orvik::mdlSupport

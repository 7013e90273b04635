#include "unit/support/fake_file_system.h"

#include <algorithm>
#include <functional>

namespace orvik::test {

using host::Details;
using host::FindRecord;
namespace attribute = host::attribute;

struct FakeFileSystem::Drive {
  Text name;
  int type;
  host::DiskSpace space;
  Text label;
  FakeNode root;
};

struct FakeFileSystem::Place {
  Drive* drive = nullptr;
  FakeNode* parent = nullptr;  // nullptr where a folder on the way is missing, and for a root
  Text name;
  FakeNode* node = nullptr;
};

namespace {

std::string Utf8(TextView text) { return ToUtf8(text); }

std::shared_ptr<FakeNode> Shared(FakeNode& parent, const FakeNode* node) {
  for (const auto& child : parent.children) {
    if (child.get() == node) return child;
  }
  return nullptr;
}

}  // namespace

FakeFileSystem::FakeFileSystem() {
  AddDrive(u"C:");
  AddDrive(u"T:");
}
FakeFileSystem::~FakeFileSystem() = default;

void FakeFileSystem::AddDrive(TextView drive, int type, host::DiskSpace space, Text label) {
  auto made = std::make_unique<Drive>(Drive{Text(drive), type, space, std::move(label), {}});
  made->root.folder = true;
  drives_.push_back(std::move(made));
}

FakeFileSystem::Drive* FakeFileSystem::DriveOf(TextView path) const {
  for (const auto& drive : drives_) {
    const TextView rest = path.substr(std::min(path.size(), drive->name.size()));
    if (EqualNoCase(path.substr(0, drive->name.size()), drive->name) &&
        (rest.empty() || rest[0] == u'\\')) {
      return drive.get();
    }
  }
  return nullptr;
}

Text FakeFileSystem::Full(TextView path) const {
  Text full(path);
  std::replace(full.begin(), full.end(), u'/', u'\\');
  const bool absolute = full.starts_with(u"\\\\") || (full.size() > 1 && full[1] == u':');
  if (absolute) return full;
  return (full[0] == u'\\' ? current_folder.substr(0, 2) : current_folder + u"\\") + full;
}

FakeFileSystem::Place FakeFileSystem::Locate(TextView path) const {
  Place place;
  if (path.empty() || path.size() > host::kLongestPath) return place;
  const Text full = Full(path);
  place.drive = DriveOf(full);
  if (place.drive == nullptr) return place;
  place.node = &place.drive->root;
  for (Text& name : Components(TextView(full).substr(place.drive->name.size()))) {
    place.parent = place.node != nullptr && place.node->folder ? place.node : nullptr;
    place.node = place.parent == nullptr ? nullptr : place.parent->Child(name);
    place.name = std::move(name);
  }
  return place;
}

FakeNode* FakeFileSystem::At(TextView path) const { return Locate(path).node; }

FakeNode& FakeFileSystem::Make(TextView given, bool folder) {
  const Text full = Full(given);
  const TextView path = full;
  Drive* drive = DriveOf(path);
  if (drive == nullptr) {
    AddDrive(path.substr(0, 2));
    drive = drives_.back().get();
  }
  FakeNode* node = &drive->root;
  for (const Text& name : Components(path.substr(drive->name.size()))) {
    FakeNode* child = node->Child(name);
    if (child == nullptr) {
      child = node->children.emplace_back(std::make_shared<FakeNode>()).get();
      child->name = name;
      child->folder = true;
    }
    node = child;
  }
  if (node != &drive->root) node->folder = folder;
  return *node;
}

void FakeFileSystem::AddFolder(TextView path, std::uint32_t attributes) {
  Make(path, true).attributes = attributes;
}

void FakeFileSystem::AddFile(TextView path, std::string content, std::uint32_t attributes) {
  FakeNode& node = Make(path, false);
  node.content = std::move(content);
  node.attributes = attributes;
}

void FakeFileSystem::AddLargeFile(TextView path, std::int64_t length) {
  Make(path, false).zeros = length;
}

bool FakeFileSystem::Exists(TextView path) const { return At(path) != nullptr; }

bool FakeFileSystem::IsFolder(TextView path) const {
  const FakeNode* node = At(path);
  return node != nullptr && node->folder;
}

std::string FakeFileSystem::Content(TextView path) const {
  const FakeNode* node = At(path);
  return node == nullptr ? std::string() : node->content;
}

std::vector<Text> FakeFileSystem::Tree(TextView folder) const {
  std::vector<Text> paths;
  const std::function<void(const FakeNode&, const Text&)> add = [&](const FakeNode& node,
                                                                    const Text& at) {
    for (const auto& child : node.children) {
      const Text path = at + u"\\" + child->name;
      paths.push_back(path);
      add(*child, path);
    }
  };
  Text start(folder);
  if (start.ends_with(u'\\')) start.pop_back();
  if (const FakeNode* node = At(folder)) add(*node, start);
  return paths;
}

bool FakeFileSystem::Take(TextView path) {
  const Place place = Locate(path);
  if (place.node == nullptr || place.parent == nullptr) return false;
  std::erase_if(place.parent->children,
                [&](const auto& child) { return child.get() == place.node; });
  return true;
}

void FakeFileSystem::Log(std::string call, bool change) {
  if (change) changes.push_back(call);
  calls.push_back(std::move(call));
}

std::unique_ptr<host::Search> FakeFileSystem::FindFirst(const Text& path_and_mask, Details details,
                                                        FindRecord& record) {
  Log("FindFirst " + Utf8(path_and_mask), false);
  const std::size_t cut = path_and_mask.find_last_of(u"\\/");
  const Text mask = cut == Text::npos ? path_and_mask : path_and_mask.substr(cut + 1);
  const Place folder =
      Locate(cut == Text::npos ? TextView(u".") : TextView(path_and_mask).substr(0, cut + 1));
  if (mask.empty() || folder.node == nullptr || !folder.node->folder) return nullptr;
  std::vector<FindRecord> records;
  if (folder.parent != nullptr) {
    for (const char16_t* dots : {u".", u".."}) {
      if (Matches(mask, dots)) records.push_back(RecordOf(*folder.node, dots, details));
    }
  }
  for (const auto& child : folder.node->children) {
    if (Matches(mask, child->name)) records.push_back(RecordOf(*child, child->name, details));
  }
  auto search = SearchOver(std::move(records));
  if (!search->Next(record)) return nullptr;
  return search;
}

bool FakeFileSystem::PathExists(const Text& path) {
  Log("PathExists " + Utf8(path), false);
  return At(path) != nullptr;
}

std::optional<std::uint32_t> FakeFileSystem::Attributes(const Text& path) {
  Log("Attributes " + Utf8(path), false);
  const FakeNode* node = At(path);
  if (node == nullptr) return std::nullopt;
  return node->attributes | (node->folder ? attribute::kFolder : 0);
}

bool FakeFileSystem::SetAttributes(const Text& path, std::uint32_t attributes) {
  Log("SetAttributes " + Utf8(path) + " " + std::to_string(attributes), true);
  FakeNode* node = At(path);
  if (node == nullptr) return false;
  node->attributes = attributes & (attribute::kReadOnly | attribute::kHidden | attribute::kSystem |
                                   attribute::kArchive);
  return true;
}

std::optional<std::int64_t> FakeFileSystem::FileLength(const Text& path) {
  Log("FileLength " + Utf8(path), false);
  const FakeNode* node = At(path);
  if (node == nullptr || node->folder) return std::nullopt;
  return node->Length();
}

bool FakeFileSystem::CreateFolder(const Text& path) {
  Log("CreateFolder " + Utf8(path), true);
  const Place place = Locate(path);
  if (place.parent == nullptr || place.node != nullptr || path.size() > host::kLongestNewFolder) {
    return false;
  }
  Make(path, true);
  return true;
}

bool FakeFileSystem::RemoveFolder(const Text& path) {
  Log("RemoveFolder " + Utf8(path), true);
  const FakeNode* node = At(path);
  if (node == nullptr || !node->folder || !node->children.empty() || node->Untouchable()) {
    return false;
  }
  return Take(path);
}

bool FakeFileSystem::CopyFile(const Text& source, const Text& target, bool fail_if_exists) {
  Log("CopyFile " + Utf8(source) + " -> " + Utf8(target), true);
  const FakeNode* from = At(source);
  const Place to = Locate(target);
  if (from == nullptr || from->folder || to.parent == nullptr || from == to.node) return false;
  if (to.node != nullptr && (fail_if_exists || to.node->folder || to.node->Untouchable())) {
    return false;
  }
  FakeNode& made = Make(target, false);
  made.content = from->content;
  made.zeros = from->zeros;
  made.attributes = from->attributes;
  return true;
}

bool FakeFileSystem::MoveFile(const Text& source, const Text& target, bool replace) {
  Log("MoveFile " + Utf8(source) + " -> " + Utf8(target), true);
  const Place from = Locate(source);
  const Place to = Locate(target);
  if (from.node == nullptr || from.parent == nullptr || to.parent == nullptr ||
      from.drive != to.drive || *from.node->holds > 0) {
    return false;
  }
  if (to.node != nullptr && to.node != from.node) {
    if (!replace || to.node->folder || to.node->Untouchable()) return false;
    Take(target);
  }
  std::shared_ptr<FakeNode> moved = Shared(*from.parent, from.node);
  Take(source);
  moved->name = to.name;
  to.parent->children.push_back(std::move(moved));
  return true;
}

bool FakeFileSystem::DeleteFile(const Text& path) {
  Log("DeleteFile " + Utf8(path), true);
  const FakeNode* node = At(path);
  if (node == nullptr || node->folder || node->Untouchable()) return false;
  return Take(path);
}

std::unique_ptr<host::File> FakeFileSystem::Open(const Text& path, host::OpenMode mode) {
  Place place = Locate(path);
  const bool reading = mode == host::OpenMode::kRead;
  Log(std::string(reading ? "Read " : "Open ") + Utf8(path), !reading);
  if (place.node == nullptr) {
    if (reading || place.parent == nullptr) return nullptr;
    Make(path, false).attributes = attribute::kArchive;
    place = Locate(path);
  }
  if (place.node->folder) return nullptr;
  const bool holding = mode == host::OpenMode::kHold;
  if (holding && *place.node->holds > 0) return nullptr;
  return FileOver(Shared(*place.parent, place.node), !reading && !place.node->Untouchable(),
                  holding);
}

std::optional<Text> FakeFileSystem::ShortName(const Text& path) {
  Log("ShortName " + Utf8(path), false);
  const FakeNode* node = At(path);
  if (node == nullptr || node->folder) return std::nullopt;
  const std::size_t dot = node->name.rfind(u'.');
  const Text stem = ToUpper(TextView(node->name).substr(0, dot));
  const Text extension = dot == Text::npos ? Text() : ToUpper(TextView(node->name).substr(dot, 4));
  return (stem.size() > 8 ? stem.substr(0, 6) + u"~1" : stem) + extension;
}

std::optional<std::uint64_t> FakeFileSystem::FolderSize(const Text& path) {
  Log("FolderSize " + Utf8(path), false);
  const FakeNode* node = At(path);
  if (node == nullptr || !node->folder) return std::nullopt;
  return SizeOf(*node);
}

int FakeFileSystem::DriveType(const Text& drive) {
  Log("DriveType " + Utf8(drive), false);
  const Drive* found = DriveOf(drive);
  return found == nullptr ? host::drive_type::kNoRoot : found->type;
}

std::optional<host::DiskSpace> FakeFileSystem::Space(const Text& path) {
  Log("Space " + Utf8(path), false);
  const Drive* found = DriveOf(path);
  if (found == nullptr) return std::nullopt;
  return found->space;
}

std::optional<Text> FakeFileSystem::VolumeLabel(const Text& drive) {
  Log("VolumeLabel " + Utf8(drive), false);
  const Drive* found = DriveOf(drive);
  if (found == nullptr) return std::nullopt;
  return found->label;
}

}  // namespace orvik::test

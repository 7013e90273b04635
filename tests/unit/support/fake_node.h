// What the file system in memory is made of.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/text.h"
#include "host/file_system.h"

namespace orvik::test {

// A file, a folder or the root of a drive.
struct FakeNode {
  Text name;
  bool folder = false;
  std::uint32_t attributes = 0;
  std::string content;
  std::int64_t zeros = 0;  // behind the content
  // Open handles that let nobody else write or delete.
  std::shared_ptr<int> holds = std::make_shared<int>(0);
  std::vector<std::shared_ptr<FakeNode>> children;

  std::int64_t Length() const { return static_cast<std::int64_t>(content.size()) + zeros; }
  bool Untouchable() const { return *holds > 0 || (attributes & host::attribute::kReadOnly) != 0; }
  FakeNode* Child(TextView wanted) const {
    for (const auto& child : children) {
      if (EqualNoCase(child->name, wanted)) return child.get();
    }
    return nullptr;
  }
};

// True when a name fits a mask of a search.
bool Matches(TextView mask, TextView name);
// The components of a path behind its drive, "." and ".." worked off.
std::vector<Text> Components(TextView path);
// What a search tells of a node: what was asked for and nothing more.
host::FindRecord RecordOf(const FakeNode& node, Text name, host::Details details);
// The bytes of all files below.
std::uint64_t SizeOf(const FakeNode& node);

std::unique_ptr<host::Search> SearchOver(std::vector<host::FindRecord> records);
// `holds` keeps everybody else from writing and deleting while the file is open.
std::unique_ptr<host::File> FileOver(std::shared_ptr<FakeNode> node, bool writable, bool holds);

}  // namespace orvik::test

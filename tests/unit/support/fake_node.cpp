#include "unit/support/fake_node.h"

#include <algorithm>

namespace orvik::test {

using host::Details;
using host::FindRecord;
namespace attribute = host::attribute;

namespace {

class FakeSearch : public host::Search {
 public:
  explicit FakeSearch(std::vector<FindRecord> records) : records_(std::move(records)) {}
  bool Next(FindRecord& record) override {
    if (at_ == records_.size()) return false;
    record = records_[at_++];
    return true;
  }

 private:
  std::vector<FindRecord> records_;
  std::size_t at_ = 0;
};

class FakeFile : public host::File {
 public:
  FakeFile(std::shared_ptr<FakeNode> node, bool writable, bool holds)
      : node_(std::move(node)), writable_(writable), holds_(holds) {
    if (holds_) ++*node_->holds;
  }
  ~FakeFile() override {
    if (holds_) --*node_->holds;
  }
  FakeFile(const FakeFile&) = delete;
  FakeFile& operator=(const FakeFile&) = delete;

  std::optional<std::int64_t> Length() override { return node_->Length(); }
  std::optional<std::size_t> ReadAt(std::int64_t position, std::span<char> buffer) override {
    if (position < 0) return std::nullopt;
    const auto count = static_cast<std::size_t>(std::clamp<std::int64_t>(
        node_->Length() - position, 0, static_cast<std::int64_t>(buffer.size())));
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t at = static_cast<std::size_t>(position) + i;
      buffer[i] = at < node_->content.size() ? node_->content[at] : '\0';
    }
    return count;
  }
  bool WriteAt(std::int64_t position, std::span<const char> bytes) override {
    if (!writable_ || position < 0) return false;
    const auto begin = static_cast<std::size_t>(position);
    if (node_->content.size() < begin + bytes.size()) node_->content.resize(begin + bytes.size());
    std::copy(bytes.begin(), bytes.end(), node_->content.begin() + position);
    return true;
  }

 private:
  std::shared_ptr<FakeNode> node_;
  bool writable_, holds_;
};

}  // namespace

bool Matches(TextView mask, TextView name) {
  if (mask == u"*.*") return true;
  if (mask.empty()) return name.empty();
  if (mask[0] == u'*') {
    return Matches(mask.substr(1), name) || (!name.empty() && Matches(mask, name.substr(1)));
  }
  if (name.empty()) return false;
  return (mask[0] == u'?' || ToUpper(mask[0]) == ToUpper(name[0])) &&
         Matches(mask.substr(1), name.substr(1));
}

// The components of a path, "." and ".." worked off.
std::vector<Text> Components(TextView path) {
  std::vector<Text> components;
  for (TextView piece : Split(path, u"\\")) {
    if (piece.empty() || piece == u".") continue;
    if (piece == u"..") {
      if (!components.empty()) components.pop_back();
    } else {
      components.emplace_back(piece);
    }
  }
  return components;
}

FindRecord RecordOf(const FakeNode& node, Text name, Details details) {
  FindRecord record;
  record.name = std::move(name);
  record.attributes = node.folder ? attribute::kFolder : 0;
  if (details == Details::kAll) record.attributes |= node.attributes;
  if (details != Details::kFolderBit && !node.folder) {
    record.size_high = static_cast<std::uint32_t>(node.Length() >> 32);
    record.size_low = static_cast<std::uint32_t>(node.Length());
  }
  return record;
}

std::uint64_t SizeOf(const FakeNode& node) {
  auto size = static_cast<std::uint64_t>(node.Length());
  for (const auto& child : node.children) size += SizeOf(*child);
  return size;
}

std::unique_ptr<host::Search> SearchOver(std::vector<FindRecord> records) {
  return std::make_unique<FakeSearch>(std::move(records));
}

std::unique_ptr<host::File> FileOver(std::shared_ptr<FakeNode> node, bool writable, bool holds) {
  return std::make_unique<FakeFile>(std::move(node), writable, holds);
}

}  // namespace orvik::test

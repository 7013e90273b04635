#include "forms/headless/locks.h"

#include <algorithm>

namespace orvik::forms::headless {

namespace {

// One spelling for all the ways to write a path, but for letter case.
Text Plain(TextView path) {
  Text plain;
  for (char16_t c : path) {
    if (c == u'/') c = u'\\';
    // A share keeps the two backslashes in front.
    if (c == u'\\' && plain.size() > 1 && plain.back() == u'\\') continue;
    plain += c;
  }
  while (plain.size() > 1 && plain.back() == u'\\') plain.pop_back();
  return plain;
}

}  // namespace

Locks::Locks(std::vector<LockEntry> entries, const Clock& clock)
    : entries_(std::move(entries)), clock_(clock) {
  for (LockEntry& entry : entries_) entry.path = Plain(entry.path);
}

bool Locks::Holds(TextView path) const {
  const Text plain = Plain(path);
  return std::any_of(entries_.begin(), entries_.end(), [&](const LockEntry& entry) {
    return (!entry.until || clock_.Now() < *entry.until) && EqualNoCase(entry.path, plain);
  });
}

bool Locks::HoldsWithin(TextView path) const {
  const Text plain = Plain(path);
  return std::any_of(entries_.begin(), entries_.end(), [&](const LockEntry& entry) {
    if (entry.until && clock_.Now() >= *entry.until) return false;
    const TextView held = entry.path;
    return EqualNoCase(held.substr(0, plain.size()), plain) &&
           (held.size() == plain.size() || held[plain.size()] == u'\\');
  });
}

bool LockedFileSystem::RemoveFolder(const Text& path) {
  return !locks_.Holds(path) && inner_.RemoveFolder(path);
}

bool LockedFileSystem::CopyFile(const Text& source, const Text& target, bool fail_if_exists) {
  return !locks_.Holds(source) && !locks_.Holds(target) &&
         inner_.CopyFile(source, target, fail_if_exists);
}

bool LockedFileSystem::MoveFile(const Text& source, const Text& target, bool replace) {
  return !locks_.HoldsWithin(source) && !locks_.Holds(target) &&
         inner_.MoveFile(source, target, replace);
}

bool LockedFileSystem::DeleteFile(const Text& path) {
  return !locks_.Holds(path) && inner_.DeleteFile(path);
}

std::unique_ptr<host::File> LockedFileSystem::Open(const Text& path, host::OpenMode mode) {
  if (locks_.Holds(path)) return nullptr;
  return inner_.Open(path, mode);
}

}  // namespace orvik::forms::headless

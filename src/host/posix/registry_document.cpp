#include "host/posix/registry_document.h"

#include <algorithm>

namespace orvik::host::posix {
namespace {

bool IsBelow(TextView path, TextView above) {
  return path.size() > above.size() && path[above.size()] == u'\\' &&
         EqualNoCase(path.substr(0, above.size()), above);
}

auto FindValue(RegistrySection& section, TextView name) {
  return std::find_if(section.lines.begin(), section.lines.end(), [name](const auto& line) {
    return line.is_value && EqualNoCase(line.name, name);
  });
}

}  // namespace

void PutValue(RegistrySection& section, TextView name, Text data) {
  const auto known = FindValue(section, name);
  if (known != section.lines.end()) {
    known->data = std::move(data);
  } else {
    section.lines.push_back({true, Text(name), std::move(data)});
  }
}

std::uint32_t RegistryDocument::IndexOf(TextView path) const {
  return index_.Find(path, [this](std::uint32_t i) -> TextView { return sections_[i].path; });
}

RegistrySection* RegistryDocument::Find(TextView path) {
  const std::uint32_t found = IndexOf(path);
  return found != KeyIndex::kNone ? &sections_[found] : nullptr;
}

const RegistrySection* RegistryDocument::Find(TextView path) const {
  return const_cast<RegistryDocument&>(*this).Find(path);
}

void RegistryDocument::Index() {
  index_.Clear();
  for (std::uint32_t i = 0; i < sections_.size(); ++i) {
    if (sections_[i].readable) index_.Add(sections_[i].path, i);
  }
}

std::size_t RegistryDocument::SectionOf(TextView path) {
  const std::uint32_t known = IndexOf(path);
  if (known != KeyIndex::kNone) return known;
  index_.Add(path, static_cast<std::uint32_t>(sections_.size()));
  sections_.push_back({Text(path), true, {}});
  return sections_.size() - 1;
}

std::size_t RegistryDocument::AddUnreadable(TextView head) {
  sections_.push_back({Text(head), false, {}});
  return sections_.size() - 1;
}

bool RegistryDocument::HasBelow(TextView path) const {
  return std::any_of(sections_.begin(), sections_.end(), [path](const RegistrySection& section) {
    return section.readable && IsBelow(section.path, path);
  });
}

bool RegistryDocument::Has(TextView path) const { return Find(path) != nullptr || HasBelow(path); }

void RegistryDocument::Create(TextView path) {
  if (Find(path) != nullptr) return;
  const std::size_t parent_end = path.rfind(u'\\');
  const bool has_parent = parent_end != TextView::npos;
  if (has_parent) Create(path.substr(0, parent_end));
  std::size_t place = sections_.size();
  if (has_parent) {
    const TextView parent = path.substr(0, parent_end);
    while (!EqualNoCase(sections_[place - 1].path, parent) &&
           !IsBelow(sections_[place - 1].path, parent)) {
      --place;
    }
  }
  sections_.insert(sections_.begin() + static_cast<std::ptrdiff_t>(place),
                   RegistrySection{Text(path), true, {}});
  Index();
}

bool RegistryDocument::Remove(TextView path) {
  const RegistrySection* const found = Find(path);
  if (found == nullptr || HasBelow(path)) return false;
  const auto place = static_cast<std::size_t>(found - sections_.data());
  for (RegistryLine& line : sections_[place].lines) {
    if (line.is_value) continue;
    if (place == 0) {
      preamble.push_back(std::move(line.data));
    } else {
      sections_[place - 1].lines.push_back(std::move(line));
    }
  }
  sections_.erase(sections_.begin() + static_cast<std::ptrdiff_t>(place));
  Index();
  return true;
}

const RegistryLine* RegistryDocument::ValueAt(TextView path, std::size_t index) const {
  const RegistrySection* const section = Find(path);
  if (section == nullptr) return nullptr;
  for (const RegistryLine& line : section->lines) {
    if (line.is_value && index-- == 0) return &line;
  }
  return nullptr;
}

bool RegistryDocument::Set(TextView path, TextView name, Text data) {
  if (!Has(path)) return false;
  Create(path);
  PutValue(*Find(path), name, std::move(data));
  return true;
}

bool RegistryDocument::Unset(TextView path, TextView name) {
  RegistrySection* const section = Find(path);
  if (section == nullptr) return false;
  const auto value = FindValue(*section, name);
  if (value == section->lines.end()) return false;
  section->lines.erase(value);
  return true;
}

}  // namespace orvik::host::posix

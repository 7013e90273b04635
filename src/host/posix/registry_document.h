// The registry as it stands in its file: keys in order, with what they hold.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/key_index.h"
#include "base/text.h"

namespace orvik::host::posix {

// A line of a key: a value, or something that isn't one and is kept as it stands.
struct RegistryLine {
  bool is_value = false;
  Text name;  // of a value; empty for the unnamed one
  Text data;  // of a value, as in the file ("\"text\"", "dword:00000001"); otherwise the whole line

  bool operator==(const RegistryLine&) const = default;
};

// A key with its lines. One whose head can't be read is kept with all of its lines and never found.
struct RegistrySection {
  Text path;  // "HKEY_LOCAL_MACHINE\SOFTWARE", or the whole head where it can't be read
  bool readable = true;
  std::vector<RegistryLine> lines;

  bool operator==(const RegistrySection&) const = default;
};

class RegistryDocument {
 public:
  // Lines in front of the first key.
  std::vector<Text> preamble;

  const std::vector<RegistrySection>& sections() const { return sections_; }

  // For the parser: the place of the key of this path, which is added at the end when it is new; of
  // a new head that can't be read; and what is at a place.
  std::size_t SectionOf(TextView path);
  std::size_t AddUnreadable(TextView head);
  RegistrySection& At(std::size_t place) { return sections_[place]; }

  // True when the key is there, by itself or because it has sub-keys.
  bool Has(TextView path) const;
  // Makes a key and its parents when missing. New keys come behind their relatives.
  void Create(TextView path);
  // Removes a key. False when it is missing or has sub-keys. Lines that can't be read stay, in the
  // place in front.
  bool Remove(TextView path);

  // The values of a key, in the order of their first writing; nullptr past the end.
  const RegistryLine* ValueAt(TextView path, std::size_t index) const;
  // Writes a value; a new one comes last, a known one keeps its place and the spelling of its name.
  // False when the key is missing.
  bool Set(TextView path, TextView name, Text data);
  // False when the key or the value is missing.
  bool Unset(TextView path, TextView name);

  bool operator==(const RegistryDocument& other) const {
    return preamble == other.preamble && sections_ == other.sections_;
  }

 private:
  std::uint32_t IndexOf(TextView path) const;
  const RegistrySection* Find(TextView path) const;
  RegistrySection* Find(TextView path);
  void Index();
  bool HasBelow(TextView path) const;

  std::vector<RegistrySection> sections_;
  KeyIndex index_;  // of readable ones, by path
};

// Puts a value into a section, in the place of one with the same name.
void PutValue(RegistrySection& section, TextView name, Text data);

}  // namespace orvik::host::posix

// Drive letters and the folders that they stand for.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/text.h"
#include "host/posix/name_codec.h"
#include "host/posix/native_path.h"

namespace orvik::host::posix {

class DriveMap {
 public:
  // Folders by capital letter, types by capital letter; a drive without a type is a fixed disk.
  DriveMap(const std::map<char16_t, std::string>& folders, const std::map<char16_t, int>& types,
           const NameCodec& codec);

  // The path as it is spelled; nothing when no file can ever stand there: no such drive, a share, a
  // character that names can't hold, a path that is empty or too long. "." and ".." are worked out
  // on the text, as Windows does it, and blanks and dots at the end are dropped.
  std::optional<NativePath> Translate(TextView path) const;

  // The path of a native file in drive form, by the deepest drive that holds it; empty when none
  // does.
  Text DriveForm(std::string_view native) const;

  // The folder that relative paths are below, in drive form.
  Text CurrentFolder() const;

  // The number for "X:" or "X:\"; drive_type::kNoRoot for a letter without a folder.
  int TypeOf(TextView drive) const;

 private:
  std::optional<NativePath> Start(TextView& path) const;
  bool AppendComponent(TextView component, bool last, NativePath& path) const;

  std::map<char16_t, std::string> folders_;
  std::map<char16_t, int> types_;
  const NameCodec& codec_;
};

}  // namespace orvik::host::posix

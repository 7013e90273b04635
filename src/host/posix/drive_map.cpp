#include "host/posix/drive_map.h"

#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "host/file_system.h"

namespace orvik::host::posix {
namespace {

// The drive that paths without a letter are on.
constexpr char16_t kCurrentDrive = u'Z';

bool IsSeparator(char16_t c) { return c == u'\\' || c == u'/'; }

bool HasDrive(TextView path) {
  return path.size() >= 2 && path[1] == u':' && ToUpper(path[0]) >= u'A' &&
         ToUpper(path[0]) <= u'Z';
}

std::string WithoutClosingSlash(std::string folder) {
  while (!folder.empty() && folder.back() == '/') folder.pop_back();
  return folder;
}

// A drive's folder without links and relative parts, so that it holds its meaning when the current
// folder changes. One that doesn't exist yet stays as given.
std::string Absolute(const std::string& folder) {
  if (char* const real = ::realpath(folder.c_str(), nullptr)) {
    std::string absolute(real);
    std::free(real);
    return WithoutClosingSlash(absolute);
  }
  return WithoutClosingSlash(folder);
}

std::string NativeCurrentFolder() {
  char buffer[PATH_MAX];
  return ::getcwd(buffer, sizeof buffer) != nullptr ? WithoutClosingSlash(buffer) : std::string();
}

}  // namespace

DriveMap::DriveMap(const std::map<char16_t, std::string>& folders,
                   const std::map<char16_t, int>& types, const NameCodec& codec)
    : types_(types), codec_(codec) {
  for (const auto& [letter, folder] : folders) folders_[letter] = Absolute(folder);
}

// Takes the drive off the front of a path and gives its folder, or the current folder for a
// relative path.
std::optional<NativePath> DriveMap::Start(TextView& path) const {
  if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) return std::nullopt;
  const bool named = HasDrive(path);
  const char16_t letter = named ? ToUpper(path[0]) : kCurrentDrive;
  if (named) path.remove_prefix(2);
  const auto drive = folders_.find(letter);
  if (drive == folders_.end()) return std::nullopt;
  NativePath start;
  start.text = drive->second;
  start.root_length = start.text.size();
  const bool relative = path.empty() || !IsSeparator(path[0]);
  if (!relative || letter != kCurrentDrive) return start;
  // Below the current folder, as long as the current drive reaches there.
  const std::string current = NativeCurrentFolder();
  if (current == start.text || current.starts_with(start.text + "/")) start.text = current;
  return start;
}

bool DriveMap::AppendComponent(TextView component, bool last, NativePath& path) const {
  if (component == u".") return true;
  if (component == u"..") {
    if (!path.IsRoot()) path.text.erase(path.text.rfind('/'));
    return true;
  }
  if (last) {
    component = component.substr(0, component.find_last_not_of(u". ") + 1);
    path.closed |= component.empty();  // nothing but blanks: the folder in front is meant
  } else if (component.ends_with(u'.')) {
    component.remove_suffix(1);
  }
  if (component.empty()) return last;
  // Windows would never let such a name come about, so it would name another file there.
  if (component.back() == u'.' || component.back() == u' ') return false;
  path.text.push_back('/');
  return codec_.AppendNative(component, path.text);
}

std::optional<NativePath> DriveMap::Translate(TextView path) const {
  if (path.empty() || path.size() > kLongestPath) return std::nullopt;
  std::optional<NativePath> native = Start(path);
  if (!native) return std::nullopt;
  while (!path.empty()) {
    if (IsSeparator(path.front())) {
      native->closed = true;
      path.remove_prefix(1);
      continue;
    }
    const auto end = std::find_if(path.begin(), path.end(), IsSeparator);
    const auto length = static_cast<std::size_t>(end - path.begin());
    native->closed = false;
    if (!AppendComponent(path.substr(0, length), length == path.size(), *native)) {
      return std::nullopt;
    }
    path.remove_prefix(length);
  }
  return native;
}

Text DriveMap::DriveForm(std::string_view native) const {
  const std::pair<const char16_t, std::string>* best = nullptr;
  for (const auto& drive : folders_) {
    const std::string& folder = drive.second;
    const bool holds = native.starts_with(folder) &&
                       (native.size() == folder.size() || native[folder.size()] == '/');
    if (holds && (best == nullptr || folder.size() > best->second.size())) best = &drive;
  }
  if (best == nullptr) return {};
  Text form{best->first, u':'};
  form += FromUtf8(native.substr(best->second.size()));
  std::replace(form.begin(), form.end(), u'/', u'\\');
  if (form.size() == 2) form += u'\\';
  return form;
}

Text DriveMap::CurrentFolder() const {
  TextView here = u".";
  const std::optional<NativePath> start = Start(here);
  if (!start) return Text{kCurrentDrive, u':', u'\\'};
  const std::string& root = folders_.at(kCurrentDrive);
  Text form{kCurrentDrive, u':'};
  form += FromUtf8(std::string_view(start->text).substr(root.size()));
  std::replace(form.begin(), form.end(), u'/', u'\\');
  return form.size() == 2 ? form + u'\\' : form;
}

int DriveMap::TypeOf(TextView drive) const {
  if (!HasDrive(drive)) return drive_type::kNoRoot;
  const char16_t letter = ToUpper(drive[0]);
  if (const auto type = types_.find(letter); type != types_.end()) return type->second;
  return folders_.contains(letter) ? drive_type::kFixed : drive_type::kNoRoot;
}

}  // namespace orvik::host::posix

#include "host/posix/trash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "host/posix/change_names.h"
#include "host/posix/native_files.h"
#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

constexpr mode_t kPrivate = 0700;
constexpr int kMostNumbered = 100'000;
constexpr std::string_view kNoteExtension = ".trashinfo";

std::optional<struct stat> StatusOf(const std::string& path) {
  struct stat status;
  if (::lstat(path.empty() ? "/" : path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

// The highest folder that is still on the same disk as the folder of a path.
std::string TopFolder(const std::string& path, dev_t disk) {
  std::string top = FolderOf(path);
  while (!top.empty()) {
    const std::string above = FolderOf(top);
    const auto status = StatusOf(above);
    if (!status || status->st_dev != disk) break;
    top = above;
  }
  return top;
}

bool IsOwnFolder(const std::string& path) {
  const auto status = StatusOf(path);
  return status && S_ISDIR(status->st_mode) && status->st_uid == ::getuid();
}

// The user's trash at the top of another disk: below the administrator's folder where there is one
// that can be trusted, else a folder of the user's own.
std::optional<std::string> TrashAtTop(const std::string& top) {
  const std::string user = std::to_string(::getuid());
  const std::string shared = top + "/.Trash";
  const auto status = StatusOf(shared);
  if (status && S_ISDIR(status->st_mode) && (status->st_mode & S_ISVTX) != 0) {
    const std::string mine = shared + "/" + user;
    ::mkdir(mine.c_str(), kPrivate);
    if (IsOwnFolder(mine)) return mine;
  }
  const std::string mine = top + "/.Trash-" + user;
  ::mkdir(mine.c_str(), kPrivate);
  if (IsOwnFolder(mine)) return mine;
  return std::nullopt;
}

// The note that tells where a thing came from and when it went.
std::string Note(const std::string& path) {
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  ::localtime_r(&now, &local);
  std::array<char, 32> date{};
  std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
  return "[Trash Info]\nPath=" + PercentEncoded(path) + "\nDeletionDate=" + date.data() + "\n";
}

// Shortens a text to a number of bytes, at the end of a character.
void Cut(std::string& text, std::size_t length) {
  if (text.size() <= length) return;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
  text.resize(length);
}

// The name of a thing in the trash: a number stands before the extension of the second one. A long
// name is cut, for its note's is longer still; the note holds all of it.
std::string NameInTrash(const std::string& name, int number) {
  const std::size_t dot = name.rfind('.');
  const std::size_t place = dot == std::string::npos || dot == 0 ? name.size() : dot;
  const std::string mark = number == 1 ? "" : "." + std::to_string(number);
  const std::size_t room = NAME_MAX - kNoteExtension.size() - mark.size();
  std::string stem = name.substr(0, place);
  std::string extension = name.substr(place);
  Cut(extension, room);
  Cut(stem, room - extension.size());
  return stem + mark + extension;
}

enum class Outcome { kMoved, kTaken, kRefused };

// Writes the note, which reserves the name, and moves the thing.
Outcome MoveUnder(const std::string& path, const std::string& trash, const std::string& name,
                  const std::string& note) {
  const std::string info = trash + "/info/" + name + std::string(kNoteExtension);
  UniqueFd fd(::open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!fd) return errno == EEXIST ? Outcome::kTaken : Outcome::kRefused;
  const bool noted = WriteNative(fd.get(), note) && fd.Close();
  if (noted && RenameNew(path.c_str(), (trash + "/files/" + name).c_str()) == 0) {
    return Outcome::kMoved;
  }
  const bool taken = noted && errno == EEXIST;
  ::unlink(info.c_str());
  return taken ? Outcome::kTaken : Outcome::kRefused;
}

bool MoveInto(const std::string& path, const std::string& trash, const std::string& noted_path) {
  if (!MakeFolders(trash + "/files", kPrivate) || !MakeFolders(trash + "/info", kPrivate)) {
    return false;
  }
  const std::string name = path.substr(path.rfind('/') + 1);
  const std::string note = Note(noted_path);
  // Thousands of things may have one name: what this process found taken isn't tried again.
  static std::unordered_map<std::string, int> numbers;
  int& number = numbers.try_emplace(trash + '/' + name, 1).first->second;
  for (; number < kMostNumbered; ++number) {
    const Outcome outcome = MoveUnder(path, trash, NameInTrash(name, number), note);
    if (outcome != Outcome::kTaken) return outcome == Outcome::kMoved;
  }
  return false;
}

}  // namespace

std::string PercentEncoded(const std::string& path) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/-_.~";
  std::string encoded;
  for (const char c : path) {
    if (kPlain.find(c) != std::string_view::npos) {
      encoded += c;
      continue;
    }
    std::array<char, 4> code{};
    std::snprintf(code.data(), code.size(), "%%%02X", static_cast<unsigned char>(c));
    encoded += code.data();
  }
  return encoded;
}

bool MoveToTrash(const std::string& path) {
  const auto thing = StatusOf(FolderOf(path));
  if (!thing) return false;
  const std::string data = DataHome();
  const std::string home_trash = data + "/Trash";
  MakeFolders(data, kPrivate);
  const auto home = StatusOf(data);
  if (home && home->st_dev == thing->st_dev) return MoveInto(path, home_trash, path);
  const std::string top = TopFolder(path, thing->st_dev);
  const std::optional<std::string> trash = TrashAtTop(top);
  return trash && MoveInto(path, *trash, path.substr(top.size() + 1));
}

}  // namespace orvik::host::posix

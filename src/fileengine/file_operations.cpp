#include "fileengine/file_operations.h"

#include <new>
#include <stdexcept>
#include <string>

#include "base/failure.h"
#include "fileengine/checksums.h"
#include "host/host.h"

namespace orvik::mdlSupport {

namespace {

// Room for a text of a length; throws Failure when it can't be had.
void Reserve(Text& text, std::int32_t length) {
  if (length < 0) throw Failure{};
  try {
    text.reserve(static_cast<std::size_t>(length));
  } catch (const std::bad_alloc&) {
    throw Failure{};
  } catch (const std::length_error&) {
    throw Failure{};
  }
}

// How much of a file goes through the code page at a time. What lies in between stays in the cache.
constexpr std::size_t kChunk = 1 << 16;

// Decodes up to `length` bytes of a file behind a text that has room for them. Fewer come when the
// file ends early.
void ReadBehind(host::File& file, std::size_t length, Text& text) {
  const auto& characters = host::TheSystem().AnsiPage().characters();
  std::string bytes(std::min(kChunk, length), '\0');
  while (text.size() < length) {
    const std::size_t at = text.size();
    const std::size_t wanted = std::min(bytes.size(), length - at);
    const auto count = file.ReadAt(static_cast<std::int64_t>(at), std::span(bytes.data(), wanted));
    if (!count || *count == 0) return;
    text.resize(at + *count);
    char16_t* const data = text.data() + at;
    for (std::size_t i = 0; i < *count; ++i) {
      data[i] = characters[static_cast<unsigned char>(bytes[i])];
    }
  }
}

}  // namespace

Text ReadWholeFile(const Text& path) {
  Text content;
  std::size_t length = 0;
  Attempt([&] {
    const std::int32_t bytes = FileLength(path);
    Reserve(content, bytes);
    length = static_cast<std::size_t>(bytes);
  });
  if (const auto file = host::Files().Open(path, host::OpenMode::kReadWriteCreate)) {
    ReadBehind(*file, length, content);
  }
  content.resize(length, u' ');
  return content;
}

void AppendToFile(TextView content, const Text& path, Flag append) {
  if (append == kFalse) DeleteOneFile(path);
  const auto file = host::Files().Open(path, host::OpenMode::kReadWriteCreate);
  if (!file) return;
  const auto length = file->Length();
  if (!length) return;
  const CodePage& page = host::TheSystem().AnsiPage();
  for (std::size_t at = 0; at < content.size(); at += kChunk) {
    const std::string bytes = page.Encode(content.substr(at, kChunk));
    if (!file->WriteAt(*length + static_cast<std::int64_t>(at), bytes)) return;
  }
}

void CopyOneFile(const Text& source, const Text& target, Flag overwrite) {
  host::Files().CopyFile(source, target, overwrite == kFalse);
}

void MoveOneFile(const Text& source, const Text& target, Flag replace) {
  host::Files().MoveFile(source, target, replace != kFalse);
}

void DeleteOneFile(const Text& path) {
  if (host::Files().PathExists(path)) host::Files().SetAttributes(path, 0);
  host::Files().DeleteFile(path);
}

void RecycleFile(const Text& path) { host::TheShell().Recycle(path, host::Questions::kAsked); }

}  // namespace orvik::mdlSupport

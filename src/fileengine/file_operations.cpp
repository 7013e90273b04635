#include "fileengine/file_operations.h"

#include <new>
#include <stdexcept>
#include <string>

#include "base/failure.h"
#include "fileengine/checksums.h"
#include "host/host.h"

namespace orvik::mdlSupport {

namespace {

// A text of blanks; throws Failure when it can't be had.
Text Blanks(std::int32_t length) {
  if (length < 0) throw Failure{};
  try {
    return Text(static_cast<std::size_t>(length), u' ');
  } catch (const std::bad_alloc&) {
    throw Failure{};
  } catch (const std::length_error&) {
    throw Failure{};
  }
}

// How much of a file goes through the code page at a time.
constexpr std::size_t kChunk = 1 << 16;

// Decodes a file into a buffer of its length; the rest stays as it is where the file ends early.
void ReadInto(host::File& file, Text& buffer) {
  const auto& characters = host::TheSystem().AnsiPage().characters();
  std::string bytes(std::min(kChunk, buffer.size()), '\0');
  for (std::size_t at = 0; at < buffer.size();) {
    const std::size_t wanted = std::min(bytes.size(), buffer.size() - at);
    const auto count = file.ReadAt(static_cast<std::int64_t>(at), std::span(bytes.data(), wanted));
    if (!count || *count == 0) return;
    for (std::size_t i = 0; i < *count; ++i) {
      buffer[at + i] = characters[static_cast<unsigned char>(bytes[i])];
    }
    at += *count;
  }
}

}  // namespace

Text ReadWholeFile(const Text& path) {
  Text buffer;
  Attempt([&] { buffer = Blanks(FileLength(path)); });
  if (const auto file = host::Files().Open(path, host::OpenMode::kReadWriteCreate)) {
    ReadInto(*file, buffer);
  }
  return buffer;
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

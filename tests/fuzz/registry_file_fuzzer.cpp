// Any bytes as a registry file: reading never fails, what is written reads the same again, and
// whatever was in the file is still in it.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "host/posix/registry_data.h"
#include "host/posix/registry_text.h"

namespace {

using namespace orvik;
using namespace orvik::host::posix;

void Check(bool holds) {
  if (!holds) std::abort();
}

// All the pieces that the file is made of, in a comparable form: each line that isn't a value, and
// the name of each value.
std::vector<Text> Pieces(const RegistryDocument& document) {
  std::vector<Text> pieces(document.preamble);
  for (const RegistrySection& section : document.sections()) {
    pieces.push_back(section.path);
    for (const RegistryLine& line : section.lines) {
      pieces.push_back(line.is_value ? section.path + u"\n" + line.name : line.data);
    }
  }
  std::sort(pieces.begin(), pieces.end());
  return pieces;
}

// Every line that can't be a value or a part of one, because it has no "=" and isn't bytes, must
// stand in the output.
void CheckLines(TextView input, TextView output) {
  for (TextView line : Split(input, u"\n")) {
    const std::size_t last = line.find_last_not_of(u" \t\r");
    line = line.substr(0, last + 1);
    if (line.find(u'=') != TextView::npos || line.starts_with(u'[')) continue;
    if (line.find_first_not_of(u"0123456789abcdefABCDEF, \t\\\r") == TextView::npos) continue;
    Check(output.find(line) != TextView::npos);
  }
}

// Changes another key, as the program would, and sees that nothing else moved.
void CheckChange(RegistryDocument document) {
  const std::vector<Text> before = Pieces(document);
  const Text key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Fuzzed\\\u0416";
  if (document.Has(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Fuzzed")) return;
  document.Create(key);
  Check(document.Set(key, u"name\n\"\\", RegistryData(1, u"data\"\\", "")));
  const RegistryDocument after = ParseRegistry(WriteRegistry(document));
  Check(after == document);
  const RegistryLine* const value = after.ValueAt(key, 0);
  Check(value != nullptr && value->name == u"name\n\"\\");
  Check(TextOfRegistryData(value->data) == u"data\"\\");
  const std::vector<Text> now = Pieces(after);
  Check(std::includes(now.begin(), now.end(), before.begin(), before.end()));
  for (const RegistrySection& section : after.sections()) {
    for (const RegistryLine& line : section.lines) TextOfRegistryData(line.data);
  }
}

// Takes a key out; what wasn't a value must stay.
void CheckRemoval(RegistryDocument document) {
  if (document.sections().empty()) return;
  const RegistrySection& section = document.sections()[document.sections().size() / 2];
  if (!section.readable) return;
  const Text path = section.path;
  if (!document.Remove(path)) return;
  Check(!document.Has(path));
  Check(ParseRegistry(WriteRegistry(document)) == document);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const RegistryFileText file = DecodeRegistryFile(bytes);
  if (file.faithful && !bytes.empty()) Check(EncodeRegistryFile(file.text, file.encoding) == bytes);
  const RegistryDocument document = ParseRegistry(file.text);
  const Text written = WriteRegistry(document);
  Check(ParseRegistry(written) == document);
  CheckLines(file.text, written);
  CheckChange(document);
  CheckRemoval(document);
  return 0;
}

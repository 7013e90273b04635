#include "monitors/text_finder.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace orvik {

namespace {

// From the most frequent character of Russian and English files to the rarest; what isn't among
// them is rarer still.
constexpr TextView kFrequent =
    u" еoаeиtнaтiсnрsвrлhкdпlмcуuяm\r\nыfьpзgбwгy,.чbй0хv1жk2-шю=/:\"();3456789щц_эфxjqzъё";

std::size_t Rarity(char16_t c) { return std::min(kFrequent.find(ToLower(c)), kFrequent.size()); }

// What the search by marks may spend on places where the text doesn't stand after all: beyond that
// the steady pace of the search by borders is faster.
constexpr std::size_t kPatience = 1024;
constexpr std::size_t kPatiencePerByte = 4;
constexpr std::size_t kCostOfPlace = 8;

}  // namespace

TextFinder::TextFinder(TextView text, const CodePage& page, const ScanKernel& kernel)
    : possible_(Fold(text, page)), kernel_(&kernel) {
  if (!possible_ || text.empty()) return;
  ChooseMarks(text);
  FindBorders();
}

// Folds the page and the text. False when a character of the text has no byte.
bool TextFinder::Fold(TextView text, const CodePage& page) {
  std::map<char16_t, unsigned char> first;  // bytes, by capital
  for (std::size_t i = 0; i < sieve_.folded.size(); ++i) {
    const auto byte = static_cast<unsigned char>(i);
    sieve_.folded[i] = first.try_emplace(ToUpper(page.characters()[i]), byte).first->second;
  }
  for (const char16_t c : text) {
    const auto byte = first.find(ToUpper(c));
    if (byte == first.end()) return false;
    wanted_.push_back(byte->second);
  }
  return true;
}

// The two rarest characters, at different places where there are two places.
void TextFinder::ChooseMarks(TextView text) {
  std::vector<std::size_t> places(text.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  const std::size_t wanted = std::min(places.size(), sieve_.marks.size());
  std::partial_sort(
      places.begin(), places.begin() + static_cast<std::ptrdiff_t>(wanted), places.end(),
      [&](std::size_t a, std::size_t b) { return Rarity(text[a]) > Rarity(text[b]); });
  for (std::size_t i = 0; i < sieve_.marks.size(); ++i) {
    sieve_.marks[i] = MarkAt(places[std::min(i, wanted - 1)]);
  }
}

Sieve::Mark TextFinder::MarkAt(std::size_t offset) {
  Sieve::Mark mark = {offset, wanted_[offset], {}};
  std::size_t count = 0;
  for (std::size_t byte = 0; byte < sieve_.folded.size(); ++byte) {
    if (sieve_.folded[byte] != mark.folded) continue;
    if (count == 0) mark.spellings.fill(static_cast<unsigned char>(byte));
    mark.spellings[std::min<std::size_t>(count++, 1)] = static_cast<unsigned char>(byte);
  }
  if (count > mark.spellings.size()) kernel_ = &ScanKernels().back();
  return mark;
}

void TextFinder::FindBorders() {
  borders_.assign(wanted_.size(), 0);
  for (std::size_t i = 1, border = 0; i < wanted_.size(); ++i) {
    while (border > 0 && wanted_[i] != wanted_[border]) border = borders_[border - 1];
    if (wanted_[i] == wanted_[border]) ++border;
    borders_[i] = border;
  }
}

bool TextFinder::FoundIn(std::span<const char> content) const {
  if (content.empty() || !possible_) return false;
  if (wanted_.empty()) return true;
  if (content.size() < wanted_.size()) return false;
  const std::span bytes(reinterpret_cast<const unsigned char*>(content.data()), content.size());
  const std::size_t places = bytes.size() - wanted_.size() + 1;
  std::size_t spent = 0;
  for (std::size_t at = 0;; ++at) {
    at = kernel_->next(sieve_, bytes.data(), at, places);
    if (at == places) return false;
    const std::size_t matching = MatchingFrom(bytes.data() + at);
    if (matching == wanted_.size()) return true;
    spent += kCostOfPlace + matching;
    if (spent > kPatience + kPatiencePerByte * at) return FoundByBorders(bytes.subspan(at + 1));
  }
}

// How many characters of the text stand here.
std::size_t TextFinder::MatchingFrom(const unsigned char* place) const {
  std::size_t count = 0;
  while (count < wanted_.size() && sieve_.folded[place[count]] == wanted_[count]) ++count;
  return count;
}

// The search of Knuth, Morris and Pratt, which takes a step a byte whatever the text.
bool TextFinder::FoundByBorders(std::span<const unsigned char> bytes) const {
  std::size_t matching = 0;
  for (const unsigned char byte : bytes) {
    const unsigned char folded = sieve_.folded[byte];
    while (matching > 0 && wanted_[matching] != folded) matching = borders_[matching - 1];
    if (wanted_[matching] == folded) ++matching;
    if (matching == wanted_.size()) return true;
  }
  return false;
}

}  // namespace orvik

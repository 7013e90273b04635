// Looks for one text in many files, blind to letter case.
#pragma once

#include <span>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "monitors/text_scan.h"

namespace orvik {

class TextFinder {
 public:
  // The text as it was typed; a character that the code page lacks is found nowhere.
  TextFinder(TextView text, const CodePage& page, const ScanKernel& kernel = ScanKernels().front());

  // True when the text stands somewhere in a content of one byte a character. The empty text stands
  // in every content that isn't empty. Takes time in proportion to the content, whatever the text.
  bool FoundIn(std::span<const char> content) const;

 private:
  bool Fold(TextView text, const CodePage& page);
  void ChooseMarks(TextView text);
  void FindBorders();
  Sieve::Mark MarkAt(std::size_t offset);
  std::size_t MatchingFrom(const unsigned char* place) const;
  bool FoundByBorders(std::span<const unsigned char> bytes) const;

  Sieve sieve_ = {};
  std::vector<unsigned char> wanted_;  // folded
  // How much of the text's beginning ends, too, where the first 1, 2, ... characters of it end.
  std::vector<std::size_t> borders_;
  bool possible_;
  const ScanKernel* kernel_;
};

}  // namespace orvik

// Small edits of texts: quotes around them, pieces found, replaced and cut.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// The text with a double quote at both ends. One that stands there already serves, so a lone quote
// stays alone, and an empty text becomes one quote.
Text QuotePath(TextView text);
// The text without a double quote at its front and without one at its end, at most one each.
Text StripQuotes(TextView text);

// The index of a piece's first occurrence from an index on, letter case ignored; npos when absent.
std::size_t FindNoCase(TextView text, TextView piece, std::size_t from = 0);

// Replaces a piece, exactly as it is written, as long as there is one. Each search begins at the
// front again, so pieces that a replacement makes are replaced too, and a replacement that holds
// the piece never ends. The piece isn't empty.
Text ReplaceText(TextView text, TextView what, TextView by);

// Cuts what follows the last occurrence of a piece, letter case ignored. Occurrences don't overlap.
// Without one the text stays.
void CutBehindLast(Text& text, TextView piece);

}  // namespace orvik::mdlSupport

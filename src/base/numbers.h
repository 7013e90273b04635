// Numbers as texts, and texts as numbers.
#pragma once

#include <cstdint>

#include "base/text.h"

namespace orvik {

// Decimal digits with a leading minus where negative: -5, 0, 12.
Text Decimal(std::int64_t value);

// Decimal digits with a blank in front where not negative, a minus otherwise. The blank is often
// the only separator between a caption and its number.
Text SpacedDecimal(std::int64_t value);

// At least `places` digits, zeros in front, behind a minus where negative: the formats "0", "00",
// "000" are 1, 2, 3 places. 0 places is the format "#", which gives nothing for zero.
Text Padded(std::int64_t value, int places);

// The number at the head of a text, 0 where there is none. Blanks, tabs and line feeds are passed
// over, also between digits; a sign, one decimal point and an exponent (E or D) are understood.
double NumericReading(TextView text);

}  // namespace orvik

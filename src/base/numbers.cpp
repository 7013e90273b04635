#include "base/numbers.h"

#include <cstdlib>
#include <string>

namespace orvik {

namespace {

Text Digits(std::uint64_t value) {
  Text digits;
  do {
    digits.insert(digits.begin(), static_cast<char16_t>(u'0' + value % 10));
    value /= 10;
  } while (value != 0);
  return digits;
}

std::uint64_t Magnitude(std::int64_t value) {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

}  // namespace

Text Decimal(std::int64_t value) { return (value < 0 ? u"-" : u"") + Digits(Magnitude(value)); }

Text SpacedDecimal(std::int64_t value) {
  return (value < 0 ? u"-" : u" ") + Digits(Magnitude(value));
}

Text Padded(std::int64_t value, int places) {
  if (value == 0 && places == 0) return {};
  Text digits = Digits(Magnitude(value));
  if (digits.size() < static_cast<std::size_t>(places)) {
    digits.insert(0, static_cast<std::size_t>(places) - digits.size(), u'0');
  }
  return (value < 0 ? u"-" : u"") + digits;
}

double NumericReading(TextView text) {
  // The text without its white space, as far as a number reaches.
  std::string number;
  bool point = false;
  bool exponent = false;
  for (char16_t c : text) {
    if (c == u' ' || c == u'\t' || c == u'\n') continue;
    const bool after_exponent = !number.empty() && number.back() == 'e';
    const bool digit = c >= u'0' && c <= u'9';
    const bool sign = (c == u'+' || c == u'-') && (number.empty() || after_exponent);
    if (digit || sign) {
      number.push_back(static_cast<char>(c));
    } else if (c == u'.' && !point && !exponent) {
      point = true;
      number.push_back('.');
    } else if ((c == u'e' || c == u'E' || c == u'd' || c == u'D') && !exponent) {
      exponent = true;
      number.push_back('e');
    } else {
      break;
    }
  }
  return std::strtod(number.c_str(), nullptr);
}

}  // namespace orvik

#include "forms/headless/values.h"

#include <charconv>
#include <chrono>

namespace orvik::forms::headless {

std::optional<std::int64_t> ReadNumber(std::string_view digits, std::int64_t largest) {
  std::int64_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || stop != end || number < 0 || number > largest) return std::nullopt;
  if (digits[0] == '-') return std::nullopt;
  return number;
}

std::optional<host::DateTime> ReadDateTime(std::string_view text) {
  constexpr std::string_view kShape = "dddd-dd-dd dd:dd:dd";
  if (text.size() != kShape.size()) return std::nullopt;
  for (std::size_t i = 0; i < kShape.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (kShape[i] == 'd' ? !digit : text[i] != kShape[i]) return std::nullopt;
  }
  const auto number = [&](std::size_t at, std::size_t length) {
    return static_cast<int>(*ReadNumber(text.substr(at, length)));
  };
  const host::DateTime read = {number(0, 4),  number(5, 2),  number(8, 2),
                               number(11, 2), number(14, 2), number(17, 2)};
  const std::chrono::year_month_day date(std::chrono::year(read.year),
                                         std::chrono::month(static_cast<unsigned>(read.month)),
                                         std::chrono::day(static_cast<unsigned>(read.day)));
  if (!date.ok() || read.hour > 23 || read.minute > 59 || read.second > 59) return std::nullopt;
  return read;
}

std::optional<KeyPath> ReadKeyPath(TextView key) {
  constexpr TextView kMachine = u"HKEY_LOCAL_MACHINE\\";
  constexpr TextView kClasses = u"HKEY_CLASSES_ROOT\\";
  for (const auto& [prefix, root] :
       {std::pair(kMachine, host::kLocalMachine), std::pair(kClasses, host::kClassesRoot)}) {
    if (key.size() > prefix.size() && EqualNoCase(key.substr(0, prefix.size()), prefix)) {
      return KeyPath{root, Text(key.substr(prefix.size()))};
    }
  }
  return std::nullopt;
}

host::DateTime Later(const host::DateTime& start, std::int64_t milliseconds) {
  using namespace std::chrono;
  const sys_days day = year_month_day(year(start.year), month(static_cast<unsigned>(start.month)),
                                      std::chrono::day(static_cast<unsigned>(start.day)));
  const sys_seconds time = day + hours(start.hour) + minutes(start.minute) + seconds(start.second) +
                           seconds(milliseconds / 1000);
  const auto date = floor<days>(time);
  const year_month_day ymd(date);
  const hh_mm_ss clock(time - date);
  return {static_cast<int>(ymd.year()),
          static_cast<int>(static_cast<unsigned>(ymd.month())),
          static_cast<int>(static_cast<unsigned>(ymd.day())),
          static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count()),
          static_cast<int>(clock.seconds().count())};
}

}  // namespace orvik::forms::headless

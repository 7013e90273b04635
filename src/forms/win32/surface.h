// What a form has drawn on itself.
#pragma once

#include <vector>

#include "forms/form.h"
#include "forms/win32/metrics.h"

namespace orvik::forms::win32 {

// Remembers the lines for repaints, at any resolution. One that is drawn where an older one was
// covers it wholly, so the older one is forgotten: a form that moves a mark about for days needs
// no more memory than it has places for the mark.
class Surface {
 public:
  void Add(const DrawnLine& line);
  void Paint(HDC context, const Metrics& metrics) const;
  bool empty() const { return lines_.empty(); }
  const std::vector<DrawnLine>& lines() const { return lines_; }

 private:
  std::vector<DrawnLine> lines_;  // the last one on top
};

// The part of a window that a line lies in.
RECT AreaOf(const DrawnLine& line, const Metrics& metrics);

}  // namespace orvik::forms::win32

#include "forms/win32/surface.h"

#include <algorithm>

#include "forms/win32/handles.h"

namespace orvik::forms::win32 {

namespace {

bool SamePlace(const DrawnLine& one, const DrawnLine& other) {
  return one.x1 == other.x1 && one.y1 == other.y1 && one.x2 == other.x2 && one.y2 == other.y2;
}

void PaintLine(HDC context, const DrawnLine& line, const Metrics& metrics) {
  // The pen of the context takes a colour without a new object for each line.
  SetDCPenColor(context, line.color);
  MoveToEx(context, metrics.Pixels(line.x1), metrics.Pixels(line.y1), nullptr);
  LineTo(context, metrics.Pixels(line.x2), metrics.Pixels(line.y2));
}

}  // namespace

void Surface::Add(const DrawnLine& line) {
  std::erase_if(lines_, [&](const DrawnLine& older) { return SamePlace(older, line); });
  lines_.push_back(line);
}

void Surface::Paint(HDC context, const Metrics& metrics) const {
  const Selected pen(context, GetStockObject(DC_PEN));
  for (const DrawnLine& line : lines_) PaintLine(context, line, metrics);
}

RECT AreaOf(const DrawnLine& line, const Metrics& metrics) {
  return {metrics.Pixels(std::min(line.x1, line.x2)), metrics.Pixels(std::min(line.y1, line.y2)),
          metrics.Pixels(std::max(line.x1, line.x2)) + 1,
          metrics.Pixels(std::max(line.y1, line.y2)) + 1};
}

}  // namespace orvik::forms::win32

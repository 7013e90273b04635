// Lines of a run of the demo form, and handlers that write some.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "unit/forms/headless/demo.h"

namespace orvik::forms::headless {

inline constexpr char kShow[] = R"({"event":"show","form":"frmDemo"})";
inline constexpr char kUnload[] = R"({"event":"unload","form":"frmDemo"})";
inline std::string End(const std::string& reason) {
  return R"({"event":"end","reason":")" + reason + "\"}";
}
inline std::string Note(const std::string& text) {
  return R"({"event":"clipboard","text":")" + text + "\"}";
}
inline auto Error(int line) {
  return testing::HasSubstr(R"({"event":"error","line":)" + std::to_string(line) + R"(,"text":")");
}
inline void Noting(Control& control, const std::string& text) {
  control.on_click = [text] { Demo::Note(text); };
}
// Notes the time of the run.
inline std::string Time() { return std::to_string(host::TheSystem().Ticks()); }

}  // namespace orvik::forms::headless

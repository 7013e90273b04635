#include "unit/forms/headless/demo.h"

#include <gtest/gtest.h>

#include "forms/front_end.h"
#include "forms/instance.h"

namespace orvik::forms::headless {

Demo::Demo() {
  program = [this](const Text&) {
    frmDemo& form = The<frmDemo>();
    form.load = prepare;
    form.Show();
  };
}

Played Demo::Run(const std::string& script, std::vector<std::string> options) {
  std::string reason;
  options.emplace_back("/SCH T:\\x");
  const auto parsed = ParseOptions(options, Platform::kPosix, reason);
  EXPECT_TRUE(parsed) << reason;
  const auto lines = ParseScript(script, reason);
  EXPECT_TRUE(lines) << reason;
  if (!parsed || !lines) return {};
  std::string output;
  Played played;
  played.status = Play(*parsed, *lines, host.services(), program,
                       [&](std::string_view bytes) { output += bytes; });
  ForgetForms();
  EXPECT_TRUE(output.ends_with('\n'));
  for (std::size_t at = 0, end; (end = output.find('\n', at)) != std::string::npos; at = end + 1) {
    played.lines.push_back(output.substr(at, end - at));
  }
  return played;
}

void Demo::Note(const std::string& text) { Front().PutOnClipboard(FromUtf8(text)); }

}  // namespace orvik::forms::headless

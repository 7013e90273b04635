// The program from its arguments to its exit status, on the host of the system at hand.
#include "forms/headless/run.h"

#include <gmock/gmock.h>

#include <cstdio>

#include "forms/front_end.h"
#include "forms/headless/native.h"
#include "forms/instance.h"
#include "unit/forms/headless/demo.h"

namespace orvik::forms::headless {
namespace {

using testing::HasSubstr;

struct Outcome {
  int status;
  std::string out, err;
};

class RunTest : public testing::Test {
 protected:
  RunTest() : script_(testing::TempDir() + "orvik_run_test_script") {
    if (ThisPlatform() == Platform::kPosix) {
      options_ = {"--registry=" + testing::TempDir() + "orvik_run_test_registry",
                  "--drive=C=" + testing::TempDir()};
    }
  }
  ~RunTest() override {
    std::remove(script_.c_str());
    std::remove((testing::TempDir() + "orvik_run_test_registry").c_str());
  }
  Outcome Run(const std::vector<std::string>& arguments) {
    std::vector<std::string> all = options_;
    all.insert(all.end(), arguments.begin(), arguments.end());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = RunProcess(all, [&](const Text& line) {
      line_ = line;
      if (program_) program_();
    });
    return {status, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
  }
  void WriteScript(const std::string& text) {
    std::FILE* const file = std::fopen(script_.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
  }

  const std::string script_;
  std::vector<std::string> options_;
  std::function<void()> program_;
  std::optional<Text> line_;  // what the program got
};

TEST_F(RunTest, TheProgramGetsItsLineAndTheTranscriptEnds) {
  const Outcome outcome = Run({"/CRC T:\\Папка с пробелами "});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "{\"event\":\"end\",\"reason\":\"returned\"}\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(line_, u"/CRC T:\\Папка с пробелами ");
}

TEST_F(RunTest, ABadOptionIsToldAndNothingRuns) {
  const Outcome outcome = Run({"--nonsense", "x"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("--nonsense"));
  EXPECT_EQ(line_, std::nullopt);
}

TEST_F(RunTest, ABadScriptIsToldBeforeAnythingRuns) {
  WriteScript("wait 5\nclick\n");
  const Outcome outcome = Run({"--script", script_, "x"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("script line 2: "));
  EXPECT_EQ(line_, std::nullopt);
}

TEST_F(RunTest, AMissingScriptIsTold) {
  const Outcome outcome = Run({"--script", script_ + "_none", "x"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("_none"));
}

TEST_F(RunTest, ValuesOfTheRegistryAreThereBeforeTheStart) {
  WriteScript("registry \"HKEY_LOCAL_MACHINE\\\\SOFTWARE\\\\Ib Tarn\\\\Test\"\nclose frmDemo\n");
  program_ = [] { The<frmDemo>().Show(); };
  const Outcome outcome =
      Run({"--reg", "HKEY_LOCAL_MACHINE\\SOFTWARE\\Ib Tarn\\Test|a|Раз", "--reg",
           "HKEY_LOCAL_MACHINE\\SOFTWARE\\Ib Tarn\\Test|b|", "--script", script_, "x"});
  EXPECT_THAT(
      outcome.out,
      HasSubstr(
          R"({"event":"registry","key":"HKEY_LOCAL_MACHINE\\SOFTWARE\\Ib Tarn\\Test","values":[["a","Раз"],["b",""]]})"));
  EXPECT_THAT(outcome.out, testing::EndsWith("{\"event\":\"end\",\"reason\":\"closed\"}\n"));
}

TEST_F(RunTest, LimitsHaveTheirExitStatus) {
  program_ = [] {
    while (true) Front().WaitForInput(1000), Yield();
  };
  EXPECT_EQ(Run({"--max-time", "5000", "x"}).status, 4);
  program_ = [] {
    while (true) host::Files().PathExists(u"C:\\");
  };
  EXPECT_EQ(Run({"--max-calls", "50", "x"}).status, 3);
}

}  // namespace
}  // namespace orvik::forms::headless

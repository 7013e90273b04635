// The file engine on the real file system, without forms: what a job costs before anything is
// shown.
//
//   orvik-bench-engine walk FOLDER   WalkFiles
//   orvik-bench-engine fast FOLDER   WalkFiles, then the fast checksum of each file
//   orvik-bench-engine blocks FOLDER the same with the blocks of a duplicate search
//   orvik-bench-engine full FILE     the full checksum of a file
//
// Paths are Linux paths. Prints the number of files, and behind it the sum of their checksums.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "fileengine/checksums.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "host/posix/posix_host.h"

namespace {

using namespace orvik;

// Nobody to show anything to: a yield returns at once.
class NoFrontEnd : public forms::FrontEnd {
 public:
  void Load(forms::Form&) override {}
  void Show(forms::Form&) override {}
  void ShowModal(forms::Form&) override {}
  void PopUp(forms::Menu&) override {}
  void Draw(forms::Form&, const forms::DrawnLine&) override {}
  void Unload(forms::Form&) override {}
  void Unloaded(forms::Form&) override {}
  void Changed(forms::Form&, forms::Change) override {}
  void Changed(forms::Control&, forms::Change) override {}
  void Repaint(forms::Control&) override {}
  void Yield() override {}
  bool WaitForInput(std::int32_t) override { return false; }
  void Run() override {}
  [[noreturn]] void EndProcess(forms::EndReason) override { std::exit(0); }
  forms::Answer Message(const Text&, const Text&, forms::Icon, forms::Buttons) override {
    return forms::Answer::kOk;
  }
  Text AskText(const Text&, const Text&) override { return {}; }
  std::optional<Text> AskFolder(const Text&, forms::Form*) override { return std::nullopt; }
  std::optional<Text> AskFileName(forms::FileDialog, const Text&, forms::Form*) override {
    return std::nullopt;
  }
  void PutOnClipboard(const Text&) override {}
  void Drag(forms::Form&) override {}
  forms::TwipsPerPixel Scale() override { return {}; }
};

std::vector<Text> Walk(Text root) {
  std::vector<Text> files;
  mdlSupport::WalkFiles(root, u"*", files, kFalse);
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() != 2 || !arguments[1].starts_with('/')) {
    std::fprintf(stderr, "usage: orvik-bench-engine walk|fast|blocks|full /PATH\n");
    return 2;
  }
  host::posix::Options options;
  options.drives[u'Z'] = "/";
  host::posix::PosixHost host(options);
  host::Install(host.services());
  NoFrontEnd front_end;
  forms::Install(front_end);
  mdlSupport::InitCRCTable();

  const std::string& job = arguments[0];
  const Text path = host.DriveForm(arguments[1]);
  std::int64_t sum = 0;
  std::size_t files = 1;
  if (job == "full") {
    sum = mdlSupport::GetFileCRC(path);
  } else {
    const auto list = Walk(path);
    files = list.size();
    const std::int32_t block = job == "blocks" ? 32768 : 0;
    if (job == "fast" || job == "blocks") {
      for (const Text& file : list) sum += mdlSupport::GetFastCRC(file, block);
    }
  }
  std::printf("%zu %lld\n", files, static_cast<long long>(sum));
  return 0;
}

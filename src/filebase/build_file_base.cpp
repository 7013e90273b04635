#include "filebase/build_file_base.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "filebase/frm_file_base.h"
#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "forms/instance.h"
#include "host/host.h"

namespace orvik::mdlMain {

namespace {

bool Exists(const Text& path) { return host::Files().PathExists(path); }

// One run of BuildFileBase.
class Pouring {
 public:
  Pouring(std::vector<Text> files, const Text& file_prefix, bool move, bool keep_names)
      : files_(std::move(files)), file_prefix_(file_prefix), move_(move), keep_names_(keep_names) {}

  // Fills one folder, which ends in a backslash.
  void Fill(const Text& folder, std::int32_t capacity) {
    for (std::int32_t j = 0; j < capacity; ++j) {
      // Behind the last file the name stays that of the last one. Where that was put into this
      // folder, this goes round for ever.
      do {
        Attempt([&] { ++k_; });
        Attempt([&] { name_ = NameOf(File()); });
      } while (Exists(folder + name_));
      Attempt([&] { Place(File(), folder + name_); });
      if (k_ % 100 == 0) ShowProgress();
    }
  }

 private:
  const Text& File() const {
    if (k_ < 0 || static_cast<std::size_t>(k_) >= files_.size()) throw Failure{};
    return files_[static_cast<std::size_t>(k_)];
  }

  Text NameOf(const Text& path) const {
    if (keep_names_) return Text(mdlSupport::GetFileName(path));
    return file_prefix_ + Padded(k_, 3) + Text(TextAfterLast(path, u"."));
  }

  void Place(const Text& source, const Text& target) const {
    if (move_) {
      mdlSupport::MoveOneFile(source, target, kFalse);
    } else {
      mdlSupport::CopyOneFile(source, target, kFalse);
    }
  }

  void ShowProgress() const {
    auto& bar = forms::The<frmFileBase>().pbMain;
    Attempt([&] { bar.SetValue(k_); });
    bar.Repaint();
    forms::Yield();
  }

  const std::vector<Text> files_;
  const Text& file_prefix_;
  const bool move_;
  const bool keep_names_;
  Int32 k_ = -1;  // the number of the file at hand, over all folders
  Text name_;
};

// The number of the last folder, which is one more than full folders need. Throws Failure for the
// capacity 0.
std::int32_t LastFolder(std::int32_t files, std::int32_t capacity) {
  if (capacity == 0) throw Failure{};
  return RoundToInt32(std::floor(static_cast<double>(files) / capacity));
}

}  // namespace

TextView TextAfterLast(TextView text, TextView separator) {
  const Text folded = ToLower(text);
  const std::size_t at = folded.rfind(ToLower(separator));
  return at == Text::npos ? TextView() : text.substr(at + separator.size());
}

void BuildFileBase(const std::vector<Text>& sources, Text location, std::int32_t capacity,
                   const Text& folder_prefix, const Text& file_prefix, const Text& masks, Flag move,
                   const Text& keep_names) {
  std::vector<Text> files;
  for (Text source : sources) {
    if (Exists(source)) Attempt([&] { mdlSupport::WalkFiles(source, masks, files, kFalse); });
  }
  const std::int32_t last = mdlSupport::UpperBoundOrMinusOne(files);
  if (last == -1) return;
  Attempt([&] { forms::The<frmFileBase>().pbMain.SetMax(last); });
  mdlSupport::EnsureBackslash(location);
  // Without an end that could be worked out, the first folder is gone through again and again.
  std::int32_t last_folder = 0;
  std::int32_t step = 0;
  Attempt([&] {
    last_folder = LastFolder(last + 1, capacity);
    step = 1;
  });
  Pouring pouring(std::move(files), file_prefix, move != kFalse, keep_names == u"True");
  for (std::int32_t d = 0; d <= last_folder; d += step) {
    Text folder = location + folder_prefix + Padded(d, 3);
    mdlSupport::CreateFolderPath(folder);
    if (!Exists(folder)) {
      forms::Front().Message(u"Не могу создать каталог (" + folder + u")", u"", forms::Icon::kNone,
                             forms::Buttons::kOk);
      return;
    }
    mdlSupport::EnsureBackslash(folder);
    pouring.Fill(folder, capacity);
  }
}

}  // namespace orvik::mdlMain

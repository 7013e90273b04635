#include "base/failure.h"
#include "base/keyed_collection.h"
#include "base/numbers.h"
#include "copying/checksum_index.h"
#include "copying/copy_job.h"
#include "copying/frm_main.h"
#include "fileengine/checksums.h"
#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "forms/instance.h"
#include "host/host.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

std::vector<Text> CachedFileList;

namespace {

using mdlSupport::CreateFolderPath;
using mdlSupport::GetFileName;
using mdlSupport::GetFolderPath;

// One run of CopyFolderTree.
class CopyRun {
 public:
  CopyRun(Text from, Text to, const Text& new_files_folder, const Text& checksum_list)
      : from_(std::move(from)), to_(std::move(to)) {
    mdlSupport::EnsureBackslash(from_);
    mdlSupport::EnsureBackslash(to_);
    if (Exists(checksum_list)) {
      ReadChecksumList(checksum_list, checksum_index_);
      use_checksum_list_ = true;
    }
    if (!new_files_folder.empty()) second_folder_ = mdlSupport::AddBackslash(new_files_folder);
    report_mode_ = form_.cxReport.checked();
    only_missing_ = form_.cxOnlyMissed.checked();
  }

  void Fill(const Text& masks, Flag reuse_list, Flag refresh_list) {
    if (reuse_list == kFalse) {
      form_.mtFile.SetCaption(u"Обзор файлов папки ...");
      Walk(masks);
    } else if (CachedFileList.empty() || refresh_list != kFalse) {
      Walk(masks);
      CachedFileList = files_;
    } else {
      files_ = CachedFileList;
    }
  }

  void Run(Flag break_tree, Flag move_files, Flag to_recycler) {
    const std::int32_t last = mdlSupport::UpperBoundOrMinusOne(files_);
    if (last >= 0) Attempt([&] { form_.pbMain.SetMax(last); });
    for (std::int32_t i = 0; i <= last; ++i) {
      const Text& source = files_[static_cast<std::size_t>(i)];
      ShowProgress(source, i);
      const Text target = TargetOf(source, break_tree);
      if (NeedsCopy(source, target)) Update(source, target);
      // Whatever became of the copy: a move empties the source of all that was walked.
      if (move_files != kFalse) RemoveSource(source, to_recycler);
    }
    form_.pbMain.SetValue(form_.pbMain.max());
    CopyErrorCount = errors_;
    form_.frLog.SetVisible(report_mode_);
  }

  std::int32_t copied() const { return copied_; }

 private:
  static bool Exists(const Text& path) { return host::Files().PathExists(path); }

  void Walk(const Text& masks) {
    // A job without a source has no files. The closing backslash alone would name the root of the
    // current drive.
    if (from_ == u"\\") return;
    Text root = from_;
    Attempt([&] { mdlSupport::WalkFiles(root, masks, files_, kFalse); });
  }

  void ShowProgress(const Text& source, std::int32_t index) {
    form_.mtFile.SetCaption(u"Обзор ..." + source);
    Attempt([&] { form_.pbMain.SetValue(index); });
    form_.pbMain.Repaint();
    forms::Yield();
  }

  Text TargetOf(const Text& source, Flag break_tree) const {
    if (use_checksum_list_) {
      const Text key = u"k" + Decimal(mdlSupport::GetFastCRC(source, 0));
      const Text* listed = checksum_index_.Find(key);
      if (listed != nullptr && !listed->empty()) return *listed;
    }
    if (break_tree == kFalse) return to_ + source.substr(from_.size());
    const Text name(GetFileName(source));
    Text target = to_ + name;
    // Only whether the name is taken counts. So a second run copies what the first one put under
    // its own name once more, under the prefixed one.
    if (Exists(target)) target = to_ + Decimal(mdlSupport::GetFastCRC(source, 512)) + name;
    return target;
  }

  bool NeedsCopy(const Text& source, const Text& target) const {
    if (!Exists(target)) return true;
    return !only_missing_ && mdlSupport::SameFastCRC(source, target) == kFalse;
  }

  void MakeFolder(const Text& source, const Text& target) {
    const TextView folder = GetFolderPath(target);
    if (folder == last_folder_) return;
    last_folder_ = folder;
    CreateFolderPath(last_folder_);
    if (!second_folder_.empty()) CreateFolderPath(Text(GetFolderPath(SecondTarget(source))));
  }

  Text SecondTarget(const Text& source) const { return second_folder_ + Text(GetFileName(source)); }

  void Update(const Text& source, const Text& target) {
    MakeFolder(source, target);  // in report mode too: the ticked files need the folders later
    Attempt([&] { form_.mtFile.SetCaption(u"Копирование " + mdlSupport::ShortenPath(source)); });
    form_.mtFile.Repaint();
    if (report_mode_) {
      form_.lbLog.Add(source);
    } else {
      host::Files().CopyFile(source, target, false);
      if (!second_folder_.empty()) host::Files().CopyFile(source, SecondTarget(source), false);
    }
    Attempt([&] { ++(mdlSupport::SameFastCRC(source, target) != kFalse ? copied_ : errors_); });
    if (copied_ % 10 == 0) forms::Yield();
  }

  void RemoveSource(const Text& source, Flag to_recycler) {
    if (to_recycler != kFalse) {
      mdlSupport::RecycleFile(source);
    } else {
      mdlSupport::DeleteOneFile(source);
    }
    if (Exists(source)) Attempt([&] { ++errors_; });
  }

  frmMain& form_ = forms::The<frmMain>();
  Text from_;
  Text to_;
  Text second_folder_;
  Text last_folder_;
  KeyedCollection checksum_index_;
  bool use_checksum_list_ = false;
  bool report_mode_ = false;
  bool only_missing_ = false;
  std::vector<Text> files_;
  Int32 copied_;
  Int32 errors_;
};

}  // namespace

std::int32_t CopyFolderTree(Text from, Text to, const Text& masks, Flag reuse_list,
                            Flag refresh_list, Flag break_tree, Flag move_files, Flag to_recycler,
                            const Text& new_files_folder, const Text& checksum_list) {
  CopyRun run(std::move(from), std::move(to), new_files_folder, checksum_list);
  run.Fill(masks, reuse_list, refresh_list);
  run.Run(break_tree, move_files, to_recycler);
  return run.copied();
}

}  // namespace orvik::mdlMain

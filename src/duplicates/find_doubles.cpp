// The search: one pass over the files, each told by nothing but its fast checksum.
#include <cmath>
#include <unordered_map>

#include "base/failure.h"
#include "base/numbers.h"
#include "duplicates/frm_doubles.h"
#include "fileengine/checksums.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "host/registry.h"
#include "platform/reg_list.h"
#include "startup/globals.h"

namespace orvik {

namespace {

// Larger than everywhere else: whole contents of small files decide.
constexpr std::int32_t kBlock = 32768;
constexpr std::int32_t kYieldEvery = 50;

}  // namespace

void frmDoubles::ShowProgress(std::int32_t at, std::int32_t last) {
  // A single file has no part of the way: nothing is shown.
  if (last == 0) throw Failure{};
  const double percent = static_cast<double>(at) / last * 100;
  tvMain.SetText(1, u"Обработка ..." + SpacedDecimal(static_cast<std::int64_t>(percent)) + u" %");
}

void frmDoubles::AddDuplicate(const Text& key, const Text& first, const Text& path,
                              std::int32_t index) {
  if (tvMain.Find(key) == 0) {
    Attempt([&] { tvMain.SetExpanded(tvMain.Add(first, key), true); });
  }
  Attempt([&] { tvMain.Add(path, key + u" " + Decimal(index), tvMain.Find(key)); });
  // The last node, by a 16-bit count: beyond 32767 nodes boxes stay off.
  Attempt([&] { tvMain.SetChecked(Narrowed<std::int16_t>(tvMain.count()), true); });
}

// What the user does in a yield, another search included, works on the same tree: each step takes
// the tree as it finds it.
void frmDoubles::FindDoubles() {
  mdlMain::SavePatternCombo(cbPattern, host::kLocalMachine, mdlMain::DoublesPatternKey);
  tvMain.Clear();
  tvMain.Add(u"Обработка ... обзор каталогов", u"Load");
  std::vector<Text> files;
  const auto walk = [&](Text& folder) {
    // The user may type another text while the walk runs.
    const Text masks = cbPattern.text();
    Attempt([&] { mdlSupport::WalkFiles(folder, masks, files, kFalse); });
  };
  walk(mdlMain::CommandArgs);
  for (std::size_t i = 1; i <= mdlMain::DoublesExtraFolders.Count(); ++i) {
    Text folder = mdlMain::DoublesExtraFolders.Item(i);
    walk(folder);
  }
  const std::int32_t last = mdlSupport::UpperBoundOrMinusOne(files);
  if (last == -1) return;
  std::unordered_map<std::int32_t, std::int32_t> first_seen;  // by checksum, the file's index
  for (std::int32_t i = 0; i <= last; ++i) {
    if (i % kYieldEvery == 0) {
      Attempt([&] { ShowProgress(i, last); });
      forms::Yield();
    }
    const Text& path = files[static_cast<std::size_t>(i)];
    const std::int32_t checksum = mdlSupport::GetFastCRC(path, kBlock);
    const auto [seen, is_first] = first_seen.try_emplace(checksum, i);
    if (is_first) continue;
    AddDuplicate(u"k" + Decimal(checksum), files[static_cast<std::size_t>(seen->second)], path, i);
  }
  Attempt([&] { tvMain.Remove(1); });
}

}  // namespace orvik

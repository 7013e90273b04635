#include "copying/recent_combos.h"

#include "copying/frm_main.h"
#include "forms/instance.h"
#include "host/registry.h"
#include "platform/reg_list.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

Text FirstEntry(const forms::ComboBox& combo) {
  return combo.items().empty() ? Text() : combo.items().front();
}

void LoadRecent(forms::ComboBox& combo, const Text& key) {
  KeyedCollection items;
  KeyedCollection names;
  combo.Clear();
  mdlRegList::LoadRegList(host::kLocalMachine, key, items, names);
  for (std::size_t i = 1; i <= items.Count(); ++i) combo.Add(items.Item(i));
}

void SaveRecent(forms::ComboBox& combo, const Text& when_blank, const Text& key) {
  if (Trim(combo.text()).empty()) combo.SetText(when_blank);
  combo.Add(combo.text());
  KeyedCollection entries;
  for (const Text& item : combo.items()) entries.Add(item);
  mdlRegList::SaveRegList(host::kLocalMachine, key, entries, entries);
}

}  // namespace

void LoadRecentCombos() {
  auto& form = forms::The<frmMain>();
  LoadRecent(form.cbOut, RecentPathKey);
  form.cbOut.SetText(FirstEntry(form.cbOut));
  LoadRecent(form.cbOut2, RecentPath2Key);
  form.cbOut2.SetText(FirstEntry(form.cbOut2));
  LoadRecent(form.cbMask, RecentMaskKey);
  form.cbMask.SetText(u"*.*");
  LoadRecent(form.cbFileList, FileListKey);
  form.cbFileList.SetText(u"");
}

void SaveRecentCombos() {
  auto& form = forms::The<frmMain>();
  SaveRecent(form.cbOut, FirstEntry(form.cbOut), RecentPathKey);
  SaveRecent(form.cbOut2, FirstEntry(form.cbOut2), RecentPath2Key);
  SaveRecent(form.cbMask, u"*.*", RecentMaskKey);
  // To the key of the masks, not to FileListKey, which is only ever read: the masks just saved
  // give way to these entries.
  SaveRecent(form.cbFileList, u"*.*", RecentMaskKey);
}

}  // namespace orvik::mdlMain

#include "platform/reg_list.h"

#include <algorithm>

#include "base/failure.h"
#include "base/numbers.h"
#include "platform/registry_layer.h"
#include "startup/globals.h"

namespace orvik {

namespace {

// Deletes the values of a key, as far as they can be read and deleted. A key that resists keeps
// what it holds: without the right to write, lists stay as they are.
void ClearKey(std::uint32_t hKey, const Text& path) {
  mdlSupport::DeleteRegValue(hKey, path, u"");
  Text former;
  for (;;) {
    const Text name = mdlSupport::EnumRegValueName(hKey, path, 0);
    if (Trim(name).empty() || name == former) return;
    mdlSupport::DeleteRegValue(hKey, path, name);
    former = name;
  }
}

}  // namespace

namespace mdlRegList {

void LoadRegList(std::uint32_t hKey, const Text& path, KeyedCollection& items,
                 KeyedCollection& names) {
  items = {};
  names = {};
  for (std::int32_t index = 0;; ++index) {
    const Text name(Trim(mdlSupport::EnumRegValueName(hKey, path, index)));
    const Text data = mdlSupport::EnumRegValueData(hKey, path, index);
    if (!name.empty()) {
      Attempt([&] { items.Add(data, u"k" + name); });
      Attempt([&] { names.Add(name, u"k" + data); });
    } else if (Trim(data).empty()) {
      return;
    }
  }
}

void SaveRegList(std::uint32_t hKey, const Text& path, const KeyedCollection& items,
                 const KeyedCollection& names) {
  const bool use_names = names.Count() == items.Count() && names.Count() > 0;
  ClearKey(hKey, path);
  for (std::size_t i = 1; i <= items.Count(); ++i) {
    const Text name = use_names ? names.Item(i) : u"k" + Padded(static_cast<std::int64_t>(i), 6);
    mdlSupport::WriteRegValue(hKey, path, name, items.Item(i), 0);
  }
}

}  // namespace mdlRegList

namespace mdlMain {

void LoadPatternCombo(forms::ComboBox& combo, std::uint32_t hKey, const Text& /*path*/) {
  for (std::int32_t index = 0;; ++index) {
    const Text name(Trim(mdlSupport::EnumRegValueName(hKey, DoublesPatternKey, index)));
    if (name.empty()) return;
    combo.Add(name);
  }
}

void SavePatternCombo(const forms::ComboBox& combo, std::uint32_t hKey, const Text& path) {
  ClearKey(hKey, path);
  mdlSupport::WriteRegValue(hKey, path, combo.text(), combo.text(), 0);
  for (const Text& item : combo.items()) mdlSupport::WriteRegValue(hKey, path, item, item, 0);
}

void RemovePatternByKey(forms::ComboBox& combo, forms::Key& key) {
  if (key.code != forms::kKeyDelete || key.shift != forms::kCtrl) return;
  const auto& items = combo.items();
  const auto entry = std::find(items.begin(), items.end(), combo.text());
  if (entry != items.end()) {
    mdlSupport::DeleteRegValue(0, DoublesPatternKey, combo.text());
    combo.Remove(static_cast<int>(entry - items.begin()));
  }
  key.code = 0;
}

}  // namespace mdlMain

}  // namespace orvik

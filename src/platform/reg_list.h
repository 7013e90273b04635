// Lists of texts as the values of one registry key: name and data of each value are the entry.
#pragma once

#include <cstdint>

#include "base/keyed_collection.h"
#include "base/text.h"
#include "forms/list_controls.h"

namespace orvik::mdlRegList {

// Replaces both collections: the data of each value under the key "k" + name, and the name of each
// under the key "k" + data. Entries whose key exists already are passed over.
void LoadRegList(std::uint32_t hKey, const Text& path, KeyedCollection& items,
                 KeyedCollection& names);

// Deletes every value of the key, then writes the items in order. Their names are those of `names`
// when there are as many, else "k" and the number in six digits. An empty list leaves an empty key.
void SaveRegList(std::uint32_t hKey, const Text& path, const KeyedCollection& items,
                 const KeyedCollection& names);

}  // namespace orvik::mdlRegList

namespace orvik::mdlMain {

// Adds the patterns of the shared list to a combo box. The path is ignored: every form that asks,
// whatever it passes, shares the one list of DoublesPatternKey.
void LoadPatternCombo(forms::ComboBox& combo, std::uint32_t hKey, const Text& path);

// Saves a combo box's text, then its entries, so that the text in use comes first at the next load.
void SavePatternCombo(const forms::ComboBox& combo, std::uint32_t hKey, const Text& path);

// Ctrl+Delete takes the pattern that a combo box shows off its list and off the shared list, where
// it stands exactly so. Other keys are left alone.
void RemovePatternByKey(forms::ComboBox& combo, forms::Key& key);

}  // namespace orvik::mdlMain

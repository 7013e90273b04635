#include "robot/file_dialog.h"

#include "robot/list_reader.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

// The system's own numbers of the controls: the types, and the name with or without a list.
constexpr int kTypes = 0x470;
constexpr int kNameInCombo = 0x47C;
constexpr int kName = 0x480;

// A text that ends in a zero, in another process; as much as can be read.
Text RemoteText(HANDLE process, LRESULT address) {
  constexpr std::size_t kLongest = 256;
  Text text;
  for (char16_t c = 0; text.size() < kLongest; text += c) {
    const auto* const at = reinterpret_cast<const char16_t*>(address) + text.size();
    if (ReadProcessMemory(process, at, &c, sizeof c, nullptr) == 0 || c == 0) break;
  }
  return text;
}

}  // namespace

bool IsFileDialog(HWND dialog) {
  return GetDlgItem(dialog, kTypes) != nullptr && NameFieldOf(dialog) != nullptr;
}

forms::FileDialog PurposeOf(HWND dialog) {
  // Nothing but the word on the button tells it.
  const Text button = ToLower(TextOf(GetDlgItem(dialog, IDOK)));
  const bool saves = button.find(u"сохран") != Text::npos || button.find(u"save") != Text::npos;
  return saves ? forms::FileDialog::kSave : forms::FileDialog::kOpen;
}

Text FilterOf(HANDLE process, HWND dialog) {
  const HWND types = GetDlgItem(dialog, kTypes);
  Text filter;
  WPARAM position = 0;
  for (const Text& description : ComboItems(types)) {
    // The system keeps a pointer to the mask with the entry.
    const LRESULT mask = SendMessageW(types, CB_GETITEMDATA, position++, 0);
    if (!filter.empty()) filter += u'|';
    filter += description + u"|" + RemoteText(process, mask);
  }
  return filter;
}

HWND NameFieldOf(HWND dialog) {
  const HWND plain = GetDlgItem(dialog, kName);
  const HWND holder = GetDlgItem(dialog, kNameInCombo);
  if (holder == nullptr) return plain;
  HWND field = nullptr;
  ForEachBelow(holder, [&](HWND window) {
    if (EqualNoCase(ClassOf(window), u"Edit")) field = window;
    return field == nullptr;
  });
  return field;
}

}  // namespace orvik::robot

#include "robot/dialogs.h"

#include <algorithm>

#include "robot/file_dialog.h"
#include "robot/message_box.h"
#include "robot/remote.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

using forms::headless::Question;

// The program's own input box.
constexpr int kInputPrompt = 100;
constexpr int kInputField = 101;
// The system's folder dialog.
constexpr int kFolderTitle = 0x3742;
constexpr int kFolderField = 0x3745;
constexpr UINT kSelectFolder = WM_USER + 103;
// The tree of folders may still be filling when it is told where to go.
constexpr int kFolderTries = 40;
constexpr int kFolderPause = 50;

void WriteTextOrNull(forms::headless::JsonWriter& json, const std::optional<Text>& text) {
  if (text) {
    json.String(TextView(*text));
  } else {
    json.Null();
  }
}

}  // namespace

bool Dialogs::Look() {
  std::erase_if(answered_, [](HWND dialog) { return IsWindow(dialog) == 0; });
  bool any = false;
  ForEachTopLevel(program_.id(), [&](HWND window) {
    if (ClassOf(window) != u"#32770" || !IsShown(window)) return true;
    any = true;
    const bool known = std::find(answered_.begin(), answered_.end(), window) != answered_.end();
    if (!known && Answer(window)) answered_.push_back(window);
    return true;
  });
  return any;
}

bool Dialogs::Answer(HWND dialog) {
  if (GetDlgItem(dialog, kInputField) != nullptr) return AnswerInput(dialog);
  if (GetDlgItem(dialog, kFolderTitle) != nullptr) return AnswerFolder(dialog);
  if (IsFileDialog(dialog)) return AnswerFile(dialog);
  return AnswerMessage(dialog);
}

void Dialogs::Press(HWND dialog, int button) {
  messenger_.Send(GetDlgItem(dialog, button), BM_CLICK);
}

void Dialogs::AnswerRecycling(HWND box) {
  const bool goes = answers_.ToRecycle();
  auto& json = record_.Begin("recycle");
  json.Name("answer").String(NameOf(goes ? forms::Answer::kYes : forms::Answer::kNo));
  record_.End();
  Press(box, goes ? IDYES : IDNO);
}

bool Dialogs::AnswerMessage(HWND box) {
  if (AsksBeforeRecycling(box)) {
    AnswerRecycling(box);
    return true;
  }
  // What a file dialog asks by itself, such as whether a file may be replaced, is between the
  // system and the user.
  if (const HWND owner = GetWindow(box, GW_OWNER); owner != nullptr && IsFileDialog(owner)) {
    Press(box, GetDlgItem(box, IDYES) != nullptr ? IDYES : IDOK);
    return true;
  }
  const std::optional<MessageBoxFacts> facts = ReadMessageBox(box);
  if (!facts) return false;
  const forms::Answer answer = answers_.ToMessage(
      facts->buttons, [&](int line) { record_.Error(line, "the message box has no such button"); });
  auto& json = record_.Begin("message");
  json.Name("text").String(TextView(facts->text));
  json.Name("title").String(TextView(facts->title));
  json.Name("icon").String(NameOf(facts->icon));
  json.Name("buttons").String(NameOf(facts->buttons));
  json.Name("answer").String(NameOf(answer));
  record_.End();
  Press(box, ButtonFor(answer));
  return true;
}

bool Dialogs::AnswerInput(HWND dialog) {
  const HWND field = GetDlgItem(dialog, kInputField);
  const auto answer = answers_.ToText(Question::kInput).text;
  auto& json = record_.Begin("input");
  json.Name("prompt").String(TextView(TextOf(GetDlgItem(dialog, kInputPrompt))));
  json.Name("title").String(TextView(TextOf(dialog)));
  json.Name("answer").String(TextView(answer.value_or(Text())));
  record_.End();
  if (answer) SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(*answer)));
  Press(dialog, answer ? IDOK : IDCANCEL);
  return true;
}

// The dialog shows the name of the folder that it has come to, of a drive another text.
void Dialogs::GoToFolder(HWND dialog, const Text& folder) const {
  const std::size_t size = (folder.size() + 1) * sizeof(char16_t);
  const RemoteBytes path(program_.process(), size);
  path.Write(folder.c_str(), size);
  const TextView name = TextView(folder).substr(folder.rfind(u'\\') + 1);
  for (int tries = 0; tries < kFolderTries; ++tries) {
    SendMessageW(dialog, kSelectFolder, TRUE, path.address());
    if (name.empty() || EqualNoCase(TextOf(GetDlgItem(dialog, kFolderField)), name)) return;
    Messenger::Listen(kFolderPause);
  }
}

bool Dialogs::AnswerFolder(HWND dialog) {
  const auto answer = answers_.ToText(Question::kFolder).text;
  auto& json = record_.Begin("browse");
  json.Name("title").String(TextView(TextOf(GetDlgItem(dialog, kFolderTitle))));
  WriteTextOrNull(json.Name("answer"), answer);
  record_.End();
  if (answer) GoToFolder(dialog, *answer);
  Press(dialog, answer ? IDOK : IDCANCEL);
  return true;
}

bool Dialogs::AnswerFile(HWND dialog) {
  const auto answer = answers_.ToText(Question::kFile).text;
  const bool opens = PurposeOf(dialog) == forms::FileDialog::kOpen;
  auto& json = record_.Begin(opens ? "open" : "save");
  json.Name("filter").String(TextView(FilterOf(program_.process(), dialog)));
  WriteTextOrNull(json.Name("answer"), answer);
  record_.End();
  if (answer) {
    SendMessageW(NameFieldOf(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(*answer)));
  }
  Press(dialog, answer ? IDOK : IDCANCEL);
  return true;
}

}  // namespace orvik::robot

#include "robot/modal_forms.h"

#include <algorithm>

#include "robot/controls.h"
#include "robot/dump.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

// A form comes up modally when its owner doesn't answer meanwhile. Later on that may have other
// reasons.
bool ComesModally(HWND form) {
  const HWND owner = GetWindow(form, GW_OWNER);
  return owner != nullptr && IsWindowEnabled(owner) == 0 && IsWindowEnabled(form) != 0;
}

// The first control of a kind; nullptr when there is none.
HWND FindFirst(HWND form, forms::Kind kind) {
  HWND found = nullptr;
  ForEachBelow(form, [&](HWND window) {
    if (!NameOf(window).empty() && KindOf(window) == kind) found = window;
    return found == nullptr;
  });
  return found;
}

}  // namespace

void ModalForms::Answer(HWND form) {
  const HWND field = FindFirst(form, forms::Kind::kTextBox);
  const HWND button = FindFirst(form, forms::Kind::kButton);
  Answered answered{form, FormNameOf(form), TextOf(form), {}, std::nullopt};
  if (field != nullptr) answered.text = TextOf(field);
  const auto queued = answers_.ToText(forms::headless::Question::kForm);
  if (button != nullptr && (!queued.queued || queued.text)) {
    answered.answer = queued.text.value_or(answered.text);
    if (field != nullptr && queued.text) {
      SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(*queued.text)));
    }
    messenger_.Send(button, BM_CLICK);
  } else {
    messenger_.Send(form, WM_SYSCOMMAND, SC_CLOSE);
  }
  answered_.push_back(std::move(answered));
}

void ModalForms::Write(const Answered& form) {
  auto& json = record_.Begin("modal");
  json.Name("form").String(form.form);
  json.Name("caption").String(TextView(form.caption));
  json.Name("text").String(TextView(form.text));
  json.Name("answer");
  if (form.answer) {
    json.String(TextView(*form.answer));
  } else {
    json.Null();
  }
  record_.End();
}

bool ModalForms::Look(const std::vector<HWND>& forms) {
  const auto is_in = [](const std::vector<HWND>& all, HWND form) {
    return std::find(all.begin(), all.end(), form) != all.end();
  };
  std::erase_if(answered_, [&](const Answered& form) {
    if (is_in(forms, form.window)) return false;
    Write(form);
    return true;
  });
  std::erase_if(seen_, [&](HWND form) { return !is_in(forms, form); });
  for (HWND form : forms) {
    if (is_in(seen_, form)) continue;
    seen_.push_back(form);
    if (ComesModally(form)) Answer(form);
  }
  return !answered_.empty();
}

}  // namespace orvik::robot

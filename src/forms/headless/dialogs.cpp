// What the front end is asked to show and to ask.
#include <algorithm>

#include "base/failure.h"
#include "forms/headless/headless_front_end.h"
#include "forms/menu.h"
#include "forms/simple_controls.h"

namespace orvik::forms::headless {

namespace {

std::string_view NameOf(Icon icon) {
  switch (icon) {
    case Icon::kNone:
      return "none";
    case Icon::kInformation:
      return "information";
    case Icon::kQuestion:
      return "question";
    case Icon::kCritical:
      return "critical";
  }
  return {};
}

std::string_view NameOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::kOk:
      return "ok";
    case Buttons::kOkCancel:
      return "okcancel";
    case Buttons::kYesNo:
      return "yesno";
  }
  return {};
}

std::string_view NameOf(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return "ok";
    case Answer::kCancel:
      return "cancel";
    case Answer::kYes:
      return "yes";
    case Answer::kNo:
      return "no";
  }
  return {};
}

void WriteAnswer(JsonWriter& json, const std::optional<Text>& answer) {
  json.Name("answer");
  if (answer) {
    json.String(TextView(*answer));
  } else {
    json.Null();
  }
}

// The first control of a kind, nullptr when a form has none.
template <typename ControlClass>
ControlClass* First(const Form& form, Kind kind) {
  const auto& controls = form.controls();
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [&](const Control* control) { return control->kind() == kind; });
  return found == controls.end() ? nullptr : static_cast<ControlClass*>(*found);
}

}  // namespace

void HeadlessFrontEnd::ShowModal(Form& form) {
  Show(form);
  auto* const box = First<TextBox>(form, Kind::kTextBox);
  auto* const button = First<Button>(form, Kind::kButton);
  const Text caption = form.caption();
  const Text text = box != nullptr ? box->text() : Text();
  const Answers::TextAnswer queued = answers_.ToText(Question::kForm);
  const bool pressed = button != nullptr && (!queued.queued || queued.text);
  std::optional<Text> answer;
  if (pressed) {
    if (box != nullptr && queued.text) box->UserType(*queued.text);
    answer = box != nullptr ? box->text() : Text();
    Attempt([&] { button->UserClick(); });
  }
  // Closed by its title bar, unless the button did it.
  form.UserClose();
  JsonWriter& json = transcript_.Begin("modal");
  json.Name("form").String(form.name());
  json.Name("caption").String(TextView(caption));
  json.Name("text").String(TextView(text));
  WriteAnswer(json, answer);
  transcript_.End();
}

void HeadlessFrontEnd::PopUp(Menu& menu) {
  JsonWriter& json = transcript_.Begin("popup");
  json.Name("form").String(menu.form().name());
  json.Name("menu").String(menu.name());
  transcript_.End();
}

Answer HeadlessFrontEnd::Message(const Text& text, const Text& title, Icon icon, Buttons buttons) {
  const Answer answer = answers_.ToMessage(
      buttons, [&](int line) { Refuse(line, "the message box has no such button"); });
  JsonWriter& json = transcript_.Begin("message");
  json.Name("text").String(TextView(text));
  json.Name("title").String(TextView(title));
  json.Name("icon").String(NameOf(icon));
  json.Name("buttons").String(NameOf(buttons));
  json.Name("answer").String(NameOf(answer));
  transcript_.End();
  return answer;
}

Text HeadlessFrontEnd::AskText(const Text& prompt, const Text& title) {
  Text answer = answers_.ToText(Question::kInput).text.value_or(Text());
  JsonWriter& json = transcript_.Begin("input");
  json.Name("prompt").String(TextView(prompt));
  json.Name("title").String(TextView(title));
  json.Name("answer").String(TextView(answer));
  transcript_.End();
  return answer;
}

std::optional<Text> HeadlessFrontEnd::AskFolder(const Text& title, Form*) {
  std::optional<Text> answer = answers_.ToText(Question::kFolder).text;
  JsonWriter& json = transcript_.Begin("browse");
  json.Name("title").String(TextView(title));
  WriteAnswer(json, answer);
  transcript_.End();
  return answer;
}

std::optional<Text> HeadlessFrontEnd::AskFileName(FileDialog dialog, const Text& filter, Form*) {
  std::optional<Text> answer = answers_.ToText(Question::kFile).text;
  JsonWriter& json = transcript_.Begin(dialog == FileDialog::kOpen ? "open" : "save");
  json.Name("filter").String(TextView(filter));
  WriteAnswer(json, answer);
  transcript_.End();
  return answer;
}

void HeadlessFrontEnd::PutOnClipboard(const Text& text) {
  transcript_.Begin("clipboard").Name("text").String(TextView(text));
  transcript_.End();
}

}  // namespace orvik::forms::headless

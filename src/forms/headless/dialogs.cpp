// What the front end is asked to show and to ask.
#include "forms/headless/headless_front_end.h"

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

}  // namespace

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

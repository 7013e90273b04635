#include "forms/headless/script.h"

#include <algorithm>

#include "forms/headless/script_words.h"
#include "forms/headless/values.h"

namespace orvik::forms::headless {

namespace {

constexpr std::int64_t kLargestInt = 0x7FFFFFFF;

// The words of one event behind its verb, taken one by one. What isn't there or has another shape
// marks the line as bad; the event that comes out then isn't used.
class Words {
 public:
  explicit Words(std::vector<Word> words) : words_(std::move(words)) {}

  bool good() const { return good_ && at_ == words_.size(); }
  bool more() const { return at_ < words_.size(); }
  void Refuse() { good_ = false; }

  std::string Plain() {
    if (!more() || words_[at_].quoted) return Bad<std::string>();
    return words_[at_++].plain;
  }
  Text Quoted() {
    if (!more() || !words_[at_].quoted) return Bad<Text>();
    return words_[at_++].text;
  }
  // A text, or the word "cancel".
  std::optional<Text> QuotedOrCancel() {
    if (more() && words_[at_].quoted) return Quoted();
    if (Plain() != "cancel") Refuse();
    return std::nullopt;
  }
  std::int64_t Long() {
    const auto number = ReadNumber(Plain());
    return number ? *number : Bad<std::int64_t>();
  }
  int Int() {
    const auto number = ReadNumber(Plain(), kLargestInt);
    return number ? static_cast<int>(*number) : Bad<int>();
  }
  std::optional<int> IntIfMore() { return more() ? std::optional(Int()) : std::nullopt; }
  // The place of the next word among the choices.
  std::size_t OneOf(std::initializer_list<std::string_view> choices) {
    const std::string word = Plain();
    const auto* const found = std::find(choices.begin(), choices.end(), word);
    if (found == choices.end()) return Bad<std::size_t>();
    return static_cast<std::size_t>(found - choices.begin());
  }

  Target FormName() {
    Target target{Plain(), {}};
    if (target.form.empty() || target.form.find('.') != std::string::npos) Refuse();
    return target;
  }
  Target FormOrControl() {
    const std::string name = Plain();
    const std::size_t dot = name.find('.');
    if (dot == std::string::npos) return {name, {}};
    Target target{name.substr(0, dot), name.substr(dot + 1)};
    if (target.form.empty() || target.control.empty()) Refuse();
    return target;
  }
  Target ControlName() {
    Target target = FormOrControl();
    if (target.control.empty()) Refuse();
    return target;
  }

 private:
  template <typename Value>
  Value Bad() {
    good_ = false;
    at_ = words_.size();
    return {};
  }

  std::vector<Word> words_;
  std::size_t at_ = 0;
  bool good_ = true;
};

Event ReadAnswer(Words& words) {
  constexpr Answer kMessage[] = {Answer::kYes, Answer::kNo, Answer::kOk, Answer::kCancel};
  constexpr Question kTexts[] = {Question::kInput, Question::kFolder, Question::kFile,
                                 Question::kForm};
  const std::size_t kind = words.OneOf({"input", "browse", "file", "form", "message", "recycle"});
  if (kind == 4) return AnswerMessage{kMessage[words.OneOf({"yes", "no", "ok", "cancel"})]};
  if (kind == 5) return AnswerRecycle{words.OneOf({"yes", "no"}) == 0};
  return AnswerText{kTexts[kind], words.QuotedOrCancel()};
}

Event ReadClick(Words& words) {
  Target target = words.ControlName();
  return Click{std::move(target), words.IntIfMore()};
}

Event ReadDoubleClick(Words& words) {
  Target target = words.ControlName();
  return DoubleClick{std::move(target), words.IntIfMore()};
}

// "check F.C on" or "check F.C P on".
Event ReadCheck(Words& words) {
  Check check{words.ControlName(), std::nullopt, false};
  std::string word = words.Plain();
  if (words.more()) {
    const auto position = ReadNumber(word, kLargestInt);
    if (!position) words.Refuse();
    check.position = static_cast<int>(position.value_or(0));
    word = words.Plain();
  }
  check.on = word == "on";
  if (!check.on && word != "off") words.Refuse();
  return check;
}

Event ReadType(Words& words) {
  Target target = words.ControlName();
  return Type{std::move(target), words.Quoted()};
}

Event ReadSelect(Words& words) {
  Select select{words.ControlName(), {}};
  while (words.more()) select.positions.push_back(words.Int());
  return select;
}

// Shift states are sums of three bits.
int ReadShift(Words& words) {
  const int shift = words.IntIfMore().value_or(0);
  if (shift > (kShift | kCtrl | kAlt)) words.Refuse();
  return shift;
}

Event ReadMouse(Words& words) {
  MouseButton event{words.FormOrControl(), false, {}, {}};
  event.down = words.OneOf({"down", "up"}) == 0;
  event.mouse.button = words.Int();
  if (event.mouse.button != kLeftButton && event.mouse.button != kRightButton &&
      event.mouse.button != kMiddleButton) {
    words.Refuse();
  }
  event.mouse.shift = ReadShift(words);
  event.position = words.IntIfMore();
  if (event.position && event.target.control.empty()) words.Refuse();
  return event;
}

Event ReadKey(Words& words) {
  KeyStroke event{words.FormOrControl(), {}};
  event.key.code = words.Int();
  // No key has the code 0, which is how a handler takes a key away.
  if (event.key.code < 1 || event.key.code > 255) words.Refuse();
  event.key.shift = ReadShift(words);
  return event;
}

Event ReadUp(Words& words) { return Arrow{words.ControlName(), true}; }
Event ReadDown(Words& words) { return Arrow{words.ControlName(), false}; }
Event ReadMenu(Words& words) { return ChooseMenu{words.ControlName()}; }
Event ReadClose(Words& words) { return Close{words.FormName()}; }

Event ReadResize(Words& words) {
  Resize resize{words.FormName(), 0, 0};
  resize.width = words.Int();
  resize.height = words.Int();
  return resize;
}

Event ReadWait(Words& words) { return Wait{words.Long()}; }
Event ReadSystem(Words& words) { return RunCommand{words.Quoted()}; }
Event ReadRegistry(Words& words) { return ShowRegistry{words.Quoted()}; }
Event ReadDump(Words& words) { return words.more() ? Dump{words.FormName()} : Dump{}; }

struct Verb {
  std::string_view name;
  Event (*read)(Words&);
};
constexpr Verb kVerbs[] = {
    {"answer", ReadAnswer},     {"click", ReadClick}, {"dblclick", ReadDoubleClick},
    {"check", ReadCheck},       {"type", ReadType},   {"select", ReadSelect},
    {"mouse", ReadMouse},       {"key", ReadKey},     {"up", ReadUp},
    {"down", ReadDown},         {"menu", ReadMenu},   {"resize", ReadResize},
    {"close", ReadClose},       {"wait", ReadWait},   {"system", ReadSystem},
    {"registry", ReadRegistry}, {"dump", ReadDump},
};

// The words of an event with its verb in front. False with a reason when they make no event.
bool ReadEvent(std::vector<Word> words, Event& event, std::string& reason) {
  const std::string name = words.empty() || words[0].quoted ? "" : words[0].plain;
  const auto* const verb = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                        [&](const Verb& known) { return known.name == name; });
  if (verb == std::end(kVerbs)) {
    reason = name.empty() ? "an event is missing" : "unknown event " + name;
    return false;
  }
  words.erase(words.begin());
  Words rest(std::move(words));
  event = verb->read(rest);
  if (!rest.good()) reason = name + " has other words behind it than it needs";
  return rest.good();
}

bool ReadLine(std::string_view text, ScriptLine& line, std::string& reason) {
  auto words = CutWords(text, reason);
  if (!words) return false;
  if (!words->empty() && !(*words)[0].quoted && (*words)[0].plain == "during") {
    const auto number = words->size() > 1 && !(*words)[1].quoted
                            ? ReadNumber((*words)[1].plain, kLargestInt)
                            : std::nullopt;
    if (!number || *number < 1) {
      reason = "during needs the number of a yield, from 1";
      return false;
    }
    line.during = static_cast<int>(*number);
    words->erase(words->begin(), words->begin() + 2);
  }
  return ReadEvent(std::move(*words), line.event, reason);
}

bool IsComment(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string_view::npos || text[first] == '#';
}

}  // namespace

bool IsAnswer(const Event& event) {
  return std::holds_alternative<AnswerMessage>(event) ||
         std::holds_alternative<AnswerText>(event) || std::holds_alternative<AnswerRecycle>(event);
}

std::optional<Script> ParseScript(std::string_view utf8, std::string& reason) {
  Script script;
  if (utf8.starts_with("\xEF\xBB\xBF")) utf8.remove_prefix(3);
  for (int number = 1; !utf8.empty(); ++number) {
    const std::size_t end = std::min(utf8.find('\n'), utf8.size());
    std::string_view text = utf8.substr(0, end);
    utf8.remove_prefix(std::min(end + 1, utf8.size()));
    if (text.ends_with('\r')) text.remove_suffix(1);
    if (IsComment(text)) continue;
    ScriptLine line;
    line.number = number;
    if (!ReadLine(text, line, reason)) {
      reason.insert(0, "script line " + std::to_string(number) + ": ");
      return std::nullopt;
    }
    script.push_back(std::move(line));
  }
  return script;
}

}  // namespace orvik::forms::headless

#include "unit/support/test_front_end.h"

#include "forms/form.h"
#include "forms/instance.h"
#include "forms/list_controls.h"
#include "forms/menu.h"
#include "forms/simple_controls.h"
#include "forms/tree_view.h"

namespace orvik::test {

using forms::Answer;
using forms::Buttons;
using forms::Change;
using forms::Control;
using forms::Form;
using forms::Property;

namespace {

template <typename Value>
Value Next(std::deque<Value>& queue, Value otherwise) {
  if (queue.empty()) return otherwise;
  Value value = std::move(queue.front());
  queue.pop_front();
  return value;
}

// What changed, with its new value; empty for a change that is not recorded.
std::string Describe(const Control& control, Change change) {
  switch (change.property) {
    case Property::kCaption:
      return "caption " + ToUtf8(dynamic_cast<const forms::Captioned&>(control).caption());
    case Property::kText:
      if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control)) {
        return "text " + ToUtf8(combo->text());
      }
      if (const auto* box = dynamic_cast<const forms::TextBox*>(&control)) {
        return "text " + ToUtf8(box->text());
      }
      if (const auto* bar = dynamic_cast<const forms::StatusBar*>(&control)) {
        return "text " + ToUtf8(bar->text());
      }
      return "text";
    case Property::kValue:
      if (const auto* bar = dynamic_cast<const forms::ProgressBar*>(&control)) {
        return "value " + std::to_string(bar->value());
      }
      if (const auto* box = dynamic_cast<const forms::CheckBox*>(&control)) {
        return "value " + std::to_string(box->value());
      }
      return "value";
    case Property::kVisible:
      return control.visible() ? "visible" : "hidden";
    case Property::kEnabled:
      return control.enabled() ? "enabled" : "disabled";
    case Property::kActive:
      return dynamic_cast<const forms::Timer&>(control).active() ? "active" : "off";
    case Property::kAdd:
    case Property::kItem: {
      std::string what = change.property == Property::kAdd ? "add " : "item ";
      if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
        return what + ToUtf8(list->Item(change.position));
      }
      if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control)) {
        return what + ToUtf8(combo->Item(change.position));
      }
      if (const auto* tree = dynamic_cast<const forms::TreeView*>(&control)) {
        return what + ToUtf8(tree->At(change.position).text);
      }
      return what;
    }
    case Property::kRemove:
      return "remove " + std::to_string(change.position);
    case Property::kClear:
      return "clear";
    default:
      return {};
  }
}

}  // namespace

TestFrontEnd::TestFrontEnd(FakeSystem* system) : system_(system) { forms::Install(*this); }

TestFrontEnd::~TestFrontEnd() { forms::ForgetForms(); }

void TestFrontEnd::Load(Form&) {}

void TestFrontEnd::Show(Form& form) { events.push_back("show " + form.name()); }

void TestFrontEnd::ShowModal(Form& form) {
  events.push_back("modal " + form.name());
  if (on_modal) on_modal(form);
  form.UserClose();
}

void TestFrontEnd::PopUp(forms::Menu& menu) { events.push_back("popup " + menu.name()); }

void TestFrontEnd::Draw(Form&, const forms::DrawnLine& line) { drawn.push_back(line); }

void TestFrontEnd::Drag(Form& form) { events.push_back("drag " + form.name()); }

void TestFrontEnd::Unload(Form& form) {
  if (form.visible()) events.push_back("unload " + form.name());
}

void TestFrontEnd::Unloaded(Form&) {
  if (forms::LoadedForms().empty()) EndProcess(forms::EndReason::kClosed);
}

void TestFrontEnd::Changed(Form& form, Change change) {
  if (change.property == Property::kCaption) {
    changes.push_back(form.name() + ".caption " + ToUtf8(form.caption()));
  }
}

void TestFrontEnd::Changed(Control& control, Change change) {
  const std::string described = Describe(control, change);
  if (!described.empty()) {
    changes.push_back(control.form().name() + "." + control.name() + "." + described);
  }
}

void TestFrontEnd::Repaint(Control&) { ++repaints; }

void TestFrontEnd::Yield() {
  ++yields;
  if (on_yield) on_yield(yields);
}

bool TestFrontEnd::WaitForInput(std::int32_t milliseconds) {
  events.push_back("wait " + std::to_string(milliseconds));
  if (system_ != nullptr && milliseconds > 0) {
    system_->ticks += static_cast<std::uint32_t>(milliseconds);
  }
  return false;
}

void TestFrontEnd::EndProcess(forms::EndReason reason) { throw ProcessEnded{reason}; }

Answer TestFrontEnd::Message(const Text& text, const Text& title, forms::Icon icon,
                             Buttons buttons) {
  constexpr const char* kIcons[] = {"none", "information", "question", "critical"};
  constexpr const char* kButtons[] = {"ok", "okcancel", "yesno"};
  events.push_back("message " + ToUtf8(text) + "|" + ToUtf8(title) + "|" +
                   kIcons[static_cast<int>(icon)] + "|" + kButtons[static_cast<int>(buttons)]);
  return Next(message_answers, buttons == Buttons::kYesNo ? Answer::kNo : Answer::kOk);
}

Text TestFrontEnd::AskText(const Text& prompt, const Text& title) {
  events.push_back("input " + ToUtf8(prompt) + "|" + ToUtf8(title));
  return Next(input_answers, Text());
}

std::optional<Text> TestFrontEnd::AskFolder(const Text& title, Form*) {
  events.push_back("browse " + ToUtf8(title));
  return Next(folder_answers, std::optional<Text>());
}

std::optional<Text> TestFrontEnd::AskFileName(forms::FileDialog dialog, const Text& filter, Form*) {
  events.push_back((dialog == forms::FileDialog::kOpen ? "open " : "save ") + ToUtf8(filter));
  return Next(file_answers, std::optional<Text>());
}

void TestFrontEnd::PutOnClipboard(const Text& text) {
  events.push_back("clipboard " + ToUtf8(text));
}

std::optional<forms::EndReason> Ending(const std::function<void()>& program) {
  try {
    program();
  } catch (const ProcessEnded& ended) {
    return ended.reason;
  }
  return std::nullopt;
}

}  // namespace orvik::test

#include "forms/headless/answers.h"

namespace orvik::forms::headless {

namespace {

bool HasButton(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::kOk:
      return answer == Answer::kOk;
    case Buttons::kOkCancel:
      return answer == Answer::kOk || answer == Answer::kCancel;
    case Buttons::kYesNo:
      return answer == Answer::kYes || answer == Answer::kNo;
  }
  return false;
}

template <typename Value>
Value Pop(std::deque<Value>& queue) {
  Value value = std::move(queue.front());
  queue.pop_front();
  return value;
}

}  // namespace

void Answers::Queue(const ScriptLine& line) {
  if (const auto* message = std::get_if<AnswerMessage>(&line.event)) {
    messages_.push_back({message->answer, line.number});
  } else if (const auto* text = std::get_if<AnswerText>(&line.event)) {
    texts_[static_cast<int>(text->question)].push_back(text->text);
  } else if (const auto* recycle = std::get_if<AnswerRecycle>(&line.event)) {
    recycle_.push_back(recycle->yes);
  }
}

Answer Answers::ToMessage(Buttons buttons, const std::function<void(int line)>& refuse) {
  const Answer otherwise = HasButton(buttons, Answer::kOk) ? Answer::kOk : Answer::kNo;
  if (messages_.empty()) return otherwise;
  const QueuedMessage queued = Pop(messages_);
  if (HasButton(buttons, queued.answer)) return queued.answer;
  refuse(queued.line);
  return otherwise;
}

Answers::TextAnswer Answers::ToText(Question question) {
  auto& queue = texts_[static_cast<int>(question)];
  if (queue.empty()) return {};
  return {true, Pop(queue)};
}

bool Answers::ToRecycle() { return recycle_.empty() || Pop(recycle_); }

}  // namespace orvik::forms::headless

#include "forms/win32/refresher.h"

#include <algorithm>
#include <utility>

namespace orvik::forms::win32 {

namespace {

constexpr Changes kUrgent = Bit(Property::kVisible) | Bit(Property::kEnabled) |
                            Bit(Property::kLocked) | Bit(Property::kActive) |
                            Bit(Property::kInterval) | Bit(Property::kBounds) |
                            Bit(Property::kTopmost);

}  // namespace

void Refresher::Mark(Shown& shown, Property property) {
  const Changes bit = Bit(property);
  if (shown.pending_ == 0) waiting_.push_back(&shown);
  shown.pending_ |= bit;
  if ((bit & kUrgent) != 0) urgent_ = true;
}

void Refresher::Forget(Shown& shown) {
  if (shown.pending_ == 0) return;
  shown.pending_ = 0;
  std::replace(waiting_.begin(), waiting_.end(), &shown, static_cast<Shown*>(nullptr));
}

void Refresher::Flush() {
  // Showing one thing can send messages that end in another flush.
  if (flushing_) return;
  flushing_ = true;
  // In the order of the changes: a form may have grown to make room for what comes next. More may
  // be marked meanwhile, and some may go.
  for (std::size_t at = 0; at < waiting_.size(); ++at) {
    Shown* shown = waiting_[at];
    if (shown != nullptr) shown->Refresh(std::exchange(shown->pending_, 0));
  }
  waiting_.clear();
  urgent_ = false;
  flushing_ = false;
}

}  // namespace orvik::forms::win32

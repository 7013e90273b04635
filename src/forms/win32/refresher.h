// Keeps what is on the screen up with the models, at a bounded rate.
#pragma once

#include <cstdint>
#include <vector>

#include "forms/change.h"

namespace orvik::forms::win32 {

// A set of properties.
using Changes = std::uint32_t;
constexpr Changes Bit(Property property) { return 1U << static_cast<unsigned>(property); }

// Something on the screen that may lag behind its model until the next flush.
class Shown {
 public:
  virtual ~Shown() = default;
  // Shows the model's present state, as far as these properties go.
  virtual void Refresh(Changes changes) = 0;

 private:
  friend class Refresher;
  Changes pending_ = 0;
};

// Collects changes, so that a property that changes a thousand times between two flushes is drawn
// once. A job of 100,000 files pays one bit for each change.
class Refresher {
 public:
  void Mark(Shown& shown, Property property);
  // To be called before the object goes.
  void Forget(Shown& shown);
  // True when something waits that decides what a user can press: input must not be handled before
  // it is shown.
  bool urgent() const { return urgent_; }
  void Flush();

 private:
  std::vector<Shown*> waiting_;
  bool urgent_ = false;
  bool flushing_ = false;
};

}  // namespace orvik::forms::win32

// How a run comes to its end.
#pragma once

namespace orvik::forms::headless {

enum class RunEnd {
  kShutdown,  // the program ended itself
  kClosed,    // the last form is gone
  kReturned,  // no form was opened
  kScript,    // the script is over, forms are open
  kCalls,     // the calls to the file system are used up
  kTime,      // the time is used up
};

// Thrown to leave the program from wherever it stands. Not a Failure: nothing on the way catches
// it.
struct RunEnded {
  RunEnd end;
};

}  // namespace orvik::forms::headless

// What happens when a statement of the program fails.
//
// The program's routines go on after a failing statement, and say at the place itself what that
// means. Only a handful of primitives fail: they throw Failure, and Attempt and Passes are the only
// two places that catch it. The end of the process isn't a Failure and passes through both.
#pragma once

#include <utility>

namespace orvik {

// A statement failed. It carries nothing: nobody is told why.
struct Failure {};

// Runs a statement whose failure is dropped. What the statement did before it failed has happened.
template <typename Statement>
void Attempt(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): dropping it is the purpose
  }
}

// Tests a condition whose failure counts as passed, so that the statements under it run.
template <typename Condition>
bool Passes(Condition&& condition) {
  try {
    return std::forward<Condition>(condition)();
  } catch (const Failure&) {
    return true;
  }
}

}  // namespace orvik

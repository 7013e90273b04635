// The progress that the task bar shows for a form.
#pragma once

#include "forms/win32/windows_api.h"

struct ITaskbarList3;

namespace orvik::forms::win32 {

// Does nothing on a system without such progress.
class TaskbarButton {
 public:
  TaskbarButton() = default;
  ~TaskbarButton();
  TaskbarButton(const TaskbarButton&) = delete;
  TaskbarButton& operator=(const TaskbarButton&) = delete;

  // The message by which the task bar says that it has a button for a window; it comes again when
  // the explorer was restarted.
  static UINT CreatedMessage();
  // To be called then.
  void Attach(HWND window);
  // Nothing is shown at 0.
  void SetProgress(int value, int max);

 private:
  void Show();

  HWND window_ = nullptr;
  ITaskbarList3* list_ = nullptr;
  int value_ = 0;
  int max_ = 1;
};

}  // namespace orvik::forms::win32

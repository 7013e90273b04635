// What all windows of the program share.
#pragma once

#include <functional>
#include <vector>

#include "forms/form.h"
#include "forms/win32/refresher.h"
#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

class FormWindow;

class Desk {
 public:
  Refresher& refresher() { return refresher_; }

  // Runs what a doing of the user or a timer sets off in the models. A failure that gets this far
  // ends the event and nothing else. Afterwards the screen shows what has come of it, so that
  // whoever reads a control right after pressing another one finds it up to date.
  void Deliver(const std::function<void()>& event);

  // The windows of the loaded forms, in the order of loading.
  const std::vector<FormWindow*>& windows() const { return windows_; }
  void Enter(FormWindow& window) { windows_.push_back(&window); }
  void Leave(FormWindow& window);
  // The form window that is, or that holds, a window; nullptr for foreign windows.
  FormWindow* Holding(HWND window) const;
  // The form window that dialogs belong to: the active one, else the latest that can be seen.
  FormWindow* Active() const;

  // Keeps the views of a form that is gone as long as their own routines may still be running.
  void Retire(Form& form) { retired_.push_back(&form); }
  void Forget(Form& form) { std::erase(retired_, &form); }
  // Frees those views. Only from where no event is being handled.
  void FreeRetired();

 private:
  Refresher refresher_;
  std::vector<FormWindow*> windows_;
  std::vector<Form*> retired_;
};

// While this lives the user can't get at any form, except by the one window that owns the dialog:
// the system disables that one by itself.
class OtherFormsDisabled {
 public:
  OtherFormsDisabled(const Desk& desk, HWND owner);
  ~OtherFormsDisabled();
  OtherFormsDisabled(const OtherFormsDisabled&) = delete;
  OtherFormsDisabled& operator=(const OtherFormsDisabled&) = delete;

 private:
  std::vector<HWND> disabled_;
};

}  // namespace orvik::forms::win32

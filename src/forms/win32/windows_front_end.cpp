#include "forms/win32/windows_front_end.h"

#include <objbase.h>

#include "forms/form.h"
#include "forms/menu.h"
#include "forms/win32/dialogs.h"
#include "forms/win32/form_window.h"
#include "forms/win32/view_factory.h"

namespace orvik::forms::win32 {

WindowsFrontEnd::WindowsFrontEnd() : loop_(desk_) {
  // For the folder dialog and the task bar.
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  const INITCOMMONCONTROLSEX controls{
      sizeof controls, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES | ICC_LISTVIEW_CLASSES |
                           ICC_TREEVIEW_CLASSES | ICC_PROGRESS_CLASS | ICC_BAR_CLASSES |
                           ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&controls);
}

WindowsFrontEnd::~WindowsFrontEnd() {
  desk_.FreeRetired();
  CoUninitialize();
}

void WindowsFrontEnd::Load(Form& form) {
  form.SetView(std::make_unique<FormWindow>(form, desk_));
  // A frame is declared ahead of what it holds, so its window is there when theirs are made.
  for (Control* control : form.controls()) control->SetView(MakeView(*control, WindowOf(form)));
  WindowOf(form).Stack();
}

void WindowsFrontEnd::Show(Form& form) { WindowOf(form).Show(); }

void WindowsFrontEnd::ShowModal(Form& form) {
  FormWindow& window = WindowOf(form);
  window.BecomeModal(Owner(nullptr));
  window.Show();
  while (form.loaded() && loop_.WaitForInput(-1)) loop_.Yield();
}

void WindowsFrontEnd::PopUp(Menu& menu) { WindowOf(menu.form()).PopUp(menu); }

void WindowsFrontEnd::Draw(Form& form, const DrawnLine& line) { WindowOf(form).Draw(line); }

void WindowsFrontEnd::Drag(Form& form) {
  if (form.view() != nullptr) WindowOf(form).Drag();
}

TwipsPerPixel WindowsFrontEnd::Scale() {
  constexpr double kTwipsPerInch = 1440;
  const FormWindow* active = desk_.Active();
  if (active == nullptr && !desk_.windows().empty()) active = desk_.windows().back();
  const double twips = kTwipsPerInch / (active != nullptr ? active->metrics().dpi() : 96);
  return {twips, twips};
}

void WindowsFrontEnd::Unload(Form& /*form*/) {}

void WindowsFrontEnd::Unloaded(Form& form) {
  WindowOf(form).Close();
  desk_.Retire(form);
  if (desk_.windows().empty()) EndProcess(EndReason::kClosed);
}

void WindowsFrontEnd::Changed(Form& form, Change change) {
  if (form.view() != nullptr) WindowOf(form).Changed(change.property);
}

void WindowsFrontEnd::Changed(Control& control, Change change) {
  if (control.view() != nullptr) static_cast<Adapter*>(control.view())->Changed(change);
}

void WindowsFrontEnd::Repaint(Control& /*control*/) { loop_.ShowNow(); }

void WindowsFrontEnd::EndProcess(EndReason /*reason*/) {
  // The names of windows are shared with other processes and don't go by themselves.
  while (!desk_.windows().empty()) desk_.windows().back()->Close();
  ExitProcess(0);
}

HWND WindowsFrontEnd::Owner(const Form* form) const {
  if (form != nullptr && form->view() != nullptr) return WindowOf(*form).window();
  const FormWindow* active = desk_.Active();
  return active != nullptr ? active->window() : nullptr;
}

Answer WindowsFrontEnd::Message(const Text& text, const Text& title, Icon icon, Buttons buttons) {
  desk_.refresher().Flush();
  const HWND owner = Owner(nullptr);
  const OtherFormsDisabled modal(desk_, owner);
  return ShowMessage(owner, text, title, icon, buttons);
}

Text WindowsFrontEnd::AskText(const Text& prompt, const Text& title) {
  desk_.refresher().Flush();
  const HWND owner = Owner(nullptr);
  const OtherFormsDisabled modal(desk_, owner);
  return ShowInputBox(owner, prompt, title);
}

std::optional<Text> WindowsFrontEnd::AskFolder(const Text& title, Form* owner) {
  desk_.refresher().Flush();
  const HWND window = Owner(owner);
  const OtherFormsDisabled modal(desk_, window);
  return ShowFolderDialog(window, title);
}

std::optional<Text> WindowsFrontEnd::AskFileName(FileDialog dialog, const Text& filter,
                                                 Form* owner) {
  desk_.refresher().Flush();
  const HWND window = Owner(owner);
  const OtherFormsDisabled modal(desk_, window);
  return ShowFileDialog(window, dialog, filter);
}

void WindowsFrontEnd::PutOnClipboard(const Text& text) { CopyToClipboard(Owner(nullptr), text); }

}  // namespace orvik::forms::win32

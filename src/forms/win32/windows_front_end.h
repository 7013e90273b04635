// The front end with real windows.
#pragma once

#include "forms/front_end.h"
#include "forms/win32/desk.h"
#include "forms/win32/message_loop.h"

namespace orvik::forms::win32 {

// One for the process, on the thread that makes it.
class WindowsFrontEnd : public FrontEnd {
 public:
  WindowsFrontEnd();
  ~WindowsFrontEnd() override;
  WindowsFrontEnd(const WindowsFrontEnd&) = delete;
  WindowsFrontEnd& operator=(const WindowsFrontEnd&) = delete;

  void Load(Form& form) override;
  void Show(Form& form) override;
  void ShowModal(Form& form) override;
  void PopUp(Menu& menu) override;
  void Draw(Form& form, const DrawnLine& line) override;
  void Unload(Form& form) override;
  void Unloaded(Form& form) override;
  void Changed(Form& form, Change change) override;
  void Changed(Control& control, Change change) override;
  void Repaint(Control& control) override;

  void Yield() override { loop_.Yield(); }
  bool WaitForInput(std::int32_t milliseconds) override { return loop_.WaitForInput(milliseconds); }
  void Run() override { loop_.Run(); }
  [[noreturn]] void EndProcess(EndReason reason) override;

  Answer Message(const Text& text, const Text& title, Icon icon, Buttons buttons) override;
  Text AskText(const Text& prompt, const Text& title) override;
  std::optional<Text> AskFolder(const Text& title, Form* owner) override;
  std::optional<Text> AskFileName(FileDialog dialog, const Text& filter, Form* owner) override;
  void PutOnClipboard(const Text& text) override;
  void Drag(Form& form) override;
  TwipsPerPixel Scale() override;

 private:
  // The window that a dialog belongs to: that of the form, or of the active one without a form.
  HWND Owner(const Form* form) const;

  Desk desk_;
  MessageLoop loop_;
};

}  // namespace orvik::forms::win32

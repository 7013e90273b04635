#include "forms/win32/taskbar_button.h"

#include <shobjidl.h>

namespace orvik::forms::win32 {

TaskbarButton::~TaskbarButton() {
  if (list_ != nullptr) list_->Release();
}

UINT TaskbarButton::CreatedMessage() {
  static const UINT message = RegisterWindowMessageW(L"TaskbarButtonCreated");
  return message;
}

void TaskbarButton::Attach(HWND window) {
  window_ = window;
  if (list_ == nullptr) {
    void* list = nullptr;
    if (FAILED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                                &list))) {
      return;
    }
    list_ = static_cast<ITaskbarList3*>(list);
    if (FAILED(list_->HrInit())) {
      list_->Release();
      list_ = nullptr;
      return;
    }
  }
  Show();
}

void TaskbarButton::SetProgress(int value, int max) {
  if (value == value_ && max == max_) return;
  value_ = value;
  max_ = max;
  Show();
}

void TaskbarButton::Show() {
  if (list_ == nullptr) return;
  if (value_ <= 0) {
    list_->SetProgressState(window_, TBPF_NOPROGRESS);
  } else {
    list_->SetProgressValue(window_, static_cast<ULONGLONG>(value_), static_cast<ULONGLONG>(max_));
  }
}

}  // namespace orvik::forms::win32

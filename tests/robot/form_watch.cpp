#include "robot/form_watch.h"

#include <algorithm>

#include "robot/dump.h"
#include "robot/window_facts.h"

namespace orvik::robot {

bool FormWatch::Look() {
  std::vector<Seen> present;
  ForEachTopLevel(process_, [&](HWND window) {
    std::string name = FormNameOf(window);
    if (!name.empty() && IsShown(window)) present.push_back({std::move(name), window});
    return true;
  });
  const auto is_in = [](const std::vector<Seen>& forms, HWND window) {
    return std::any_of(forms.begin(), forms.end(),
                       [&](const Seen& form) { return form.window == window; });
  };
  bool news = false;
  std::erase_if(forms_, [&](const Seen& form) {
    if (is_in(present, form.window)) return false;
    record_.FormGone(form.name);
    news = true;
    return true;
  });
  for (Seen& form : present) {
    if (is_in(forms_, form.window)) continue;
    record_.Begin("show").Name("form").String(form.name);
    record_.End();
    forms_.push_back(std::move(form));
    news = true;
  }
  return news;
}

HWND FormWatch::Find(const std::string& form) const {
  const auto found = std::find_if(forms_.begin(), forms_.end(),
                                  [&](const Seen& seen) { return seen.name == form; });
  return found == forms_.end() ? nullptr : found->window;
}

std::vector<HWND> FormWatch::all() const {
  std::vector<HWND> windows;
  for (const Seen& form : forms_) windows.push_back(form.window);
  return windows;
}

std::vector<HWND> FormWatch::Loaded() const {
  std::vector<HWND> windows = all();
  ForEachTopLevel(process_, [&](HWND window) {
    const bool known = std::find(windows.begin(), windows.end(), window) != windows.end();
    if (!known && !FormNameOf(window).empty()) windows.push_back(window);
    return true;
  });
  return windows;
}

}  // namespace orvik::robot

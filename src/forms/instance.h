// Each form exists at most once: to name it is to create it.
#pragma once

#include <memory>
#include <vector>

#include "forms/form.h"

namespace orvik::forms {

// Where form instances live. A form that was unloaded may still have its own routines running
// underneath, so it is kept until the process (or a test) ends and calls ForgetForms.
std::vector<std::unique_ptr<Form>>& FormInstances();
void ForgetForms();

// The instance of a form class, made on first use and made anew after it was unloaded.
template <typename FormClass>
FormClass& The() {
  auto& instances = FormInstances();
  for (auto form = instances.rbegin(); form != instances.rend(); ++form) {
    if (auto* found = dynamic_cast<FormClass*>(form->get())) {
      if (!found->unloaded()) return *found;
      break;
    }
  }
  instances.push_back(std::make_unique<FormClass>());
  return static_cast<FormClass&>(*instances.back());
}

}  // namespace orvik::forms

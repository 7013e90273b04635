// The program under the robot's hands, and the robot's eyes on it.
#pragma once

#include <stdexcept>

#include "robot/clipboard.h"
#include "robot/dialogs.h"
#include "robot/form_watch.h"
#include "robot/menus.h"
#include "robot/messenger.h"
#include "robot/modal_forms.h"
#include "robot/program.h"
#include "robot/record.h"

namespace orvik::robot {

// The program didn't come to rest in time.
struct Hung : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Stage {
 public:
  // `patience` is how long, in milliseconds, one event may keep the program busy.
  Stage(Program& program, Record& record, int patience)
      : program_(program),
        record_(record),
        patience_(patience),
        forms_(program.id(), record),
        dialogs_(program, messenger_, record),
        modal_forms_(messenger_, record, dialogs_.answers()),
        menus_(messenger_, record),
        clipboard_(program.id(), record) {}

  Program& program() const { return program_; }
  Record& record() const { return record_; }
  Messenger& messenger() { return messenger_; }
  const FormWatch& forms() const { return forms_; }
  forms::headless::Answers& answers() { return dialogs_.answers(); }
  Menus& menus() { return menus_; }

  // Looks on, and answers dialogs, until a form is open and the program has come to rest: all that
  // was pressed is done, no dialog is open, nothing new appears, it answers and takes no processor
  // time. False when the program has ended. Throws Hung.
  bool Settle();
  // Looks on for so long in any case.
  bool Watch(int milliseconds);
  // Runs a command of the system to its end and looks on meanwhile. False when it can't be started.
  bool RunCommand(const Text& command);

 private:
  // Writes what is new since the last look. True when anything is, or a dialog is open.
  bool Look();
  bool Answers();

  Program& program_;
  Record& record_;
  const int patience_;
  Messenger messenger_;
  FormWatch forms_;
  Dialogs dialogs_;
  ModalForms modal_forms_;
  Menus menus_;
  ClipboardWatch clipboard_;
};

}  // namespace orvik::robot

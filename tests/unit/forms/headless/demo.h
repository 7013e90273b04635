// A form with a control of each kind, and runs of it behind a script.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/common_dialog.h"
#include "forms/form.h"
#include "forms/headless/run.h"
#include "forms/list_controls.h"
#include "forms/list_view.h"
#include "forms/simple_controls.h"
#include "unit/support/fake_host.h"

namespace orvik::forms::headless {

class DemoMenu : public Captioned {
 public:
  DemoMenu(Form& form, const char* name, Text caption, int index = -1)
      : Captioned(form, Kind::kMenu, name, {}, std::move(caption), index) {}
};

class frmDemo : public Form {
 public:
  frmDemo() : Form("frmDemo", u"Demo", 6000, 4000) {}

  Label frCRC_0{*this, "frCRC", {0, 0, 100, 100}, u"zero", 0};
  Label frCRC_1{*this, "frCRC", {0, 100, 100, 100}, u"one", 1};
  Button btStart{*this, "btStart", {0, 200, 100, 100}, u"Начать"};
  CheckBox cxReport{*this, "cxReport", {0, 300, 100, 100}, u"Report"};
  TextBox txAnswer{*this, "txAnswer", {0, 400, 100, 100}, u"text"};
  ComboBox cbOut{*this, "cbOut", {0, 500, 100, 100}, u"out"};
  ListBox lbPlain{*this, "lbPlain", {0, 600, 100, 100}};
  ListBox lbBoxes{
      *this, "lbBoxes", {0, 700, 100, 100}, ListBox::Boxes::kCheck, ListBox::Selection::kExtended};
  ProgressBar pbMain{*this, "pbMain", {0, 800, 100, 100}};
  StatusBar sbMain{*this, "sbMain", {0, 900, 100, 100}};
  Timer clExit{*this, "clExit", 1000, false};
  Timer clInfo{*this, "clInfo", 300, false};
  Picture pbDest{*this, "pbDest", {0, 1000, 100, 100}, Picture::Image::kFolder};
  Line lnOne{*this, "lnOne", {0, 1100, 100, 0}, 0};
  DemoMenu mnItem{*this, "mnItem", u"Item", 0};
  ListView lvMain{*this, "lvMain", {0, 1200, 100, 100}, {{u"Файл", 4500}, {u"CRC", 2300}}};
  CommonDialog cdMain{*this, "cdMain"};
  Frame frLog{*this, "frLog", {0, 0, 6000, 4000}, u"Log"};
  Button btInside{*this, "btInside", {0, 0, 100, 100}, u"Inside"};

  // What the handlers have heard.
  std::function<void(frmDemo&)> load;
  std::function<void(frmDemo&)> unload;

 protected:
  void OnLoad() override {
    frLog.SetVisible(false);
    btInside.PutInto(frLog);
    if (load) load(*this);
  }
  void OnUnload() override {
    if (unload) unload(*this);
  }
};

// What came out of a run.
struct Played {
  int status = -1;
  std::vector<std::string> lines;
};

// A program that opens the demo form, prepared by a test, on a host in memory.
class Demo {
 public:
  // Runs in the form's load routine.
  std::function<void(frmDemo&)> prepare = [](frmDemo&) {};
  // The program itself; the default opens the form.
  Program program;
  test::FakeHost host;

  Demo();
  // Runs with these options (each one an argument) and this script.
  Played Run(const std::string& script, std::vector<std::string> options = {});

  // Notes something from inside a handler, as a clipboard line of the transcript.
  static void Note(const std::string& text);
};

}  // namespace orvik::forms::headless

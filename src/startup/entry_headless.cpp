// The headless program: everything but the windows.
#include "forms/headless/native.h"
#include "forms/headless/run.h"
#include "startup/main.h"

int main(int argc, char** argv) {
  using namespace orvik;
  return forms::headless::RunProcess(forms::headless::Arguments(argc, argv), mdlMain::Main);
}

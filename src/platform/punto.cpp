#include "platform/punto.h"

#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "platform/kill_process.h"
#include "platform/registry_layer.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

void Tell(const Text& text) {
  forms::Front().Message(text, Text(ProgramTitle), forms::Icon::kInformation, forms::Buttons::kOk);
}

// OK and Cancel are offered and Yes is looked for: whatever the user presses, nothing happens.
void OfferToGiveUp() {
  const forms::Answer answer =
      forms::Front().Message(u"Punto Switcher не найден, отключить данную возможность",
                             Text(ProgramTitle), forms::Icon::kQuestion, forms::Buttons::kOkCancel);
  if (answer != forms::Answer::kYes) return;
  mdlSupport::DeleteRegKey(host::kClassesRoot, u"exefile\\Shell\\Отключить в Punto");
  Shutdown();
}

}  // namespace

Text PuntoFolder() {
  const EnvironmentInfo environment = ReadEnvironment();
  Text folder;
  for (const Text& place : {environment.ProgramFiles, environment.WindowsFolder}) {
    const Text candidate = mdlSupport::AddBackslash(place) + u"Punto Switcher";
    if (host::Files().PathExists(candidate)) folder = candidate;
  }
  return folder;
}

void AddToPunto(const Text& program) {
  const Text data = PuntoFolder() + u"\\prog_ex.dat";
  if (!host::Files().PathExists(data)) {
    OfferToGiveUp();
    return;
  }
  const Text content = mdlSupport::ReadWholeFile(data);
  if (content.find(program) != Text::npos) {
    Tell(u"Программа уже имеется в списке Punto");
    return;
  }
  mdlSupport::AppendToFile(content + program + Text(kCrLf), data, kFalse);
  // It reads its list when it starts.
  mdlKillProcess::KillProcess(u"ps.exe");
  host::TheShell().Start(PuntoFolder() + u"\\PS.exe", host::WindowState::kNormal);
  Tell(u"Программа добавлена в списк Punto");
}

}  // namespace orvik::mdlMain

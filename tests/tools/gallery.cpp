// Shows one of each control in real windows, to be looked at and to be played with.
//
//   gallery          waits for the user
//   gallery job N    a form's work on N files, with its times shown in its title at the end
#include "base/numbers.h"
#include "forms/instance.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"
#include "forms/win32/windows_api.h"
#include "forms/win32/windows_front_end.h"

namespace orvik::forms {
namespace {

class frmGallery : public Form {
 public:
  frmGallery();

  Label mtTop{*this, "mtTop", {120, 120, 6000, 210}, u"Подпись: имя папки & длинный текст"};
  Label mtPath{*this,
               "mtPath",
               {120, 360, 6000, 210},
               u"C:\\Documents and Settings\\Пользователь\\Мои документы\\Очень длинная папка\\Ещё "
               u"одна папка\\файл.txt"};
  ComboBox cbOne{*this, "cbOne", {120, 630, 5400, 315}, u"*.*"};
  Picture pbFolder{*this, "pbFolder", {5580, 630, 375, 315}, Picture::Image::kFolder};
  Picture pbFile{*this, "pbFile", {6000, 630, 375, 315}, Picture::Image::kFile};
  ComboBox cbLocked{*this, "cbLocked", {120, 1020, 5400, 315}, u"заперто"};
  TextBox txOne{*this, "txOne", {120, 1410, 5400, 315}, u"текст"};
  CheckBox cxOne{*this, "cxOne", {120, 1800, 3000, 255}, u"Включить поле"};
  CheckBox cxOff{*this, "cxOff", {3180, 1800, 3000, 255}, u"Недоступно"};
  Line lnOne{*this, "lnOne", {120, 2130, 6255, 0}, 0};
  ProgressBar pbMain{*this, "pbMain", {120, 2220, 4200, 255}};
  Picture pbMore{*this, "pbMore", {4440, 2190, 375, 315}, Picture::Image::kMore};
  Button btStart{*this, "btStart", {4920, 2160, 1455, 375}, u"Начать"};
  ListBox lbPlain{*this, "lbPlain", {120, 2640, 3000, 1500}};
  ListBox lbChecks{*this, "lbChecks", {3240, 2640, 3135, 1500}, ListBox::Boxes::kCheck};
  Frame rmBox{*this, "rmBox", {120, 4230, 3000, 750}, u"Тип файлов"};
  ComboBox cbInBox{*this, "cbInBox", {120, 285, 2700, 315}, u"*.txt"};
  Button btFrame{*this, "btFrame", {3240, 4320, 1500, 375}, u"Рамка сверху"};
  Button btAsk{*this, "btAsk", {4860, 4320, 1515, 375}, u"Спросить..."};
  Label mtKeys{*this, "mtKeys", {3240, 4755, 3135, 210}, u"-"};
  Frame frOver{*this, "frOver", {0, 0, 6510, 5100}, u""};
  Button btBack{*this, "btBack", {300, 300, 1800, 375}, u"Убрать рамку"};
  Timer clTick{*this, "clTick", 200, false};

  void Job(int files);

 private:
  void OnLoad() override;
  int ticks_ = 0;
};

frmGallery::frmGallery() : Form("frmGallery", u"Все элементы", 6600, 5505) {
  mtPath.SetCut(Label::Cut::kPath);
  cbInBox.PutInto(rmBox);
  btBack.PutInto(frOver);
  frOver.SetVisible(false);
  cbLocked.SetLocked(true);
  cxOff.SetEnabled(false);
  btStart.MakeDefault();
  pbFolder.SetHint(u"Выбрать папку");
  pbFile.SetHint(u"Выбрать файл");
  pbMore.SetHint(u"Другие параметры");
  for (Control* control : controls()) control->SetAnchor(Control::Anchor::kStretch);
  for (Control* control : std::initializer_list<Control*>{&pbFolder, &pbFile, &pbMore, &btStart}) {
    control->SetAnchor(Control::Anchor::kRight);
  }
  rmBox.SetAnchor(Control::Anchor::kNone);

  mtTop.on_click = [this] { Front().PutOnClipboard(mtTop.caption()); };
  pbFolder.on_click = [this] {
    if (const auto folder = Front().AskFolder(u"Выберите папку", this)) cbOne.SetText(*folder);
  };
  pbFile.on_click = [this] {
    const auto file =
        Front().AskFileName(FileDialog::kOpen, u"Списки (*.qlx)|*.qlx|Все файлы|*.*", this);
    if (file) cbOne.SetText(*file);
  };
  pbMore.on_click = [this] { SetSize(width(), height() == 5505 ? 6405 : 5505); };
  cxOne.on_click = [this] { txOne.SetEnabled(!cxOne.checked()); };
  btStart.on_click = [this] {
    btStart.SetEnabled(false);
    Job(20000);
    btStart.SetEnabled(true);
  };
  btFrame.on_click = [this] { frOver.SetVisible(true); };
  btBack.on_click = [this] { frOver.SetVisible(false); };
  btAsk.on_click = [this] {
    txOne.SetText(Front().AskText(u"Введите ключ, которым будет зашифрован файл:", u"Вопрос"));
    Front().Message(u"Ответ: " + txOne.text(), u"Вопрос", Icon::kInformation, Buttons::kOk);
  };
  on_key_down = [this](Key& key) { mtKeys.SetCaption(u"Клавиша" + SpacedDecimal(key.code)); };
  on_key_press = [](int character) {
    if (character == kKeyEscape) Front().EndProcess(EndReason::kShutdown);
  };
  lbPlain.on_click = [this] { mtKeys.SetCaption(u"Строка" + SpacedDecimal(lbPlain.index())); };
  clTick.on_timer = [this] { SetCaption(u"Все элементы," + SpacedDecimal(++ticks_)); };
}

void frmGallery::OnLoad() {
  for (ComboBox* combo : {&cbOne, &cbLocked, &cbInBox}) {
    combo->Add(u"*.*");
    combo->Add(u"C:\\Документы");
  }
  for (int i = 0; i < 30; ++i) lbPlain.Add(u"Запись" + SpacedDecimal(i));
  for (int i = 0; i < 100000; ++i) {
    lbChecks.Add(u"C:\\Папка\\Вложенная папка\\файл" + SpacedDecimal(i) + u".txt");
    if (i % 3 == 0) lbChecks.SetChecked(i, true);
  }
  pbMain.SetValue(40);
  clTick.SetActive(true);
}

void frmGallery::Job(int files) {
  const ULONGLONG start = GetTickCount64();
  pbMain.SetMax(files);
  for (int i = 0; i < files; ++i) {
    mtPath.SetCaption(u"C:\\Documents and Settings\\Папка с длинным именем\\файл" +
                      SpacedDecimal(i));
    mtPath.Repaint();
    pbMain.SetValue(i + 1);
    for (int yields = 0; yields < 4; ++yields) Yield();
  }
  clTick.SetActive(false);
  SetCaption(u"Миллисекунд:" + SpacedDecimal(static_cast<std::int64_t>(GetTickCount64() - start)));
}

}  // namespace
}  // namespace orvik::forms

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR line, int) {
  orvik::forms::win32::WindowsFrontEnd front_end;
  orvik::forms::Install(front_end);
  auto& form = orvik::forms::The<orvik::forms::frmGallery>();
  form.Show();
  if (wcsncmp(line, L"job ", 4) == 0) form.Job(_wtoi(line + 4));
  front_end.Run();
  return 0;
}

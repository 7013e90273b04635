// The form with three jobs: the checksums of a folder, two folders compared, two lists compared.
#pragma once

#include <vector>

#include "forms/common_dialog.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/simple_controls.h"

namespace orvik {

class frmCRC : public forms::Form {
 public:
  frmCRC();

  forms::ListView lvMain{
      *this, "lvMain", {0, 0, 9495, 5100}, {{u"Файл", 5000}, {u"CRC (Fast method)", 2000}}};
  forms::StatusBar sbMain{*this, "sbMain", {0, 5100, 9495, 345}};
  forms::CommonDialog cdMain{*this, "cdMain"};

  // Lists the checksums of the files of CommandArgs.
  void ReloadFolderChecksums();
  // Compares the files of CommandArgs and of a second folder, paired by their bare names. Ends the
  // process when one of the folders is missing.
  void ReloadComparedFolders(Text second_folder);
  // Asks for a file list and compares it with the one of CommandArgs, line by line, paired by bare
  // names. Ends the process when one of them is missing or empty.
  void ReloadFileListComparation();

 protected:
  void OnLoad() override;
  void OnUnload() override;
  void OnResize() override;

 private:
  void ShowWork();
  void AddFirstFolder(const std::vector<Text>& files);
  void AddSecondFolder(const std::vector<Text>& files, const std::vector<Text>& first_files);
  void ReadList(const Text& path, Text& name);
  void TakeLine(const std::vector<TextView>& fields, Text& name);
  void ShowLength();
  void SelectDefaultRows(const forms::Key& key);
};

}  // namespace orvik

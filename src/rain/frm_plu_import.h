// The library of external rains (frmPluImport), its kind chosen by a key:
// rows that name a rain text file read by the generation (kinds 127 for "PR"
// and 128 for "PPHY"), and the import of a file's blocks of that key into the
// network as ordinary rains.
#pragma once

#include <string>

#include "rain/rain_import.h"
#include "rain/rain_library.h"

namespace pluvane {

class FrmPluImport : public RainLibrary {
 public:
  static constexpr int kColFile = 3;

  // `key`: "PR", "PPHY", "CAQ", "PPST", "PPDT" or "PRAD".
  FrmPluImport(EditorContext& context, const std::string& key);

  const std::string& key() const { return key_; }

  // Opens the current row's file in the text editor.
  void mnEdit();
  // Asks for a rain file and imports its blocks of the key.
  void mnImporter();
  // Imports the files named in the list, one after the other.
  void mnLoad();

  const RainImportResult& last_import() const { return last_; }

 protected:
  std::string ChooseFile(int col) override;
  std::vector<FormCommand> ExtraCommands() override;

 private:
  // The file of a row, or empty with "fichier introuvable:" when it is missing.
  bool RowFile(int row, std::string& path);

  std::string key_;
  RainImportResult last_;
};

// The title of the library for a key (empty for an unknown key).
std::string PluImportCaption(const std::string& key);

}  // namespace pluvane

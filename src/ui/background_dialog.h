// The window of the background plan (frmImpfileDlg): a folder, the list of its
// files under one of the type filters, the two placings, Ok and Cancel. Ok
// hands the chosen file to the controller, and the window closes once the
// plan is laid; a refused or unreadable file leaves it open.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <string>

#include "shell/frm_impfile_dlg.h"

namespace pluvane {

class BackgroundDialog : public QDialog {
  Q_OBJECT

 public:
  BackgroundDialog(FrmImpfileDlg& form, const std::string& folder, QWidget* parent = nullptr);

  QListWidget* Files() const { return files_; }
  QComboBox* Types() const { return types_; }
  QComboBox* Placings() const { return placings_; }
  QLineEdit* Folder() const { return folder_; }
  // Chooses the folder and lists it; selects a file by name.
  void SetFolder(const QString& folder);
  bool SelectFile(const QString& name);
  // The Ok button; true when the plan was laid.
  bool cmdOk();

 private:
  void ListFiles();

  FrmImpfileDlg& form_;
  QLineEdit* folder_;
  QListWidget* files_;
  QComboBox* types_;
  QComboBox* placings_;
};

// Whether Qt can load the picture (bmp, jpg, png, gif, tif...).
bool QtCanReadPicture(const std::string& path);

}  // namespace pluvane

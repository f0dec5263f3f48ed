#include "ui/background_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QVBoxLayout>

namespace pluvane {

bool QtCanReadPicture(const std::string& path) {
  QImageReader reader(QString::fromStdString(path));
  reader.setDecideFormatFromContent(true);
  return reader.canRead();
}

BackgroundDialog::BackgroundDialog(FrmImpfileDlg& form, const std::string& folder, QWidget* parent)
    : QDialog(parent), form_(form) {
  setObjectName("frmImpfileDlg");
  setWindowTitle(QString::fromStdString(form_.Caption()));
  auto* layout = new QVBoxLayout(this);
  auto* folder_row = new QHBoxLayout;
  folder_ = new QLineEdit(this);
  folder_->setObjectName("Dir1");
  auto* browse = new QPushButton("...", this);
  browse->setObjectName("cmdDir");
  browse->setFixedWidth(32);
  folder_row->addWidget(folder_, 1);
  folder_row->addWidget(browse);
  layout->addLayout(folder_row);
  files_ = new QListWidget(this);
  files_->setObjectName("File1");
  layout->addWidget(files_, 1);
  auto* form_layout = new QFormLayout;
  types_ = new QComboBox(this);
  types_->setObjectName("cboType");
  for (const std::string& filter : FrmImpfileDlg::TypeFilters()) {
    types_->addItem(QString::fromStdString(filter));
  }
  placings_ = new QComboBox(this);
  placings_->setObjectName("cboMode");
  for (const std::string& mode : FrmImpfileDlg::PlacingModes()) {
    placings_->addItem(QString::fromStdString(mode));
  }
  form_layout->addRow("Type de fichier :", types_);
  form_layout->addRow("Position :", placings_);
  layout->addLayout(form_layout);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton("&Ok", QDialogButtonBox::AcceptRole)->setObjectName("cmdOk");
  buttons->addButton("&Annuler", QDialogButtonBox::RejectRole)->setObjectName("cmdAnnul");
  layout->addWidget(buttons);

  connect(browse, &QPushButton::clicked, this, [this] {
    const QString chosen = QFileDialog::getExistingDirectory(this, windowTitle(), folder_->text());
    if (!chosen.isEmpty()) SetFolder(chosen);
  });
  connect(folder_, &QLineEdit::editingFinished, this, [this] { ListFiles(); });
  connect(types_, &QComboBox::currentIndexChanged, this, [this] { ListFiles(); });
  connect(files_, &QListWidget::itemDoubleClicked, this, [this] { cmdOk(); });
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { cmdOk(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form_.picture_readable = QtCanReadPicture;
  SetFolder(QString::fromStdString(folder));
  resize(420, 380);
}

void BackgroundDialog::SetFolder(const QString& folder) {
  folder_->setText(folder);
  ListFiles();
}

void BackgroundDialog::ListFiles() {
  files_->clear();
  QDir dir(folder_->text());
  dir.setNameFilters({types_->currentText()});
  dir.setFilter(QDir::Files);
  dir.setSorting(QDir::Name | QDir::IgnoreCase);
  files_->addItems(dir.entryList());
}

bool BackgroundDialog::SelectFile(const QString& name) {
  const auto found = files_->findItems(name, Qt::MatchExactly);
  if (found.isEmpty()) return false;
  files_->setCurrentItem(found.first());
  return true;
}

bool BackgroundDialog::cmdOk() {
  QListWidgetItem* item = files_->currentItem();
  if (!item) return false;
  const std::string path = QDir(folder_->text()).filePath(item->text()).toStdString();
  if (!form_.cmdOk(path, placings_->currentIndex() + 1)) return false;
  accept();
  return true;
}

}  // namespace pluvane

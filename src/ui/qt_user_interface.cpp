#include "ui/qt_user_interface.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QUrl>

namespace pluvane {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

QMessageBox::Icon QtIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical: return QMessageBox::Critical;
    case MessageIcon::kQuestion: return QMessageBox::Question;
    case MessageIcon::kExclamation: return QMessageBox::Warning;
    case MessageIcon::kInformation: return QMessageBox::Information;
    case MessageIcon::kNone: break;
  }
  return QMessageBox::NoIcon;
}

// Colours of the drawing keep red in the low byte.
QColor QtColour(std::int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

}  // namespace

QString QtFilterOf(const std::string& filter) {
  QStringList parts = Q(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ');
    QString label = parts[i];
    qsizetype paren = label.indexOf('(');
    if (paren >= 0) label = label.left(paren).trimmed();
    filters << QStringLiteral("%1 (%2)").arg(label, patterns);
  }
  if (filters.isEmpty() && !filter.empty()) filters << Q(filter);
  return filters.join(";;");
}

void QtUserInterface::ShowMessage(const std::string& text, const std::string& title,
                                  MessageIcon icon) {
  QMessageBox box(QtIcon(icon), Q(title), Q(text), QMessageBox::Ok, owner_);
  box.exec();
}

bool QtUserInterface::AskYesNo(const std::string& text, const std::string& title,
                               MessageIcon icon, bool default_yes) {
  QMessageBox box(QtIcon(icon), Q(title), Q(text), QMessageBox::NoButton, owner_);
  QPushButton* yes = box.addButton("&Oui", QMessageBox::YesRole);
  QPushButton* no = box.addButton("&Non", QMessageBox::NoRole);
  box.setDefaultButton(default_yes ? yes : no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

Answer QtUserInterface::AskYesNoCancel(const std::string& text, const std::string& title,
                                       MessageIcon icon) {
  QMessageBox box(QtIcon(icon), Q(title), Q(text), QMessageBox::NoButton, owner_);
  QPushButton* yes = box.addButton("&Oui", QMessageBox::YesRole);
  QPushButton* no = box.addButton("&Non", QMessageBox::NoRole);
  QPushButton* cancel = box.addButton("Annuler", QMessageBox::RejectRole);
  box.setDefaultButton(yes);
  box.setEscapeButton(cancel);
  box.exec();
  if (box.clickedButton() == yes) return Answer::kYes;
  if (box.clickedButton() == no) return Answer::kNo;
  return Answer::kCancel;
}

std::optional<std::string> QtUserInterface::AskText(const std::string& prompt,
                                                    const std::string& title,
                                                    const std::string& default_text) {
  bool ok = false;
  QString text = QInputDialog::getText(owner_, Q(title), Q(prompt), QLineEdit::Normal,
                                       Q(default_text), &ok);
  if (!ok) return std::nullopt;
  return text.toStdString();
}

std::string QtUserInterface::AskOpenFile(const std::string& title, const std::string& filter,
                                         const std::string&, const std::string& initial_name) {
  return QFileDialog::getOpenFileName(owner_, Q(title), Q(initial_name), QtFilterOf(filter))
      .toStdString();
}

std::string QtUserInterface::AskSaveFile(const std::string& title, const std::string& filter,
                                         const std::string& default_ext,
                                         const std::string& initial_name) {
  QFileDialog dialog(owner_, Q(title), Q(initial_name), QtFilterOf(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(Q(default_ext));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first().toStdString();
}

std::string QtUserInterface::BrowseFolder(const std::string& initial_folder,
                                          const std::string& title) {
  return QFileDialog::getExistingDirectory(owner_, Q(title), Q(initial_folder)).toStdString();
}

std::optional<std::int32_t> QtUserInterface::ChooseColour(std::int32_t initial) {
  QColor c = QColorDialog::getColor(QtColour(initial), owner_);
  if (!c.isValid()) return std::nullopt;
  return c.red() + 256 * c.green() + 65536 * c.blue();
}

std::optional<FontChoice> QtUserInterface::ChooseFont(const FontChoice& initial) {
  QFont start(Q(initial.name), static_cast<int>(initial.size));
  start.setBold(initial.bold);
  start.setItalic(initial.italic);
  start.setUnderline(initial.underline);
  start.setStrikeOut(initial.strike);
  bool ok = false;
  QFont f = QFontDialog::getFont(&ok, start, owner_);
  if (!ok) return std::nullopt;
  FontChoice choice = initial;
  choice.name = f.family().toStdString();
  choice.size = f.pointSizeF();
  choice.bold = f.bold();
  choice.italic = f.italic();
  choice.underline = f.underline();
  choice.strike = f.strikeOut();
  return choice;
}

void QtUserInterface::ShowStatus(const std::string& text) {
  if (status_sink) status_sink(text);
}

void QtUserInterface::ShowProgress(int value) {
  if (progress_sink) progress_sink(value);
}

void QtUserInterface::ShowPanel(const std::string& panel, const std::string& text) {
  if (panel_sink) panel_sink(panel, text);
}

bool QtUserInterface::SaveDrawingPicture(const std::string& path) {
  return picture_writer && picture_writer(path);
}

void QtUserInterface::PutClipboardData(const std::string& type, const std::string& data) {
  auto* mime = new QMimeData;
  mime->setData(Q(type), QByteArray(data.data(), static_cast<qsizetype>(data.size())));
  QGuiApplication::clipboard()->setMimeData(mime);
}

std::string QtUserInterface::ClipboardData(const std::string& type) {
  const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
  if (mime == nullptr) return "";
  return mime->data(Q(type)).toStdString();
}

bool QtUserInterface::ClipboardEmpty() {
  const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
  return mime == nullptr || mime->formats().isEmpty();
}

bool QtUserInterface::CopyDrawingPicture() {
  if (!drawing_renderer) return false;
  const QImage image = drawing_renderer();
  if (image.isNull()) return false;
  QGuiApplication::clipboard()->setImage(image);
  return true;
}

bool QtUserInterface::EditFile(const std::string& path) {
  if (!QFileInfo::exists(Q(path))) return false;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(Q(path)));
}

std::string QtUserInterface::PrintLines(const std::vector<std::string>& lines,
                                        double point_size) {
  QPrinter printer;
  QPrintDialog dialog(&printer, owner_);
  if (dialog.exec() != QDialog::Accepted) return "Impression annulée";
  QPainter painter;
  if (!painter.begin(&printer)) return "L'imprimante ne répond pas";
  QFont font("DejaVu Sans");
  font.setPointSizeF(point_size);
  painter.setFont(font);
  const int line_height = painter.fontMetrics().lineSpacing();
  const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
  int y = line_height;
  for (const auto& line : lines) {
    if (y > page.height()) {
      printer.newPage();
      y = line_height;
    }
    painter.drawText(0, y, QString::fromStdString(line));
    y += line_height;
  }
  painter.end();
  return {};
}

void QtUserInterface::PumpEvents() { QApplication::processEvents(); }

void QtUserInterface::Beep() { QApplication::beep(); }

}  // namespace pluvane

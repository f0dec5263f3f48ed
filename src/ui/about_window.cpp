#include "ui/about_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>

#include "network/catalogue.h"
#include "shell/about.h"
#include "ui/picture_cache.h"

namespace pluvane {

namespace {

// A catchment draining to a node, drawn with the program's own symbols.
QPixmap AboutPicture(const std::string& symbol_dir) {
  QPixmap pixmap(120, 120);
  pixmap.fill(QColor(235, 243, 250));
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(40, 90, 160), 4));
  painter.drawLine(QPointF(30, 34), QPointF(90, 90));
  PictureCache pictures;
  pictures.Draw(painter, SymbolPathOfKey(symbol_dir, "X_BV"), QRectF(10, 12, 44, 44), false);
  pictures.Draw(painter, SymbolPathOfKey(symbol_dir, "X_NOD"), QRectF(78, 78, 24, 24), false);
  return pixmap;
}

}  // namespace

AboutWindow::AboutWindow(const std::string& symbol_dir, QWidget* parent) : QDialog(parent) {
  const AboutText about = About();
  setObjectName("frmAbout");
  setWindowTitle(QString::fromStdString(about.title));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(20, 20, 24, 20);
  layout->setSpacing(20);
  picture_ = new QLabel(this);
  picture_->setObjectName("picIcon");
  picture_->setPixmap(AboutPicture(symbol_dir));
  picture_->setAlignment(Qt::AlignTop);
  text_ = new QLabel(this);
  text_->setObjectName("lblText");
  text_->setTextFormat(Qt::RichText);
  QString description = QString::fromStdString(about.description).toHtmlEscaped();
  description.replace('\n', "<br>");
  text_->setText(QStringLiteral("<h2>%1</h2><p><b>%2</b></p><p>%3</p>")
                     .arg(QString::fromStdString(about.name), QString::fromStdString(about.version),
                          description));
  layout->addWidget(picture_);
  layout->addWidget(text_, 1);
  setFixedSize(sizeHint());
}

void AboutWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
      event->key() == Qt::Key_Escape) {
    accept();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace pluvane

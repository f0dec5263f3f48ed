#include "ui/picture_icon_engine.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>

#include "ui/picture_cache.h"

namespace pluvane {

PictureIconEngine::PictureIconEngine(std::string path, double margin)
    : PictureIconEngine(std::move(path), margin, std::make_shared<PictureCache>()) {}

PictureIconEngine::PictureIconEngine(std::string path, double margin,
                                     std::shared_ptr<PictureCache> pictures)
    : path_(std::move(path)), margin_(margin), pictures_(std::move(pictures)) {}

bool PictureIconEngine::IsReadable() const {
  return !path_.empty() && !pictures_->NaturalSize(path_).isEmpty();
}

bool PictureIconEngine::Draw(QPainter& painter, const QRectF& rect) const {
  const double inset = margin_ * std::min(rect.width(), rect.height());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  return pictures_->Draw(painter, path_, rect.adjusted(inset, inset, -inset, -inset), false);
}

QPixmap PictureIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) {
  if (size.isEmpty()) return {};
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  {
    QPainter painter(&pixmap);
    Draw(painter, QRectF(QPointF(0, 0), QSizeF(size)));
  }
  if (mode == QIcon::Disabled || mode == QIcon::Selected) {
    // The greyed or highlighted look of the style in use, as for any icon.
    if (auto* app = qobject_cast<QApplication*>(QCoreApplication::instance())) {
      QStyleOption option;
      option.palette = QApplication::palette();
      const QPixmap styled = app->style()->generatedIconPixmap(mode, pixmap, &option);
      if (!styled.isNull()) return styled;
    }
  }
  return pixmap;
}

QPixmap PictureIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                                        qreal scale) {
  // `size` is already in device pixels: the picture is drawn at that size.
  QPixmap drawn = pixmap(size, mode, state);
  drawn.setDevicePixelRatio(scale);
  return drawn;
}

void PictureIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                              QIcon::State state) {
  if (mode == QIcon::Normal || mode == QIcon::Active) {
    Draw(*painter, rect);
    return;
  }
  const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
  QPixmap drawn = pixmap(rect.size() * ratio, mode, state);
  drawn.setDevicePixelRatio(ratio);
  painter->drawPixmap(rect, drawn);
}

QSize PictureIconEngine::actualSize(const QSize& size, QIcon::Mode, QIcon::State) { return size; }

QIconEngine* PictureIconEngine::clone() const {
  return new PictureIconEngine(path_, margin_, pictures_);
}

QString PictureIconEngine::key() const { return QStringLiteral("PictureIconEngine"); }

bool PictureIconEngine::isNull() { return !IsReadable(); }

}  // namespace pluvane

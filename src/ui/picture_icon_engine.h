// An icon drawn from a picture file (SVG or image) at whatever size and
// pixel ratio it is asked for, so that a tool stays sharp on a HiDPI screen
// instead of showing a small bitmap scaled up.
#pragma once

#include <QIconEngine>
#include <memory>
#include <string>

namespace pluvane {

class PictureCache;

class PictureIconEngine : public QIconEngine {
 public:
  // `margin` is the blank left around the picture, as a fraction of the
  // icon's side (the symbols of the elements fill their own square).
  PictureIconEngine(std::string path, double margin);

  // True when the picture can be read and drawn.
  bool IsReadable() const;

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                       qreal scale) override;
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override;
  QString key() const override;
  bool isNull() override;

 private:
  PictureIconEngine(std::string path, double margin, std::shared_ptr<PictureCache> pictures);
  // Draws the picture into `rect` of the painter, without any mode effect.
  bool Draw(QPainter& painter, const QRectF& rect) const;

  std::string path_;
  double margin_;
  std::shared_ptr<PictureCache> pictures_;
};

}  // namespace pluvane

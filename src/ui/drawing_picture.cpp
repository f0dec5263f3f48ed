#include "ui/drawing_picture.h"

#include <QFile>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

#include "ui/picture_format.h"
#include "ui/surface_painter.h"

namespace pluvane {

namespace {

// Margin around the drawing, as a share of its larger side.
constexpr double kMarginShare = 0.02;
constexpr int kLargestSide = 20000;

QSize PictureSize(const QRectF& extent, int width_pixels) {
  const int width = std::clamp(width_pixels, 1, kLargestSide);
  const double ratio = extent.width() > 0 ? extent.height() / extent.width() : 1;
  const int height = std::clamp(static_cast<int>(std::lround(width * ratio)), 1, kLargestSide);
  return QSize(width, height);
}

void PaintWhole(const Surface& surface, const QRectF& extent, QPainter& painter,
                const QSize& size, const PictureFolders& folders, bool vector) {
  SurfacePainter surface_painter;
  surface_painter.SetFolders(folders.base_dir, folders.symbol_dir);
  surface_painter.options.show_selection = false;
  surface_painter.options.show_grid = false;
  surface_painter.options.vector_output = vector;
  surface_painter.Paint(surface, painter, extent, size);
}

}  // namespace

QRectF DrawingExtent(const Surface& surface) {
  SpatialIndex index;
  index.Update(surface);
  Box box;
  QRectF extent;
  if (index.Bounds(box)) {
    extent = QRectF(QPointF(box.left, box.top), QPointF(box.right, box.bottom));
  } else {
    extent = QRectF(surface.LogicLeft(), surface.LogicTop(), surface.LogicWidth(),
                    surface.LogicHeight());
  }
  const double margin = std::max(1.0, kMarginShare * std::max(extent.width(), extent.height()));
  return extent.adjusted(-margin, -margin, margin, margin);
}

QImage RenderDrawing(const Surface& surface, int width_pixels, const PictureFolders& folders) {
  return RenderArea(surface, DrawingExtent(surface), width_pixels, folders);
}

QImage RenderArea(const Surface& surface, const QRectF& extent, int width_pixels,
                  const PictureFolders& folders) {
  const QSize size = PictureSize(extent, width_pixels);
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintWhole(surface, extent, painter, size, folders, false);
  painter.end();
  return image;
}

bool SaveDrawingPicture(const Surface& surface, const std::string& path, int width_pixels,
                        const PictureFolders& folders) {
  return SaveAreaPicture(surface, DrawingExtent(surface), path, width_pixels, folders);
}

bool SaveAreaPicture(const Surface& surface, const QRectF& extent, const std::string& path,
                     int width_pixels, const PictureFolders& folders) {
  const PictureFormat format = PictureFormatOf(path);
  const QString file = QString::fromStdString(path);
  const QSize size = PictureSize(extent, width_pixels);
  switch (format) {
    case PictureFormat::kSvg:
    case PictureFormat::kMetafile: {
      QSvgGenerator generator;
      generator.setFileName(file);
      generator.setSize(size);
      generator.setViewBox(QRect(QPoint(0, 0), size));
      generator.setTitle("Pluvane");
      QPainter painter;
      if (!painter.begin(&generator)) return false;
      PaintWhole(surface, extent, painter, size, folders, true);
      return painter.end() && QFile::exists(file);
    }
    case PictureFormat::kPdf: {
      QPdfWriter writer(file);
      writer.setTitle("Pluvane");
      writer.setCreator("Pluvane");
      writer.setResolution(96);
      writer.setPageSize(QPageSize(QSizeF(size.width() * 25.4 / 96, size.height() * 25.4 / 96),
                                   QPageSize::Millimeter));
      writer.setPageMargins(QMarginsF(0, 0, 0, 0));
      QPainter painter;
      if (!painter.begin(&writer)) return false;
      // The page may round to a slightly other size: paint over the whole of it.
      const QSize page(painter.device()->width(), painter.device()->height());
      PaintWhole(surface, extent, painter, page, folders, true);
      return painter.end() && QFile::exists(file);
    }
    case PictureFormat::kRaster:
      return RenderArea(surface, extent, width_pixels, folders).save(file);
    case PictureFormat::kUnknown:
      break;
  }
  return false;
}

}  // namespace pluvane

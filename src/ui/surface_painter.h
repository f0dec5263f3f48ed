// Paints a drawing onto any QPainter: the widget, picture export and printing
// share it. Draws the page colour, the background plan, the grid, then every
// visible object meeting the view in stacking order (groups with their
// children, link markers, texts), then the outlines of the selection. Only
// the objects whose box meets the view are visited, through a spatial index
// kept from one paint to the next, and objects smaller than a pixel are drawn
// as a dot, so that large drawings pan smoothly.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <cstdint>
#include <string>

#include "drawing/surface.h"
#include "ui/picture_cache.h"
#include "ui/spatial_index.h"
#include "ui/view_transform.h"

namespace pluvane {

// A drawing colour: 24 bits with red in the low byte.
QColor ColorOfBgr(std::int32_t color);

struct PaintOptions {
  bool show_selection = true;
  bool show_grid = true;
  // Vector devices (SVG, PDF, printers) get no cached bitmaps of symbols.
  bool vector_output = false;
};

class SurfacePainter {
 public:
  // Where pictures with relative or missing paths are looked for: the
  // network's folder and the symbol folder.
  void SetFolders(const std::string& base_dir, const std::string& symbol_dir) {
    pictures_.SetFolders(base_dir, symbol_dir);
  }
  // Paints the logical rectangle `view` (fitted with its aspect kept) into the
  // device rectangle (0, 0, pixels).
  void Paint(const Surface& surface, QPainter& painter, const QRectF& view, const QSize& pixels);
  // How many objects the last paint drew (groups count once).
  std::size_t LastPaintedCount() const { return painted_; }
  // The spatial index as of the last paint or Update.
  const SpatialIndex& Index(const Surface& surface) {
    index_.Update(surface);
    return index_;
  }

  PaintOptions options;

 private:
  void PaintPage(const Surface& surface, QPainter& painter, const QSize& pixels);
  void PaintBackground(const Surface& surface, QPainter& painter);
  void PaintGrid(const Surface& surface, QPainter& painter, const QSize& pixels);
  void PaintShape(QPainter& painter, const Shape& shape);
  void PaintText(QPainter& painter, const Shape& shape, const QRectF& box);
  void PaintMarkers(QPainter& painter, const Shape& shape, const QPolygonF& line);
  void PaintDimension(QPainter& painter, const Shape& shape, const QPolygonF& line);
  void PaintSelection(QPainter& painter, const Shape& shape);
  QPen PenOf(const Shape& shape) const;
  double PixelsOf(double size) const;  // negative sizes are logical units

  ViewTransform t_;
  std::int32_t page_color_ = 0xFFFFFF;
  SpatialIndex index_;
  PictureCache pictures_;
  std::size_t painted_ = 0;
};

}  // namespace pluvane

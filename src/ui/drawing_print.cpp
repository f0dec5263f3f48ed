#include "ui/drawing_print.h"

#include <QPainter>

#include "ui/surface_painter.h"

namespace pluvane {

std::string PrintDrawing(const Surface& surface, const QRectF& view, QPrinter& printer,
                         const PictureFolders& folders) {
  if (view.width() <= 0 || view.height() <= 0) return "Rien à imprimer";
  QPainter painter;
  if (!painter.begin(&printer)) return "L'imprimante ne répond pas";
  const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
  SurfacePainter drawing;
  drawing.SetFolders(folders.base_dir, folders.symbol_dir);
  drawing.options.show_selection = false;
  drawing.options.show_grid = false;
  drawing.options.vector_output = true;
  drawing.Paint(surface, painter, view, page.size());
  painter.end();
  return {};
}

}  // namespace pluvane

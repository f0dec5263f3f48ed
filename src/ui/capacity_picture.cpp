#include "ui/capacity_picture.h"

#include <algorithm>

#include "drawing/surface_helpers.h"
#include "drawing/surface_object.h"
#include "ui/drawing_picture.h"

namespace pluvane {

namespace {

// The legend's objects added to `target`, scaled by `scale` and moved by (dx, dy).
void AddLegend(Surface& target, const Surface& legend, double scale, double dx, double dy) {
  target.DeselectAll();
  target.PasteClipboard(legend.CopySelection(1));
  for (int n : SelectedObjects(target)) {
    target.SetCurrentObject(n);
    std::int32_t l, t, r, b;
    target.GetObjectBounds(l, t, r, b);
    target.SetObjectBounds(static_cast<std::int32_t>(l * scale + dx),
                           static_cast<std::int32_t>(t * scale + dy),
                           static_cast<std::int32_t>(r * scale + dx),
                           static_cast<std::int32_t>(b * scale + dy));
    if (target.ObjectKind() == kKindText) target.SetTextSize(target.TextSize() * scale);
  }
  target.DeselectAll();
}

}  // namespace

bool SaveCapacityPicture(const Surface& map, const Surface& legend, const std::string& path,
                         const std::string& network_folder, const std::string& symbol_folder) {
  Surface picture;
  picture.PasteClipboard(map.CopySelection(1));
  const QRectF extent = DrawingExtent(picture);
  const int boxes = legend.ObjectCount(kAllObjects) / 2;
  if (boxes > 0) {
    // The legend stands beside the drawing, as tall as a third of it at most.
    const double height = (boxes + 2) * 200.0;
    const double scale = std::max(1.0, extent.height() / 3 / height);
    AddLegend(picture, legend, scale, extent.right() + extent.width() * 0.05, extent.top());
  }
  return SaveDrawingPicture(picture, path, kDefaultPictureWidth, {network_folder, symbol_folder});
}

}  // namespace pluvane

// The pictures of symbols and of the background plan, loaded once by path.
// A symbol file named by the catalogue (a Windows metafile) is found as it
// stands, beside itself with ".svg" or ".png", beside the network, then in the
// symbol folder. SVG files are kept as renderers so that they stay sharp at
// any zoom; others as images. Small renderings are kept as pixmaps so that a
// drawing of many symbols paints fast.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <string>
#include <tuple>

namespace pluvane {

class PictureCache {
 public:
  // Where relative and missing pictures are looked for.
  void SetFolders(const std::string& base_dir, const std::string& symbol_dir);

  // The readable file for a picture name, empty when none is found.
  std::string Resolve(const std::string& name) const;
  // Draws the picture into the device rectangle; false when it cannot be read.
  // `raster` allows a cached bitmap of the rendering (screen and images), not
  // for vector output.
  bool Draw(QPainter& painter, const std::string& name, const QRectF& target, bool raster);
  // The picture's own size in pixels (SVG: its default size); empty if unreadable.
  QSize NaturalSize(const std::string& name);
  void Clear();

 private:
  struct Entry {
    bool loaded = false;
    std::unique_ptr<QSvgRenderer> svg;
    QImage image;
  };
  Entry& Load(const std::string& name);

  std::string base_dir_;
  std::string symbol_dir_;
  std::map<std::string, Entry> entries_;
  // Renderings by name and pixel size.
  std::map<std::tuple<std::string, int, int>, QImage> renderings_;
};

}  // namespace pluvane

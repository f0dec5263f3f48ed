#include "ui/picture_cache.h"

#include <cmath>

#include "foundation/paths.h"
#include "drawing/symbol_file.h"
#include "ui/picture_format.h"

namespace pluvane {

namespace {

// Renderings above this side are drawn directly rather than kept.
constexpr int kLargestKeptSide = 256;
constexpr std::size_t kMostKeptRenderings = 2048;

bool IsSvg(const std::string& path) { return PictureFormatOf(path) == PictureFormat::kSvg; }

}  // namespace

void PictureCache::SetFolders(const std::string& base_dir, const std::string& symbol_dir) {
  if (base_dir == base_dir_ && symbol_dir == symbol_dir_) return;
  base_dir_ = base_dir;
  symbol_dir_ = symbol_dir;
  Clear();
}

void PictureCache::Clear() {
  entries_.clear();
  renderings_.clear();
}

std::string PictureCache::Resolve(const std::string& name) const {
  if (name.empty()) return "";
  const std::string folder = DirOf(name);
  const std::string file = FileNameOf(name);
  // Metafiles cannot be drawn here: their SVG or PNG twin comes first.
  const bool metafile = PictureFormatOf(name) == PictureFormat::kMetafile;
  if (!metafile && FileExist(name)) return name;
  std::string found;
  if (!folder.empty()) found = FindSymbolFile(folder, file);
  if (found.empty() && !base_dir_.empty()) found = FindSymbolFile(base_dir_, file);
  if (found.empty() && !symbol_dir_.empty()) found = FindSymbolFile(symbol_dir_, file);
  if (found.empty() && FileExist(name)) found = name;
  return found;
}

PictureCache::Entry& PictureCache::Load(const std::string& name) {
  Entry& entry = entries_[name];
  if (entry.loaded) return entry;
  entry.loaded = true;
  const std::string path = Resolve(name);
  if (path.empty()) return entry;
  const QString file = QString::fromStdString(path);
  if (IsSvg(path)) {
    auto renderer = std::make_unique<QSvgRenderer>(file);
    if (renderer->isValid()) entry.svg = std::move(renderer);
  } else {
    entry.image.load(file);
  }
  return entry;
}

QSize PictureCache::NaturalSize(const std::string& name) {
  Entry& entry = Load(name);
  if (entry.svg) return entry.svg->defaultSize();
  return entry.image.size();
}

bool PictureCache::Draw(QPainter& painter, const std::string& name, const QRectF& target,
                        bool raster) {
  Entry& entry = Load(name);
  if (!entry.svg && entry.image.isNull()) return false;
  const int w = static_cast<int>(std::lround(target.width()));
  const int h = static_cast<int>(std::lround(target.height()));
  if (raster && w > 0 && h > 0 && w <= kLargestKeptSide && h <= kLargestKeptSide) {
    auto key = std::make_tuple(name, w, h);
    auto found = renderings_.find(key);
    if (found == renderings_.end()) {
      if (renderings_.size() >= kMostKeptRenderings) renderings_.clear();
      QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::transparent);
      QPainter into(&image);
      into.setRenderHint(QPainter::Antialiasing);
      into.setRenderHint(QPainter::SmoothPixmapTransform);
      if (entry.svg) {
        entry.svg->render(&into, QRectF(0, 0, w, h));
      } else {
        into.drawImage(QRectF(0, 0, w, h), entry.image);
      }
      into.end();
      found = renderings_.emplace(key, std::move(image)).first;
    }
    painter.drawImage(QPointF(std::round(target.left()), std::round(target.top())), found->second);
    return true;
  }
  if (entry.svg) {
    entry.svg->render(&painter, target);
  } else {
    painter.drawImage(target, entry.image);
  }
  return true;
}

}  // namespace pluvane

#include "views/PictureStore.h"

#include "views/Theme.h"

#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace trekor {

void PictureStore::Use(const ImageList& list) {
  lists.push_back(&list);
}

void PictureStore::Forget(const ImageList& list) {
  std::erase(lists, &list);
}

std::string PictureStore::FileOf(const std::string& key) const {
  for (const ImageList* list : lists)
    if (const ImageList::Picture* p = list->Find(key); p && !p->File.empty())
      return p->File;
  return drives.CurrentFolder() + "\\builtin\\" + key + ".png";
}

namespace {

// A picture of more pixels is none: what it takes to draw it as an icon could be gigabytes.
constexpr qint64 MostPixels = 4096 * 4096;

QImage Read(const QString& file) {
  QImageReader reader(file);
  reader.setDecideFormatFromContent(true); // whatever it is called
  const QSize size = reader.size();
  return qint64{size.width()} * size.height() > MostPixels ? QImage() : reader.read();
}

} // namespace

const QImage& PictureStore::Original(const std::string& key) {
  static const QImage none;
  if (key.empty())
    return none;
  const QString file = Q(drives.NativePath(FileOf(key)));
  auto place = originals.find(file);
  if (place == originals.end())
    place = originals.insert(file, Read(file));
  return *place;
}

QPixmap PictureStore::Scaled(const std::string& key, int side, double pixelRatio) {
  if (key.empty() || side <= 0)
    return {};
  const int pixels = static_cast<int>(std::lround(side * pixelRatio));
  const QString name = Q(key) + '|' + QString::number(pixels);
  auto place = scaled.find(name);
  if (place != scaled.end())
    return *place;
  const QImage& image = Original(key);
  QPixmap result;
  if (!image.isNull())
    result = QPixmap::fromImage(image.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  result.setDevicePixelRatio(pixelRatio);
  return *scaled.insert(name, result);
}

} // namespace trekor

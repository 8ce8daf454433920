// Pictures by key, for all views. A key is looked up in the image lists of the loaded forms; one without a file there
// is a picture of the program's own, builtin\KEY.png in its folder. Each file is read once and scaled once for each
// size.
#pragma once

#include "forms/Controls.h"
#include "platform/Drives.h"

#include <QHash>
#include <QImage>
#include <QPixmap>

#include <string>
#include <vector>

namespace trekor {

class PictureStore {
public:
  explicit PictureStore(Drives& drives) : drives(drives) {}

  // Lists are searched in the order of their registration. A list must be forgotten before it is destroyed.
  void Use(const ImageList& list);
  void Forget(const ImageList& list);

  // The picture within a square of `side` logical pixels, keeping its proportions; null when there is none.
  QPixmap Scaled(const std::string& key, int side, double pixelRatio);
  // The picture as it is in its file.
  const QImage& Original(const std::string& key);

private:
  std::string FileOf(const std::string& key) const;
  Drives& drives;
  std::vector<const ImageList*> lists;
  QHash<QString, QImage> originals; // by native path; null for a missing file, which is looked for once
  QHash<QString, QPixmap> scaled;   // by key and side in pixels of the device
};

} // namespace trekor

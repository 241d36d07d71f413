#pragma once

#include <QCache>
#include <QPixmap>
#include <string>

#include "core/FileStamps.h"

namespace ZORVEL {

/// A picture file as a control shows it.
struct PictureSource {
  std::wstring path;
  FileStamp stamp;
  std::wstring overlay;  ///< drawn over the picture; without a stamp that exists there is none
  FileStamp overlayStamp;
  QSize box;  ///< pixels of the files, which are logical pixels of the screen

  bool operator==(const PictureSource& other) const;
};

uint qHash(const PictureSource& source, uint seed = 0);

struct Picture {
  QPixmap pixmap;   ///< null when the file cannot be shown
  QString problem;  ///< why not
};

/// Pictures that were decoded once, the least recently used forgotten first. A file that was written anew is another
/// picture. Clear it before the toolkit goes down. User-interface thread only.
class PictureCache {
 public:
  static PictureCache& Instance();

  Picture Get(const PictureSource& source);
  /// How many files were decoded since the process began.
  int GetDecodedCount() const { return m_decoded; }
  void Clear();

 private:
  PictureCache();

  Picture Decode(const PictureSource& source);
  QImage ReadOverlay(const PictureSource& source);

  QCache<PictureSource, Picture> m_pictures;
  int m_decoded = 0;
};

}  // namespace ZORVEL

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "host/view/Texture.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/PictureReader.h"

namespace fuzz {

namespace {

const QSize BOX(110, 330);

const support::TemporaryFolder& folder() {
  static const support::TemporaryFolder made;
  return made;
}

}  // namespace

void picture(std::string_view bytes) {
  const std::filesystem::path file = folder().write("picture", bytes);
  QString problem;
  const QImage image = ZORVEL::PictureReader::Read(folder().wide() + L"\\picture", BOX, problem);
  require(image.isNull() != problem.isEmpty(), "either a picture or a reason");
  require(image.width() <= BOX.width() && image.height() <= BOX.height(), "a picture is cut to its box");
  const host::Texture::Result read = host::Texture::read(file);
  require((read.texture != nullptr) == read.error.empty(), "either a texture or a reason");
  if (read.texture) read.texture->at({0.3F, 0.7F});
}

}  // namespace fuzz
